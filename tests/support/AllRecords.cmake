# The record types of the catalogue, compiled once for tests, fuzz targets and benchmarks.
include_guard(GLOBAL)
set(support ${PROJECT_SOURCE_DIR}/tests/support)
add_library(
  AllRecords OBJECT
  ${support}/AllRecords.cpp ${support}/AllAbilityTypes.cpp ${support}/AllEventTypes.cpp
  ${support}/AllJsonTypes.cpp ${support}/AllJsonBodyTypes.cpp ${support}/AllSettingTypes.cpp)
target_include_directories(AllRecords PUBLIC ${PROJECT_SOURCE_DIR}/tests ${PROJECT_SOURCE_DIR})
target_link_libraries(AllRecords PUBLIC CapabilitySetCatalog LibXml2::LibXml2 JsonCpp::JsonCpp
                                 PRIVATE capabilityset_options)
