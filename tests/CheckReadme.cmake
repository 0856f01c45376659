# Compares what README.md and docs/errors.md say with the sources and programs they were taken from.
# Variables: SOURCE (the repository), FIRST_QUERY and CAPSET (the programs; CAPSET may be empty).
cmake_minimum_required(VERSION 3.25)

file(READ ${SOURCE}/README.md readme)

# expect(<what> <text>): the text must stand in README.md.
function(expect what text)
  string(FIND "${readme}" "${text}" place)
  if(place EQUAL -1)
    message(SEND_ERROR "README.md does not show ${what} as it is now:\n${text}")
  endif()
endfunction()

# Its example is the marked part of the compiled one.
file(READ ${SOURCE}/examples/first_query.cpp example)
string(REGEX MATCH "// \\[client\\]\n(.*)// \\[client\\]" marked "${example}")
if(NOT marked)
  message(FATAL_ERROR "examples/first_query.cpp has no part marked [client]")
endif()
expect("examples/first_query.cpp" "```cpp\n${CMAKE_MATCH_1}```")

# What the programs print is what it says they print.
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

# Every document it points to is there. (Brackets would hide the separators of a CMake list.)
string(REGEX MATCHALL "\\([A-Za-z][A-Za-z0-9_./-]*\\)" links "${readme}")
set(documents 0)
foreach(link IN LISTS links)
  string(REGEX REPLACE "[()]" "" link "${link}")
  if(link MATCHES "\\.|^LICENSE$" AND NOT EXISTS ${SOURCE}/${link})
    message(SEND_ERROR "README.md points to ${link}, which is not there")
  endif()
  math(EXPR documents "${documents} + 1")
endforeach()
if(documents LESS 5)
  message(SEND_ERROR "README.md seems to point to no documents: is this check still right?")
endif()

# Every error number that a header names has its row in docs/errors.md.
file(READ ${SOURCE}/docs/errors.md errors)
file(STRINGS ${SOURCE}/Platform/PelNetSDK/PelNetSDK.h named REGEX "^#define NET_ORB_[A-Z_]+ [0-9]+u")
file(STRINGS ${SOURCE}/Platform/PelNetSDK/Login.h more REGEX "^#define NET_ORB_[A-Z_]+ [0-9]+u")
foreach(line IN LISTS named more)
  string(REGEX MATCH "(NET_ORB_[A-Z_]+) ([0-9]+)u" line "${line}")
  string(FIND "${errors}" "| ${CMAKE_MATCH_2} | `${CMAKE_MATCH_1}` |" place)
  if(place EQUAL -1)
    message(SEND_ERROR "docs/errors.md has no row for ${CMAKE_MATCH_1}, ${CMAKE_MATCH_2}")
  endif()
endforeach()
