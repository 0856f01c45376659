# Checks that each field is read into the member of its name: swapped members would compile.
# SPDX-License-Identifier: Apache-2.0
# Variables: SOURCE (the repository).
cmake_minimum_required(VERSION 3.25)

# Members that are named differently on purpose.
set(others
    PTZPreset:presets PTZPattern:patterns PTZPatrol:patrols PatrolSequenceList:steps
    HardwareCapability:hardware SoftwareCapability:software channelEntry:entries
    485SlotNo:_485SlotNo @min:min @max:max @def:def @opt:opt PortPOEInfo:port
    PortPOEInfoList:ports switch:switchState DaliyList:dailyList ChannelDetectorCapList:channels
    List:ids List:detectors List:zones List:subSystems List:outputs
    stopTrackWhenFindFace:trackEnable "abnormalRate :abnormalRate")

file(GLOB_RECURSE headers ${SOURCE}/Common/*.h)
set(count 0)
foreach(header IN LISTS headers)
  file(READ ${header} text)
  string(REGEX MATCHALL "field\\([ \n]*\"[^\"]+\",[ \n]*r\\.[A-Za-z_0-9]+" fields "${text}")
  foreach(field IN LISTS fields)
    math(EXPR count "${count} + 1")
    string(REGEX REPLACE "^[^\"]*\"([^\"]+)\",[ \n]*r\\.(.*)$" "\\1:\\2" pair "${field}")
    string(TOLOWER "${pair}" pairInOneCase)
    if(NOT pairInOneCase MATCHES "^(.*):(.*)$" OR NOT CMAKE_MATCH_1 STREQUAL CMAKE_MATCH_2)
      if(NOT pair IN_LIST others)
        message(SEND_ERROR "${header}: this field is read into a member of another name: ${pair}")
      endif()
    endif()
  endforeach()
endforeach()
if(count LESS 600)
  message(FATAL_ERROR "found only ${count} fields; has the way they are written changed?")
endif()
