# cmake -D TOOL=… -D ARGUMENTS=… -D DOCUMENT=… -P VrnToolDocument.cmake
#
# Writes what the tool prints in English, in whichever locale the build runs.

set(ENV{LC_ALL} C)
execute_process(COMMAND "${TOOL}" ${ARGUMENTS}
    OUTPUT_FILE "${DOCUMENT}" RESULT_VARIABLE result)
if(result)
    file(REMOVE "${DOCUMENT}")
    message(FATAL_ERROR "${TOOL} ${ARGUMENTS}: ${result}")
endif()
