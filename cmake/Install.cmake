# What is installed besides libraries and tool: headers, CMake package, pkg-config files, documents.
include(CMakePackageConfigHelpers)

# PelNetSDK::bundled needs the interface and the device model.
target_include_directories(PelNetSDKInterface
                           INTERFACE $<INSTALL_INTERFACE:${CAPABILITYSET_INCLUDEDIR}>)
set_target_properties(PelNetSDKInterface PROPERTIES EXPORT_NAME interface)
set_target_properties(PelNetDevice PROPERTIES EXPORT_NAME device)
install(TARGETS PelNetSDKInterface PelNetDevice EXPORT PelNetSDKTargets
        ARCHIVE COMPONENT Development)

# Headers are collected at install time, so that a new one needs no reconfiguration.
install(
  CODE "include(\"${CMAKE_CURRENT_LIST_DIR}/PublicHeaders.cmake\")
capabilityset_install_headers(\"${PROJECT_SOURCE_DIR}\" \"\${CMAKE_INSTALL_PREFIX}/${CAPABILITYSET_INCLUDEDIR}\")"
  COMPONENT Development)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/CapabilitySet)
foreach(namespace IN ITEMS Keel PelNetSDK CapabilitySet)
  install(
    EXPORT ${namespace}Targets
    NAMESPACE ${namespace}::
    DESTINATION ${package_dir}
    COMPONENT Development)
endforeach()
configure_package_config_file(
  ${CMAKE_CURRENT_LIST_DIR}/CapabilitySetConfig.cmake.in
  ${PROJECT_BINARY_DIR}/CapabilitySetConfig.cmake
  INSTALL_DESTINATION ${package_dir}
  NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/CapabilitySetConfigVersion.cmake
                                 COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/CapabilitySetConfig.cmake
              ${PROJECT_BINARY_DIR}/CapabilitySetConfigVersion.cmake
        DESTINATION ${package_dir}
        COMPONENT Development)

# Each file finds its prefix from its own location, so that an installed tree can be moved.
file(RELATIVE_PATH pc_prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" pc_prefix "\${pcfiledir}/${pc_prefix}")
foreach(package IN ITEMS keel keel-static pelnetsdk pelnetsdk-static capabilityset
                         capabilityset-static capabilityset-catalog capabilityset-catalog-static)
  configure_file(${CMAKE_CURRENT_LIST_DIR}/pkgconfig/${package}.pc.in
                 ${PROJECT_BINARY_DIR}/pkgconfig/${package}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/pkgconfig/${package}.pc
          DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
          COMPONENT Development)
endforeach()

# The documents that headers and the tool's help refer to. Debian packages have a folder each.
set(library_docs ${CMAKE_INSTALL_DOCDIR})
set(tool_docs ${CMAKE_INSTALL_DOCDIR})
if(CAPABILITYSET_DEBIAN_DOCS)
  set(library_docs ${CMAKE_INSTALL_DATADIR}/doc/libcapabilityset-dev)
  set(tool_docs ${CMAKE_INSTALL_DATADIR}/doc/capset)
endif()
install(
  DIRECTORY docs
  DESTINATION ${library_docs}
  COMPONENT Development
  PATTERN capset.md EXCLUDE)
if(TARGET capset)
  install(FILES docs/capset.md DESTINATION ${tool_docs}/docs COMPONENT Tool)
endif()
