# cmake -DTABLE=<mac-companies.tsv> -DLABELS=<labels.tsv> -DOUTPUT=<file> -P MacCompanyTexts.cmake
# Writes the table of MAC prefixes and labels into a source file as three JSON texts; fails if the
# table's counts are not the expected ones.
cmake_minimum_required(VERSION 3.25)
set(objects 1 2 3)
set(sizes 1812 1784 802)
set(distinctPrefixes 4397)
set(distinctLabels 105)
set(blanks "       ")

macro(increase variable amount)
  if(NOT DEFINED ${variable})
    set(${variable} 0)
  endif()
  math(EXPR ${variable} "${${variable}} + ${amount}")
endmacro()

# expect(<what> <variable with the actual number, 0 if unset> <expected number>)
function(expect what variable wanted)
  increase(${variable} 0)
  if(NOT ${${variable}} EQUAL ${wanted})
    message(FATAL_ERROR "${TABLE}: ${what}: ${${variable}}, expected ${wanted}")
  endif()
endfunction()

# The expected number of prefixes of each label. The names after the counts are free text.
file(STRINGS "${LABELS}" lines)
list(POP_FRONT lines)
set(labels "")
foreach(line IN LISTS lines)
  if(NOT line MATCHES "^([a-z][a-z0-9-]*)\t([0-9]+)\t")
    message(FATAL_ERROR "${LABELS}: \"${line}\" is not a label, a count and names separated by tabs")
  endif()
  list(APPEND labels ${CMAKE_MATCH_1})
  increase(wanted_${CMAKE_MATCH_1} ${CMAKE_MATCH_2})
endforeach()
list(REMOVE_DUPLICATES labels)

# Add each row to the text of its object.
string(REPEAT "[0-9a-f]" 6 prefixForm)
file(STRINGS "${TABLE}" lines)
set(row 0)
foreach(line IN LISTS lines)
  increase(row 1)
  if(NOT line MATCHES "^(${prefixForm})\t([a-z][a-z0-9-]*)\t([123])$")
    message(FATAL_ERROR "${TABLE}, row ${row}: \"${line}\" is not six lower-case hexadecimal digits, "
                        "a lower-case label and a number from 1 to 3 separated by tabs")
  endif()
  set(prefix ${CMAKE_MATCH_1})
  set(label ${CMAKE_MATCH_2})
  set(object ${CMAKE_MATCH_3})
  if(NOT DEFINED wanted_${label})
    message(FATAL_ERROR "${TABLE}, row ${row}: \"${label}\" is not among the labels of ${LABELS}")
  endif()
  if(object IN_LIST objectsOf_${prefix})
    message(FATAL_ERROR "${TABLE}, row ${row}: ${prefix} is already in object ${object}")
  endif()
  # A look-up finds the first label of a prefix.
  if(NOT DEFINED objectsOf_${prefix})
    increase(prefixes 1)
    increase(count_${label} 1)
  endif()
  list(APPEND objectsOf_${prefix} ${object})
  increase(size_${object} 1)
  string(APPEND text_${object} "${separator_${object}}\"${prefix}\" : \"${label}\"")
  set(separator_${object} ",${blanks}")
endforeach()

foreach(object size IN ZIP_LISTS objects sizes)
  expect("members of object ${object}" size_${object} ${size})
endforeach()
expect("distinct prefixes" prefixes ${distinctPrefixes})
list(LENGTH labels labelCount)
expect("distinct labels" labelCount ${distinctLabels})
foreach(label IN LISTS labels)
  expect("prefixes of \"${label}\"" count_${label} ${wanted_${label}})
endforeach()

set(literals "")
foreach(object IN LISTS objects)
  string(APPEND literals "        R\"({${text_${object}}})\",\n")
endforeach()
file(
  WRITE "${OUTPUT}"
  "// The table of MAC prefixes and company labels, generated from its list of rows.
#include \"CapabilitySet/private/MacCompanyTexts.h\"

namespace CapabilitySet
{

std::array<std::string_view, 3> MacCompanyTexts()
{
    return {
${literals}    };
}

}  // namespace CapabilitySet
")
