# The Debian packages that cpack makes, one for each component of cmake/VrnInstall.cmake. For the
# presets package and i386; scripts/run-packages makes and tries them.

set(VRN_PACKAGE_MAINTAINER "Maintainers of libvrnDeviceCore <maintainers@vrndevicecore.example>"
    CACHE STRING "Who answers for the packages, as in a Debian control file")

# Library packages carry the number of the binary interface, so that two can be installed at once.
set(runtime_package libvrndevicecore${VRN_SOVERSION})
set(commissioning_package libvrncommissioning${VRN_SOVERSION})
set(development_package libvrndevicecore-dev)
set(tool_package vrndevice)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vrndevicecore)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own
set(CPACK_PACKAGING_INSTALL_PREFIX "${CMAKE_INSTALL_PREFIX}")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_ALL runtime commissioning development tool)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${VRN_PACKAGE_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Our own libraries are in no installed package yet; dependencies on them are written out below.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_POST_BUILD_SCRIPTS "${CMAKE_CURRENT_LIST_DIR}/VrnFinishPackages.cmake")

# vrn_package(COMPONENT SECTION SUMMARY DEPENDS DESCRIPTION)
macro(vrn_package component section summary depends description)
    string(TOUPPER "${component}" key)
    set(CPACK_DEBIAN_${key}_PACKAGE_NAME "${${component}_package}")
    set(CPACK_DEBIAN_${key}_PACKAGE_SECTION "${section}")
    set(CPACK_DEBIAN_${key}_PACKAGE_DEPENDS "${depends}")
    set(CPACK_COMPONENT_${key}_DESCRIPTION "${summary}\n${description}")
endmacro()

set(same_version "(= ${PROJECT_VERSION})")

vrn_package(runtime libs
    "configuration model of servo drives and their motion controllers"
    ""
    "The configuration of a device with its drives, files and plug-ins as one
in-memory model; the XML document that keeps it; the directory layout of the
device it is meant for; and the small files that the device keeps for itself.
.
This package has what the software on the device and every other program
needs that uses libvrnDeviceCore.")

vrn_package(commissioning libs
    "whole configurations of servo drives, for programs on a PC"
    "${runtime_package} ${same_version}"
    "What programs for commissioning do with a whole configuration: change single
items, check, compare, stage for transport to the device, and report.
.
The software on the device does not need this package.")

vrn_package(development libdevel
    "configuration model of servo drives - development files"
    "${runtime_package} ${same_version}, ${commissioning_package} ${same_version}, qtbase5-dev (>= 5.15)"
    "The configuration of a device with its drives, files and plug-ins as one
in-memory model, and what programs for commissioning do with it.
.
This package has what is needed to compile programs that use libvrnDeviceCore
or libvrnCommissioning: headers, a CMake package, and files for pkg-config.")

vrn_package(tool utils
    "command-line tool for configurations of servo drives"
    "${runtime_package} ${same_version}, ${commissioning_package} ${same_version}"
    "Creates, shows, changes and checks configurations of servo drives and their
motion controllers, shows where every file lies on the device, and reads the
small files that a device keeps for itself. Every command can print JSON.")

# What a program depends on that is linked with a library, and that the linker's cache is to be renewed.
set(debian_dir "${PROJECT_BINARY_DIR}/debian")
set(runtime_libraries vrnCore vrnDeviceCore vrnLogfiles vrnXml)
set(commissioning_libraries vrnCommissioning)
string(REGEX MATCH "^[0-9]+\\.[0-9]+" interface_version "${PROJECT_VERSION}")
foreach(component IN ITEMS runtime commissioning)
    string(TOUPPER "${component}" key)
    set(shlibs "")
    foreach(library IN LISTS ${component}_libraries)
        string(APPEND shlibs "lib${library} ${VRN_SOVERSION}"
            " ${${component}_package} (>= ${interface_version})\n")
    endforeach()
    file(WRITE "${debian_dir}/${component}/shlibs" "${shlibs}")
    file(WRITE "${debian_dir}/${component}/triggers" "activate-noawait ldconfig\n")
    set(CPACK_DEBIAN_${key}_PACKAGE_CONTROL_EXTRA
        "${debian_dir}/${component}/shlibs;${debian_dir}/${component}/triggers")
endforeach()

# The times in the packages are that of the last commit, so that the same sources give the same bytes.
set(epoch "$ENV{SOURCE_DATE_EPOCH}")
if(epoch STREQUAL "")
    message(FATAL_ERROR "For packages set SOURCE_DATE_EPOCH, or use scripts/run-packages.")
endif()
string(TIMESTAMP VRN_PACKAGE_YEAR "%Y" UTC)
execute_process(COMMAND date --utc --rfc-email "--date=@${epoch}"
    OUTPUT_VARIABLE date OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)

# The section of this version in CHANGELOG.md, in the form that Debian's tools read.
file(READ "${PROJECT_SOURCE_DIR}/CHANGELOG.md" changes)
string(FIND "${changes}" "\n## ${PROJECT_VERSION}" start)
if(start EQUAL -1)
    message(FATAL_ERROR "CHANGELOG.md has no section ## ${PROJECT_VERSION}.")
endif()
string(SUBSTRING "${changes}" ${start} -1 changes)
string(REGEX REPLACE "^\n[^\n]*\n+" "" changes "${changes}")
string(REGEX REPLACE "\n## .*" "\n" changes "${changes}")
string(REGEX REPLACE "\n- " "\n* " changes "\n${changes}")
string(REGEX REPLACE "\n([^\n])" "\n  \\1" changes "${changes}")
string(STRIP "${changes}" changes)
file(WRITE "${debian_dir}/changes" "  ${changes}\n")
execute_process(COMMAND fmt --tagged-paragraph --width=78 "${debian_dir}/changes"
    OUTPUT_VARIABLE changes COMMAND_ERROR_IS_FATAL ANY)
file(WRITE "${debian_dir}/changelog"
    "${CPACK_PACKAGE_NAME} (${PROJECT_VERSION}) stable; urgency=medium\n\n"
    "${changes}\n"
    " -- ${VRN_PACKAGE_MAINTAINER}  ${date}\n")
execute_process(COMMAND gzip --best --no-name --force --keep "${debian_dir}/changelog"
    COMMAND_ERROR_IS_FATAL ANY)

configure_file("${CMAKE_CURRENT_LIST_DIR}/copyright.in" "${debian_dir}/copyright" @ONLY)

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    install(FILES "${debian_dir}/changelog.gz" "${debian_dir}/copyright"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${${component}_package}"
        COMPONENT ${component})
endforeach()

include(CPack)
