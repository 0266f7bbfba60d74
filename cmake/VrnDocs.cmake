# The target `docs`: the documentation of the public headers and the pages of docs/ as HTML in
# docs/html of the build directory. Only where there is Doxygen; no warning is let through.

find_package(Doxygen 1.9.4 QUIET)
if(NOT DOXYGEN_FOUND)
    return()
endif()

file(GLOB_RECURSE pages CONFIGURE_DEPENDS RELATIVE "${PROJECT_SOURCE_DIR}" "${PROJECT_SOURCE_DIR}/docs/*.md")
set(headers ${VRN_PUBLIC_HEADERS})
list(TRANSFORM headers PREPEND src/)
set(VRN_DOCS_DIR "${PROJECT_BINARY_DIR}/docs")
set(VRN_DOCS_INPUT "")
foreach(file IN LISTS pages headers ITEMS README.md CONTRIBUTING.md CHANGELOG.md)
    string(APPEND VRN_DOCS_INPUT " \\\n    \"${PROJECT_SOURCE_DIR}/${file}\"")
endforeach()
configure_file("${PROJECT_SOURCE_DIR}/docs/Doxyfile.in" "${VRN_DOCS_DIR}/Doxyfile" @ONLY)

add_custom_target(docs
    COMMAND "${CMAKE_COMMAND}" -E rm -rf "${VRN_DOCS_DIR}/html"
    COMMAND Doxygen::doxygen "${VRN_DOCS_DIR}/Doxyfile"
    WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}"
    COMMENT "Writing ${VRN_DOCS_DIR}/html"
    VERBATIM
)
