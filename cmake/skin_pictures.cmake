# Writes skin_pictures.h: one enumerator for each picture of assets/skin, with its size and faces, so
# that a picture that is missing does not compile. Run as a script:
#   cmake -DSKIN_DIR=... -DOUTPUT=... -P skin_pictures.cmake
file(GLOB pictures "${SKIN_DIR}/*.svg")
list(SORT pictures)
set(names "")
set(rows "")
foreach(path IN LISTS pictures)
    get_filename_component(stem "${path}" NAME_WE)
    file(READ "${path}" text LIMIT 2000)
    if(NOT text MATCHES "<svg[^>]* width=\"([0-9]+)\"")
        message(FATAL_ERROR "${path}: no whole width on the root element")
    endif()
    set(width "${CMAKE_MATCH_1}")
    if(NOT text MATCHES "<svg[^>]* height=\"([0-9]+)\"")
        message(FATAL_ERROR "${path}: no whole height on the root element")
    endif()
    set(height "${CMAKE_MATCH_1}")
    if(NOT text MATCHES "<svg[^>]* viewBox=\"0 0 ([0-9]+) ${height}\"")
        message(FATAL_ERROR "${path}: its viewBox is not 0 0 faces*width height")
    endif()
    math(EXPR faces "${CMAKE_MATCH_1} / ${width}")
    string(REPLACE "_" ";" words "${stem}")
    set(camel "")
    foreach(word IN LISTS words)
        string(SUBSTRING "${word}" 0 1 first)
        string(SUBSTRING "${word}" 1 -1 rest)
        string(TOUPPER "${first}" first)
        string(APPEND camel "${first}${rest}")
    endforeach()
    string(APPEND names "    ${camel},\n")
    string(APPEND rows "    {\"${stem}\", ${width}, ${height}, ${faces}},\n")
endforeach()
set(header "// Written by the build from assets/skin. Do not edit.
#pragma once

#include <cstddef>

namespace ombrelia {

// The stored pictures of the skin.
enum class Picture {
    None,
${names}    Count
};

// Name of the file, size of one face in units, number of faces.
struct PictureInfo {
    const char* name;
    int width;
    int height;
    int faces;
};

inline constexpr PictureInfo kPictureInfos[] = {
    {\"\", 0, 0, 0},
${rows}};

constexpr const PictureInfo& pictureInfo(Picture picture) {
    return kPictureInfos[static_cast<std::size_t>(picture)];
}

}  // namespace ombrelia
")
file(CONFIGURE OUTPUT "${OUTPUT}" CONTENT "${header}" @ONLY)
