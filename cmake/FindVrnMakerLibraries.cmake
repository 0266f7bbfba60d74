# Finds the maker's libvrnCore, libvrnLogfiles and libvrnXml, in VRN_MAKER_LIBRARY_DIR or where the
# linker looks, and gives them the target names of our own: vrn::vrnCore and so on. The headers are
# ours in either case; see the folder imported/.

include(FindPackageHandleStandardArgs)

foreach(library IN ITEMS vrnCore vrnLogfiles vrnXml)
    find_library(${library}_LIBRARY ${library} HINTS "${VRN_MAKER_LIBRARY_DIR}")
    mark_as_advanced(${library}_LIBRARY)
endforeach()

find_package_handle_standard_args(VrnMakerLibraries
    REQUIRED_VARS vrnCore_LIBRARY vrnLogfiles_LIBRARY vrnXml_LIBRARY)

if(VrnMakerLibraries_FOUND)
    foreach(library IN ITEMS vrnCore vrnLogfiles vrnXml)
        if(NOT TARGET vrn::${library})
            add_library(vrn::${library} SHARED IMPORTED)
            set_target_properties(vrn::${library} PROPERTIES
                IMPORTED_LOCATION "${${library}_LIBRARY}"
                INTERFACE_LINK_LIBRARIES "Qt5::Core;Qt5::Xml"
            )
        endif()
    endforeach()
endif()
