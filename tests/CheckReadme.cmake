# Compares README.md and docs/errors.md with the sources and programs that they quote.
# Variables: SOURCE (the repository), FIRST_QUERY and CAPSET (the programs; CAPSET may be empty).
cmake_minimum_required(VERSION 3.25)

file(READ ${SOURCE}/README.md readme)

# expect(<what> <text>): README.md must contain the text.
function(expect what text)
  string(FIND "${readme}" "${text}" place)
  if(place EQUAL -1)
    message(SEND_ERROR "README.md does not match ${what}:\n${text}")
  endif()
endfunction()

# Its example is the marked part of the compiled example.
file(READ ${SOURCE}/examples/first_query.cpp example)
string(REGEX MATCH "// \\[client\\]\n(.*)// \\[client\\]" marked "${example}")
if(NOT marked)
  message(FATAL_ERROR "examples/first_query.cpp has no part marked [client]")
endif()
expect("examples/first_query.cpp" "```cpp\n${CMAKE_MATCH_1}```")

# It shows the programs' actual output.
execute_process(COMMAND ${FIRST_QUERY} OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
expect("the output of first_query" "$ first_query\n${output}")
if(CAPSET)
  execute_process(COMMAND ${CAPSET} show sim:dome BasicCapability OUTPUT_VARIABLE output
                  COMMAND_ERROR_IS_FATAL ANY)
  set(head "")
  foreach(line RANGE 1 16)
    string(FIND "${output}" "\n" end)
    math(EXPR end "${end} + 1")
    string(SUBSTRING "${output}" 0 ${end} line)
    string(SUBSTRING "${output}" ${end} -1 output)
    string(APPEND head "${line}")
  endforeach()
  expect("the first lines of capset" "$ capset show sim:dome BasicCapability\n${head}")
endif()

# Every document it links to exists. (Brackets would hide the separators of a CMake list.)
string(REGEX MATCHALL "\\([A-Za-z][A-Za-z0-9_./-]*\\)" links "${readme}")
set(documents 0)
foreach(link IN LISTS links)
  string(REGEX REPLACE "[()]" "" link "${link}")
  if(link MATCHES "\\.|^LICENSE$" AND NOT EXISTS ${SOURCE}/${link})
    message(SEND_ERROR "README.md links to ${link}, which does not exist")
  endif()
  math(EXPR documents "${documents} + 1")
endforeach()
if(documents LESS 5)
  message(SEND_ERROR "found only ${documents} links in README.md; is this check still right?")
endif()

# docs/errors.md has a row for every error number that a header defines.
file(READ ${SOURCE}/docs/errors.md errors)
file(STRINGS ${SOURCE}/Platform/PelNetSDK/PelNetSDK.h named REGEX "^#define NET_ORB_[A-Z_]+ [0-9]+u")
file(STRINGS ${SOURCE}/Platform/PelNetSDK/ErrorNumbers.h more REGEX "^#define NET_ORB_[A-Z_]+ [0-9]+u")
foreach(line IN LISTS named more)
  string(REGEX MATCH "(NET_ORB_[A-Z_]+) ([0-9]+)u" line "${line}")
  string(FIND "${errors}" "| ${CMAKE_MATCH_2} | `${CMAKE_MATCH_1}` |" place)
  if(place EQUAL -1)
    message(SEND_ERROR "docs/errors.md has no row for ${CMAKE_MATCH_1}, ${CMAKE_MATCH_2}")
  endif()
endforeach()
