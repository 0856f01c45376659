# Defines the project's libraries: static and shared from the same objects, both installed.
include(GNUInstallDirs)

set(CAPABILITYSET_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR}/CapabilitySet-${PROJECT_VERSION_MAJOR})

# Installed programs and libraries find their libraries even after the tree is moved. A package for
# /usr switches this off (CMAKE_SKIP_INSTALL_RPATH).
file(RELATIVE_PATH capabilityset_bin_to_lib ${CMAKE_INSTALL_FULL_BINDIR}
     ${CMAKE_INSTALL_FULL_LIBDIR})
if(NOT DEFINED CMAKE_INSTALL_RPATH)
  set(CMAKE_INSTALL_RPATH "$ORIGIN;$ORIGIN/${capabilityset_bin_to_lib}")
endif()

# capabilityset_library(<target> NAMESPACE <namespace> EXPORT <name> INCLUDE <root> SOURCES ...
#                       [PUBLIC ...] [PRIVATE ...])
# Adds the static library <target>, which clients call <namespace>::<name>, and the shared library
# <target>Shared or <namespace>::<name>-shared. The shared library links the shared form of a PUBLIC
# dependency if there is one. Both are exported in <namespace>Targets.
function(capabilityset_library target)
  cmake_parse_arguments(arg "" "NAMESPACE;EXPORT;INCLUDE" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
  add_library(${target}Objects OBJECT ${arg_SOURCES})
  target_include_directories(${target}Objects PUBLIC ${arg_INCLUDE})
  # A shared library with a unique symbol is never unloaded.
  target_compile_options(${target}Objects
                         PRIVATE $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-fno-gnu-unique>)
  target_link_libraries(${target}Objects PUBLIC ${arg_PUBLIC} PRIVATE ${arg_PRIVATE}
                                                                     capabilityset_options)
  capabilityset_precompile(${target}Objects)
  foreach(kind IN ITEMS STATIC SHARED)
    set(library ${target})
    set(suffix "")
    if(kind STREQUAL "SHARED")
      set(library ${target}Shared)
      set(suffix "-shared")
    endif()
    add_library(${library} ${kind} $<TARGET_OBJECTS:${target}Objects>)
    add_library(${arg_NAMESPACE}::${arg_EXPORT}${suffix} ALIAS ${library})
    set_target_properties(
      ${library}
      PROPERTIES OUTPUT_NAME ${target}
                 EXPORT_NAME ${arg_EXPORT}${suffix}
                 VERSION ${PROJECT_VERSION}
                 SOVERSION ${PROJECT_VERSION_MAJOR})
    target_compile_features(${library} PUBLIC cxx_std_20)
    target_include_directories(
      ${library} PUBLIC $<BUILD_INTERFACE:${arg_INCLUDE}>
                        $<INSTALL_INTERFACE:${CAPABILITYSET_INCLUDEDIR}>)
    foreach(dependency IN LISTS arg_PUBLIC)
      if(kind STREQUAL "SHARED" AND TARGET ${dependency}Shared)
        target_link_libraries(${library} PUBLIC ${dependency}Shared)
      else()
        target_link_libraries(${library} PUBLIC ${dependency})
      endif()
    endforeach()
    target_link_libraries(${library} PRIVATE ${arg_PRIVATE})
    if(CAPABILITYSET_INSTALL)
      install(
        TARGETS ${library}
        EXPORT ${arg_NAMESPACE}Targets
        LIBRARY COMPONENT Runtime NAMELINK_COMPONENT Development
        ARCHIVE COMPONENT Development)
    endif()
  endforeach()
endfunction()

# capabilityset_link_sdk(<target>)
# Links the device SDK that CAPABILITYSET_SDK names: the bundled one, shared or static like the
# target, or the client's own.
function(capabilityset_link_sdk target)
  if(NOT CAPABILITYSET_SDK STREQUAL "bundled")
    if(NOT TARGET ${CAPABILITYSET_SDK} AND NOT EXISTS ${CAPABILITYSET_SDK})
      message(FATAL_ERROR "CAPABILITYSET_SDK is \"${CAPABILITYSET_SDK}\": neither \"bundled\", nor a "
                          "CMake target, nor the path of a library")
    endif()
    target_link_libraries(${target} PRIVATE ${CAPABILITYSET_SDK})
    return()
  endif()
  get_target_property(type ${target} TYPE)
  if(type STREQUAL "SHARED_LIBRARY")
    # PUBLIC: a client of the shared library logs in to its devices with the same SDK.
    target_link_libraries(${target} PUBLIC PelNetSDKShared)
  else()
    target_link_libraries(${target} PRIVATE PelNetSDK)
  endif()
endfunction()
