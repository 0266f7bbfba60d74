# How every target of this project is compiled.

# Language standard, warnings and instrumentation; only for compiling, never for users of a target.
function(vrn_compile target)
    set_target_properties(${target} PROPERTIES
        CXX_STANDARD 17
        CXX_STANDARD_REQUIRED ON
        CXX_EXTENSIONS OFF
    )
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor
        $<$<BOOL:${VRN_WERROR}>:-Werror>
    )
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING)
    if(VRN_SANITIZE)
        target_compile_options(${target} PRIVATE
            -fsanitize=${VRN_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
        target_link_options(${target} PRIVATE -fsanitize=${VRN_SANITIZE})
    endif()
    if(VRN_COVERAGE)
        target_compile_options(${target} PRIVATE --coverage)
        target_link_options(${target} PRIVATE --coverage)
    endif()
endfunction()

# For a library or the tool: only what is marked is seen from outside.
function(vrn_compile_hidden target)
    vrn_compile(${target})
    set_target_properties(${target} PROPERTIES
        POSITION_INDEPENDENT_CODE ON
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
    )
endfunction()

# With VRN_PRECOMPILE_HEADERS, the target does not read Qt's headers again.
function(vrn_precompiled_headers target)
    if(VRN_PRECOMPILE_HEADERS)
        target_precompile_headers(${target} REUSE_FROM vrnQtHeaders)
    endif()
endfunction()

# A shared library that exports only what is marked; `build_definition` is defined while compiling.
function(vrn_library target build_definition)
    vrn_compile_hidden(${target})
    vrn_precompiled_headers(${target})
    set_target_properties(${target} PROPERTIES
        VERSION ${PROJECT_VERSION}
        SOVERSION ${VRN_SOVERSION}
        # The libraries find each other wherever they are installed together.
        INSTALL_RPATH "$ORIGIN"
    )
    target_compile_features(${target} PUBLIC cxx_std_17)
    target_compile_definitions(${target} PRIVATE ${build_definition})
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/vrnDeviceCore>
    )
    # An unresolved symbol is found here and not by the first program that loads the library. The
    # sanitizers' own symbols come only with the program.
    if(NOT VRN_SANITIZE)
        target_link_options(${target} PRIVATE -Wl,--no-undefined)
    endif()
endfunction()
