# Debian packages: the libraries, what clients compile against, and the tool.
set(CPACK_GENERATOR "DEB;TGZ")
set(CPACK_PACKAGE_NAME capabilityset)
set(CPACK_PACKAGE_VENDOR "CapabilitySet")
set(CPACK_PACKAGE_CONTACT "CapabilitySet maintainers <maintainers@capabilityset.invalid>")
# Each package has its own description; a summary here would be prepended to it.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PACKAGING_INSTALL_PREFIX "${CMAKE_INSTALL_PREFIX}")
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}/packages")
set(CPACK_RESOURCE_FILE_LICENSE "${PROJECT_SOURCE_DIR}/LICENSE")
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL Runtime Development)
if(TARGET capset)
  list(APPEND CPACK_COMPONENTS_ALL Tool)
endif()

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS OFF)

set(runtime libcapabilityset${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
file(WRITE ${PROJECT_BINARY_DIR}/debian/triggers "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA "${PROJECT_BINARY_DIR}/debian/triggers")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
    "Capabilities of video-security devices, shared libraries
Asks a network camera, recorder, alarm host or managed switch what it can do
and hands the answers to a client as plain C++ records.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libcapabilityset-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${runtime} (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}), libxml2-dev, libjsoncpp-dev, liblog4cxx-dev")
# Only clients that link the portable SDK statically need libcurl.
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_RECOMMENDS "libcurl4-openssl-dev")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
    "Capabilities of video-security devices, development files
Headers, static libraries, CMake package and pkg-config files of the library
that tells a client what a video-security device can do.")
set(CPACK_DEBIAN_TOOL_PACKAGE_NAME capset)
set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION utils)
set(CPACK_COMPONENT_TOOL_DESCRIPTION
    "Shows what a video-security device can do
Asks a device on the network, or a simulated one in its own process, and
prints its capability records as tables or JSON.")

# The copyright and changelog of each Debian package.
if(CAPABILITYSET_DEBIAN_DOCS)
  find_program(CAPABILITYSET_GZIP gzip REQUIRED)
  execute_process(
    COMMAND ${CAPABILITYSET_GZIP} -9nc ${PROJECT_SOURCE_DIR}/packaging/changelog
    OUTPUT_FILE ${PROJECT_BINARY_DIR}/changelog.gz COMMAND_ERROR_IS_FATAL ANY)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
                                         ${PROJECT_SOURCE_DIR}/packaging/changelog)
  foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} upper)
    set(doc ${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
    install(FILES ${PROJECT_SOURCE_DIR}/packaging/copyright DESTINATION ${doc}
            COMPONENT ${component})
    install(FILES ${PROJECT_BINARY_DIR}/changelog.gz DESTINATION ${doc} COMPONENT ${component}
            RENAME changelog.Debian.gz)
  endforeach()
endif()

include(CPack)
