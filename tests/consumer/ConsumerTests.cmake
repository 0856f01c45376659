# Installs the library into its own folder and builds clients against it. The top-level
# CMakeLists.txt includes this file, since it needs every target that is installed.

set(consumer_dir ${PROJECT_BINARY_DIR}/consumer)
set(consumer_flags ${CMAKE_CXX_FLAGS})
if(CAPABILITYSET_SANITIZE)
  string(APPEND consumer_flags " -fsanitize=${CAPABILITYSET_SANITIZE}")
endif()

# consumer_test(<name> <step> [<property> <value>...])
function(consumer_test name step)
  add_test(
    NAME Consumer.${name}
    COMMAND
      ${CMAKE_COMMAND} -DSTEP=${step} -DBUILD=${PROJECT_BINARY_DIR} -DWORK=${consumer_dir}
      -DSOURCE=${PROJECT_SOURCE_DIR}/tests/consumer -DLIBDIR=${CMAKE_INSTALL_LIBDIR}
      -DCXX=${CMAKE_CXX_COMPILER} "-DFLAGS=${consumer_flags}" -DBUILD_TYPE=${CMAKE_BUILD_TYPE}
      -DLAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER} -P
      ${PROJECT_SOURCE_DIR}/tests/consumer/RunStep.cmake)
  set_tests_properties(Consumer.${name} PROPERTIES TIMEOUT 1800 ${ARGN})
endfunction()

consumer_test(Install install FIXTURES_SETUP installed)
consumer_test(Build build FIXTURES_REQUIRED installed FIXTURES_SETUP clients)
consumer_test(StaticBundled run:static_bundled FIXTURES_REQUIRED clients)
consumer_test(CatalogStatic run:catalog_static FIXTURES_REQUIRED clients)
consumer_test(CatalogShared run:catalog_shared FIXTURES_REQUIRED clients)
consumer_test(Shared run:shared FIXTURES_REQUIRED clients)
consumer_test(StaticOwnSdk run:static_own_sdk FIXTURES_REQUIRED clients)
consumer_test(PkgConfigShared pkg-config-shared FIXTURES_REQUIRED installed)
consumer_test(PkgConfigStatic pkg-config-static FIXTURES_REQUIRED installed)
if(TARGET capset)
  consumer_test(InstalledTool tool FIXTURES_REQUIRED installed)
endif()
