# Damages the table of MAC prefixes; the generator must fail and say what is wrong.
# Variables: SOURCE (the repository), WORK (a folder to write to).
cmake_minimum_required(VERSION 3.25)
file(READ ${SOURCE}/data/mac/mac-companies.tsv table)
file(READ ${SOURCE}/data/mac/labels.tsv labels)

# run(<name>): runs the generator; sets <result> and <messages>.
function(run name)
  file(WRITE ${WORK}/table.tsv "${table}")
  file(WRITE ${WORK}/labels.tsv "${labels}")
  execute_process(
    COMMAND ${CMAKE_COMMAND} -DTABLE=${WORK}/table.tsv -DLABELS=${WORK}/labels.tsv
            -DOUTPUT=${WORK}/texts.cpp -P ${SOURCE}/cmake/MacCompanyTexts.cmake
    RESULT_VARIABLE result
    ERROR_VARIABLE messages)
  string(REGEX REPLACE "[ \n]+" " " messages "${messages}")
  set(result ${result} PARENT_SCOPE)
  set(messages "${messages}" PARENT_SCOPE)
endfunction()

# rejects(<text> <replacement> <message>): replaces the first occurrence in the table, which must then
# be rejected with the message.
function(rejects found replacement message)
  string(FIND "${table}" "${found}" place)
  if(place EQUAL -1)
    message(SEND_ERROR "the table has no \"${found}\" to damage")
  endif()
  string(LENGTH "${found}" length)
  string(SUBSTRING "${table}" 0 ${place} before)
  math(EXPR rest "${place} + ${length}")
  string(SUBSTRING "${table}" ${rest} -1 after)
  set(table "${before}${replacement}${after}")
  run(table)
  string(FIND "${messages}" "${message}" at)
  if(result EQUAL 0 OR at EQUAL -1)
    message(SEND_ERROR "with \"${replacement}\" in place of \"${found}\" the generator should say "
                       "\"${message}\", but ended with ${result}: ${messages}")
  endif()
endfunction()

run(table)
if(NOT result EQUAL 0)
  message(SEND_ERROR "the intact table is rejected: ${messages}")
endif()
rejects("a4e31b\tnokia\t1\n" "" "members of object 1: 1811, expected 1812")
rejects("a4e31b\tnokia\t1" "a4e31b\tnokia\t2" "members of object 1: 1811, expected 1812")
rejects("a4e31b\t" "405582\t" "row 2: 405582 is already in object 1")
rejects("a4e31b\tnokia" "a4e31b\tzte" "prefixes of \"nokia\": 269, expected 270")
rejects("a4e31b\tnokia" "a4e31b\tnokya" "row 2: \"nokya\" is not among the labels")
rejects("a4e31b" "A4E31B" "row 2: \"A4E31B\tnokia\t1\" is not six lower-case hexadecimal digits")
rejects("a4e31b" "a4:e3:1b" "is not six lower-case hexadecimal digits")
rejects("a4e31b\tnokia" "a4e31b\tNokia" "is not six lower-case hexadecimal digits")
rejects("a4e31b\tnokia\t1" "a4e31b\tnokia\t4" "is not six lower-case hexadecimal digits")
rejects("b8b42e\tgionee\t3" "b8b42f\tgionee\t3" "distinct prefixes: 4398, expected 4397")
string(APPEND labels "other\t0\tnobody\n")
rejects("405582" "405582" "distinct labels: 106, expected 105")
