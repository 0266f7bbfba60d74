# Run by cpack for the packages that it made: it gives those with libraries scripts that call
# ldconfig, which the trigger in packaging/VrnPackages.cmake does once for all packages.

set(content "${CPACK_TEMPORARY_DIRECTORY}/content")
foreach(package IN LISTS CPACK_PACKAGE_FILES)
    file(REMOVE_RECURSE "${content}")
    execute_process(COMMAND dpkg-deb --raw-extract "${package}" "${content}"
        COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE "${content}/DEBIAN/postinst" "${content}/DEBIAN/postrm")
    execute_process(COMMAND dpkg-deb --root-owner-group --build "${content}" "${package}"
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endforeach()
file(REMOVE_RECURSE "${content}")
