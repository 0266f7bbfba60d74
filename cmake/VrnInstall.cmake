# What is installed: the libraries, the tool, the public headers in their folders, the CMake package
# and the pkg-config file.

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
        commissioning/CConfigurationPatch.h
        commissioning/CDeviceManifest.h
        commissioning/CStagedTree.h
        commissioning/CStagingPlan.h
        commissioning/SConfigurationFinding.h
        commissioning/VrnCommissioningExport.h
    )
endif()

foreach(header IN LISTS VRN_PUBLIC_HEADERS)
    get_filename_component(folder "${header}" DIRECTORY)
    install(FILES "${PROJECT_SOURCE_DIR}/${header}"
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/vrnDeviceCore/${folder}")
endforeach()

set(installed_libraries vrnDeviceCore)
if(NOT VRN_USE_MAKER_LIBRARIES)
    list(APPEND installed_libraries vrnCore vrnLogfiles vrnXml)
endif()
if(TARGET vrnCommissioning)
    list(APPEND installed_libraries vrnCommissioning)
endif()
install(TARGETS ${installed_libraries}
    EXPORT vrnDeviceCoreTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
)
if(TARGET vrndevice)
    install(TARGETS vrndevice RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
endif()

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/vrnDeviceCore")
install(EXPORT vrnDeviceCoreTargets NAMESPACE vrn:: DESTINATION "${package_dir}")
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
)

# Relative, so that the file stays true when the installation is moved.
set(pc_dir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
file(RELATIVE_PATH pc_to_prefix "/${pc_dir}" "/")
configure_file("${CMAKE_CURRENT_LIST_DIR}/vrnDeviceCore.pc.in"
    "${PROJECT_BINARY_DIR}/vrnDeviceCore.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/vrnDeviceCore.pc"
    DESTINATION "${pc_dir}")
