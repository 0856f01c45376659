# Determines which headers are installed: the public ones and the internal ones that they include.
#
# As a script (cmake -P cmake/PublicHeaders.cmake) it checks them: every internal header that a public
# one includes must be listed here, and none may include libxml2.

cmake_policy(VERSION 3.25)

set(CAPABILITYSET_CATALOG_HEADERS Catalog/Catalog.h Catalog/Nature.h)
set(CAPABILITYSET_PLATFORM_HEADERS
    Platform/CodePage/CodePage.h
    Platform/Keel/CLog.h
    Platform/Keel/CSingleton.h
    Platform/Keel/Encoding.h
    Platform/Keel/Error.h
    Platform/Keel/Export.h
    Platform/Keel/StringUtil.h
    Platform/Keel/TimeUtil.h
    Platform/PelNetSDK/Login.h
    Platform/PelNetSDK/PelNetSDK.h
    Platform/Vsk/OutputDebug.h)

# Internal headers that public headers may include. Each one is a promise to clients.
set(CAPABILITYSET_INSTALLED_INTERNALS)

# capabilityset_public_headers(<root> <result>): sets <result> to paths relative to <root>.
function(capabilityset_public_headers root result)
  file(GLOB_RECURSE pending RELATIVE ${root} ${root}/Common/*.h)
  list(FILTER pending EXCLUDE REGEX "/private/")
  list(APPEND pending ${CAPABILITYSET_CATALOG_HEADERS} ${CAPABILITYSET_PLATFORM_HEADERS})
  set(headers)
  while(pending)
    list(POP_FRONT pending header)
    if(header IN_LIST headers)
      continue()
    endif()
    list(APPEND headers ${header})
    file(STRINGS ${root}/${header} includes REGEX "^[ \t]*#[ \t]*include[ \t]*\"")
    foreach(include IN LISTS includes)
      string(REGEX REPLACE "^[^\"]*\"([^\"]+)\".*" "\\1" include "${include}")
      foreach(directory IN ITEMS Common Platform)
        if(EXISTS ${root}/${directory}/${include})
          list(APPEND pending ${directory}/${include})
        endif()
      endforeach()
      if(include MATCHES "^Catalog/")
        list(APPEND pending ${include})
      endif()
    endforeach()
  endwhile()
  list(SORT headers)
  set(${result} ${headers} PARENT_SCOPE)
endfunction()

# capabilityset_install_headers(<root> <destination>): installs them; called at install time.
function(capabilityset_install_headers root destination)
  capabilityset_public_headers(${root} headers)
  foreach(header IN LISTS headers)
    string(REGEX REPLACE "^(Common|Platform)/" "" installed ${header})
    cmake_path(GET installed PARENT_PATH directory)
    file(INSTALL DESTINATION ${destination}/${directory} TYPE FILE FILES ${root}/${header})
  endforeach()
endfunction()

if(CMAKE_SCRIPT_MODE_FILE STREQUAL CMAKE_CURRENT_LIST_FILE)
  cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH root)
  capabilityset_public_headers(${root} headers)
  set(faults)
  foreach(header IN LISTS headers)
    file(STRINGS ${root}/${header} libxml2 REGEX "#[ \t]*include[ \t]*[<\"]libxml")
    if(libxml2)
      list(APPEND faults "${header} is public and includes libxml2: ${libxml2}")
    endif()
  endforeach()
  set(internals ${headers})
  list(FILTER internals INCLUDE REGEX "/private/")
  list(TRANSFORM internals REPLACE "^Common/CapabilitySet/private/" "")
  foreach(header IN LISTS internals)
    if(NOT header IN_LIST CAPABILITYSET_INSTALLED_INTERNALS)
      list(APPEND faults "a public header includes private/${header}, which would be installed")
    endif()
  endforeach()
  foreach(header IN LISTS CAPABILITYSET_INSTALLED_INTERNALS)
    if(NOT header IN_LIST internals)
      list(APPEND faults "private/${header} is listed, but no public header includes it")
    endif()
  endforeach()
  foreach(fault IN LISTS faults)
    message(SEND_ERROR "${fault}")
  endforeach()
endif()
