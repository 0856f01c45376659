# Language level, warnings and sanitizers, the same for every target of the project.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_C_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "" FORCE)
endif()

find_program(CAPABILITYSET_CCACHE ccache)
if(CAPABILITYSET_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # What ccache must overlook to cache units that use a precompiled header.
  set(launcher env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
               ${CAPABILITYSET_CCACHE})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${launcher})
  set(CMAKE_C_COMPILER_LAUNCHER ${launcher})
endif()

cmake_path(RELATIVE_PATH PROJECT_SOURCE_DIR BASE_DIRECTORY ${CMAKE_BINARY_DIR} OUTPUT_VARIABLE from_build)
add_library(capabilityset_options INTERFACE)
target_compile_options(
  capabilityset_options
  INTERFACE -Wall -Wextra -Wpedantic $<$<BOOL:${CAPABILITYSET_WERROR}>:-Werror> -Wshadow -Wnon-virtual-dtor -Wcast-align
            -Wconversion -Wformat=2
            # g++ 12 reports overlapping copies inside std::string's operator+.
            $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>
            # Log lines name source files relative to the repository. A compiler cache may have
            # made paths relative to the build directory.
            -ffile-prefix-map=${PROJECT_SOURCE_DIR}/= -ffile-prefix-map=${from_build}/=)
if(CAPABILITYSET_SANITIZE)
  add_compile_options(-fsanitize=${CAPABILITYSET_SANITIZE} -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${CAPABILITYSET_SANITIZE})
endif()
if(CAPABILITYSET_COVERAGE)
  # Count in the code under test, not in the tests.
  add_compile_options(
    "$<$<NOT:$<STREQUAL:$<TARGET_PROPERTY:SOURCE_DIR>,${PROJECT_SOURCE_DIR}/tests>>:-O0;--coverage;-fprofile-update=atomic>")
  add_link_options(--coverage)
endif()
if(CAPABILITYSET_BUILD_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link) # coverage of the library guides the fuzzers
endif()

# Half of the time that a source takes to compile goes into standard headers: compile them once.
add_library(StandardHeaders OBJECT ${CMAKE_CURRENT_LIST_DIR}/StandardHeaders.cpp)
target_precompile_headers(
  StandardHeaders PRIVATE
  <algorithm> <array> <charconv> <chrono> <functional> <map> <memory> <mutex> <optional> <set> <span>
  <string> <string_view> <vector>)
target_link_libraries(StandardHeaders PRIVATE capabilityset_options)

# capabilityset_precompile(<target>...): for targets that are compiled with the project's own options.
function(capabilityset_precompile)
  foreach(target IN LISTS ARGN)
    target_precompile_headers(${target} REUSE_FROM StandardHeaders)
    # Once precompiled, a header is no system header to g++ 12, which then warns inside it.
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-stringop-overread>)
  endforeach()
endfunction()
