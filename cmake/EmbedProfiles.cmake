# embed_profiles(<folder of profile folders> <variable>)
# Sets <variable> to generated sources that contain every profile folder below <folder>. They are
# regenerated when a file, the set of files or the set of profiles changes.
set(EMBED_PROFILES_DIR ${CMAKE_CURRENT_LIST_DIR})

function(embed_profiles folder variable)
  file(GLOB manifests CONFIGURE_DEPENDS RELATIVE "${folder}" "${folder}/*/manifest.json")
  list(SORT manifests)
  set(sources "")
  set(declarations "")
  set(addresses "")
  set(count 0)
  foreach(manifest IN LISTS manifests)
    get_filename_component(name "${manifest}" DIRECTORY)
    string(MAKE_C_IDENTIFIER "kProfile_${name}" symbol)
    file(GLOB_RECURSE files CONFIGURE_DEPENDS "${folder}/${name}/*")
    set(source "${CMAKE_CURRENT_BINARY_DIR}/profiles/${name}.cpp")
    # The list of files is a dependency too, so that removed files disappear.
    set(fileList "${CMAKE_CURRENT_BINARY_DIR}/profiles/${name}.files")
    file(CONFIGURE OUTPUT "${fileList}" CONTENT "${files}\n" @ONLY)
    add_custom_command(
      OUTPUT "${source}"
      COMMAND "${CMAKE_COMMAND}" "-DFOLDER=${folder}/${name}" "-DNAME=${name}" "-DSYMBOL=${symbol}"
              "-DOUTPUT=${source}" -P "${EMBED_PROFILES_DIR}/EmbedProfile.cmake"
      DEPENDS ${files} "${fileList}" "${EMBED_PROFILES_DIR}/EmbedProfile.cmake"
      COMMENT "Embedding the profile ${name}"
      VERBATIM)
    list(APPEND sources "${source}")
    string(APPEND declarations "extern const EmbeddedProfile ${symbol};\n")
    string(APPEND addresses "&${symbol}, ")
    math(EXPR count "${count} + 1")
  endforeach()
  configure_file("${EMBED_PROFILES_DIR}/EmbeddedProfiles.cpp.in" EmbeddedProfiles.cpp @ONLY)
  list(APPEND sources "${CMAKE_CURRENT_BINARY_DIR}/EmbeddedProfiles.cpp")
  set(${variable} ${sources} PARENT_SCOPE)
endfunction()
