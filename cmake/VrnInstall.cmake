# What is installed: the libraries, the tool, the public headers in their folders, the schemas of the
# documents, the CMake package and the pkg-config files.
#
# Each file belongs to a component, which is a package of its own in packaging/VrnPackages.cmake:
#
#   runtime        what a program needs that uses libvrnDeviceCore
#   commissioning  what one needs in addition that uses libvrnCommissioning
#   development    what is needed to compile such programs
#   tool           vrndevice with all that it reads: manual page, completions, translations

include(CMakePackageConfigHelpers)

# The one list of public headers. What is not here is private to the library.
set(VRN_PUBLIC_HEADERS
    vocabulary/NDeviceConf.h
    vocabulary/NVornXmlTags.h
    vocabulary/NvrFileNames.h
    vocabulary/NvrnDeviceCore.h
    vocabulary/NvrnGlobal.h
    vocabulary/VrnDeviceCoreExport.h
    elements/CBaseElement.h
    elements/CDescriptionElement.h
    elements/CDeviceBaseElement.h
    elements/CDeviceElement.h
    elements/CFileElement.h
    elements/CParamFileElement.h
    elements/CPluginElement.h
    elements/CSubDeviceBaseElement.h
    elements/CSubDeviceElement.h
    elements/CSubDeviceKD2Element.h
    elements/CSubDeviceKD2ElementEdit.h
    elements/CSubDeviceKD3Element.h
    elements/CSubDeviceKD3ElementEdit.h
    configfile/CAbstractDeviceConfigurationFile.h
    configfile/CDeviceConfigurationFile10.h
    configfile/CDeviceConfigurationFileBase.h
    configfile/ICDeviceConfigurationFile.h
    settings/CDeviceSettings.h
    settings/CDeviceSettingsFile.h
    settings/CDeviceSettingsFileBase.h
    settings/CDeviceSettingsFileV10.h
    settings/CNetworkSettings.h
    settings/CNetworkSettingsCheck.h
    settings/CNetworkSettingsFile.h
    devicefiles/CDeviceCommData.h
    devicefiles/CDeviceFileSystem.h
    devicefiles/CDeviceOSReleaseFile.h
    devicefiles/CDeviceSystemMessage.h
    devicefiles/CHashMap.h
    devicefiles/COptionModuleFileName.h
    imported/CDeviceHardwareId.h
    imported/CDeviceItem.h
    imported/CDomDoc.h
    imported/CFTPath.h
    imported/CMessageBoardHelper.h
    imported/CPath.h
    imported/CStr.h
    imported/CXMLMetaData.h
    imported/CXmlAbstractVornFile.h
    imported/ICLogfile.h
    imported/ICXmlSettings.h
    imported/SXmlLimits.h
    imported/SXmlPosition.h
    imported/VrnImportedExport.h
)

if(TARGET vrnCommissioning)
    list(APPEND VRN_PUBLIC_HEADERS
        commissioning/CConfigurationCheck.h
        commissioning/CConfigurationComparison.h
        commissioning/CConfigurationItems.h
        commissioning/CConfigurationMerge.h
        commissioning/CConfigurationOverview.h
        commissioning/CConfigurationPatch.h
        commissioning/CConfigurationReport.h
        commissioning/CDeviceManifest.h
        commissioning/CItemFindings.h
        commissioning/CStagedTree.h
        commissioning/CStagingPlan.h
        commissioning/SConfigurationFinding.h
        commissioning/VrnCommissioningExport.h
    )
endif()

foreach(header IN LISTS VRN_PUBLIC_HEADERS)
    get_filename_component(folder "${header}" DIRECTORY)
    install(FILES "${PROJECT_SOURCE_DIR}/src/${header}"
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/vrnDeviceCore/${folder}"
        COMPONENT development)
endforeach()

install(FILES
    "${PROJECT_SOURCE_DIR}/schemas/DeviceConfiguration.xsd"
    "${PROJECT_SOURCE_DIR}/schemas/DeviceSettings.xsd"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/vrnDeviceCore/schemas"
    COMPONENT development
)

# vrn_install_libraries(COMPONENT TARGET...)
function(vrn_install_libraries component)
    install(TARGETS ${ARGN}
        EXPORT vrnDeviceCoreTargets
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        COMPONENT ${component} NAMELINK_COMPONENT development
    )
endfunction()

set(VRN_LIBRARIES vrnDeviceCore)
if(NOT VRN_USE_MAKER_LIBRARIES)
    list(APPEND VRN_LIBRARIES vrnCore vrnLogfiles vrnXml)
endif()
vrn_install_libraries(runtime ${VRN_LIBRARIES})
if(TARGET vrnCommissioning)
    vrn_install_libraries(commissioning vrnCommissioning)
    list(APPEND VRN_LIBRARIES vrnCommissioning)
endif()
if(TARGET vrndevice)
    install(TARGETS vrndevice RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT tool)
endif()
add_custom_target(vrnLibraries DEPENDS ${VRN_LIBRARIES})

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/vrnDeviceCore")
install(EXPORT vrnDeviceCoreTargets NAMESPACE vrn:: DESTINATION "${package_dir}"
    COMPONENT development)
configure_package_config_file(
    "${CMAKE_CURRENT_LIST_DIR}/vrnDeviceCoreConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/vrnDeviceCoreConfig.cmake"
    INSTALL_DESTINATION "${package_dir}"
)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/vrnDeviceCoreConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/vrnDeviceCoreConfig.cmake"
    "${PROJECT_BINARY_DIR}/vrnDeviceCoreConfigVersion.cmake"
    "${CMAKE_CURRENT_LIST_DIR}/FindVrnMakerLibraries.cmake"
    DESTINATION "${package_dir}"
    COMPONENT development
)

# Relative, so that the files stay true when the installation is moved.
set(pc_dir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
file(RELATIVE_PATH pc_to_prefix "/${pc_dir}" "/")
set(pc_files vrnDeviceCore)
if(TARGET vrnCommissioning)
    list(APPEND pc_files vrnCommissioning)
endif()
foreach(name IN LISTS pc_files)
    configure_file("${CMAKE_CURRENT_LIST_DIR}/${name}.pc.in" "${PROJECT_BINARY_DIR}/${name}.pc" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/${name}.pc" DESTINATION "${pc_dir}" COMPONENT development)
endforeach()
