# A damaged table of MAC prefixes must stop the build with a message that says what is wrong.
# Variables: SOURCE (the repository), WORK (a folder to write to).
cmake_minimum_required(VERSION 3.25)
file(READ ${SOURCE}/data/mac/mac-companies.tsv table)
file(READ ${SOURCE}/data/mac/labels.tsv labels)

# run(<name>): sets <result> and <messages> of the generator.
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

# refuses(<found> <put in its place> <message>): in the table; once, where it stands first.
function(refuses found replacement message)
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
  string(FIND "${messages}" "${message}" told)
  if(result EQUAL 0 OR told EQUAL -1)
    message(SEND_ERROR "\"${replacement}\" in place of \"${found}\" gives not \"${message}\" but "
                       "${result}: ${messages}")
  endif()
endfunction()

run(table)
if(NOT result EQUAL 0)
  message(SEND_ERROR "the table itself is refused: ${messages}")
endif()
refuses("a4e31b\tnokia\t1\n" "" "members of object 1: 1811 instead of 1812")
refuses("a4e31b\tnokia\t1" "a4e31b\tnokia\t2" "members of object 1: 1811 instead of 1812")
refuses("a4e31b\t" "405582\t" "row 2: 405582 stands in object 1 already")
refuses("a4e31b\tnokia" "a4e31b\tzte" "prefixes of \"nokia\": 269 instead of 270")
refuses("a4e31b\tnokia" "a4e31b\tnokya" "row 2: \"nokya\" is not among the labels")
refuses("a4e31b" "A4E31B" "row 2: \"A4E31B\tnokia\t1\" is not six lower-case hexadecimal digits")
refuses("a4e31b" "a4:e3:1b" "is not six lower-case hexadecimal digits")
refuses("a4e31b\tnokia" "a4e31b\tNokia" "is not six lower-case hexadecimal digits")
refuses("a4e31b\tnokia\t1" "a4e31b\tnokia\t4" "is not six lower-case hexadecimal digits")
refuses("b8b42e\tgionee\t3" "b8b42f\tgionee\t3" "distinct prefixes: 4398 instead of 4397")
string(APPEND labels "other\t0\tnobody\n")
refuses("405582" "405582" "distinct labels: 106 instead of 105")
