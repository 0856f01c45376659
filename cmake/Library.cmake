# capabilityset_library(<target> EXPORT <name> SOURCES ... [PUBLIC ...] [PRIVATE ...])
# A static library <target> and a shared one <target>Shared from one compilation.
include(GNUInstallDirs)

function(capabilityset_library target)
  cmake_parse_arguments(arg "" "NAMESPACE;EXPORT;INCLUDE" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
  add_library(${target}Objects OBJECT ${arg_SOURCES})
  target_include_directories(${target}Objects PUBLIC ${arg_INCLUDE})
  target_link_libraries(${target}Objects PUBLIC ${arg_PUBLIC} PRIVATE ${arg_PRIVATE}
                                                                     capabilityset_options)
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
    target_include_directories(
      ${library} PUBLIC $<BUILD_INTERFACE:${arg_INCLUDE}>
                        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/CapabilitySet-${PROJECT_VERSION_MAJOR}>)
    foreach(dependency IN LISTS arg_PUBLIC)
      if(kind STREQUAL "SHARED" AND TARGET ${dependency}Shared)
        target_link_libraries(${library} PUBLIC ${dependency}Shared)
      else()
        target_link_libraries(${library} PUBLIC ${dependency})
      endif()
    endforeach()
    target_link_libraries(${library} PRIVATE ${arg_PRIVATE})
  endforeach()
endfunction()
