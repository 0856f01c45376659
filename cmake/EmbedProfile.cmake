# cmake -DFOLDER=<profile folder> -DNAME=<name> -DSYMBOL=<C++ name> -DOUTPUT=<file> -P EmbedProfile.cmake
# Writes a source file that contains every file of a profile folder.
cmake_minimum_required(VERSION 3.25)
set(pieceBytes 8192)
math(EXPR pieceDigits "2 * ${pieceBytes}")

file(GLOB_RECURSE files RELATIVE "${FOLDER}" "${FOLDER}/*")
list(SORT files)
set(contents "")
set(entries "")
set(number 0)
foreach(file IN LISTS files)
  file(READ "${FOLDER}/${file}" digits HEX)
  string(LENGTH "${digits}" length)
  string(APPEND contents "constexpr std::string_view kFile${number}[] = {\n")
  set(position 0)
  while(TRUE)
    string(SUBSTRING "${digits}" ${position} ${pieceDigits} piece)
    string(LENGTH "${piece}" pieceLength)
    math(EXPR bytes "${pieceLength} / 2")
    # Escape every byte, so that no character ends the literal and no digit extends an escape.
    string(REGEX REPLACE "(..)" "\\\\x\\1" piece "${piece}")
    string(APPEND contents "    {\"${piece}\", ${bytes}},\n")
    math(EXPR position "${position} + ${pieceDigits}")
    if(position GREATER_EQUAL length)
      break()
    endif()
  endwhile()
  string(APPEND contents "};\n")
  string(APPEND entries "    {\"${file}\", kFile${number}},\n")
  math(EXPR number "${number} + 1")
endforeach()

file(
  WRITE "${OUTPUT}"
  "// The files of the profile \"${NAME}\", generated from its folder.
#include \"Device/manifest/EmbeddedProfiles.h\"

namespace Device
{
namespace
{
${contents}constexpr EmbeddedFile kFiles[] = {
${entries}};
}  // namespace

extern const EmbeddedProfile ${SYMBOL};
constinit const EmbeddedProfile ${SYMBOL}{\"${NAME}\", kFiles};
}  // namespace Device
")
