# Writes palette.h: one colour for each role of assets/skin/palette.txt, so that a role that is
# missing does not compile. Run as a script:
#   cmake -DPALETTE=... -DOUTPUT=... -P skin_palette.cmake
file(STRINGS "${PALETTE}" lines)
set(byte "([0-9a-f][0-9a-f])")
set(colors "")
set(rows "")
foreach(line IN LISTS lines)
    if(NOT line MATCHES "^([a-z_]+) #${byte}${byte}${byte} (.+)$")
        message(FATAL_ERROR "${PALETTE}: not \"name #rrggbb what it is for\": ${line}")
    endif()
    set(name "${CMAKE_MATCH_1}")
    set(color "rgb(0x${CMAKE_MATCH_2}, 0x${CMAKE_MATCH_3}, 0x${CMAKE_MATCH_4})")
    set(purpose "${CMAKE_MATCH_5}")
    string(REPLACE "_" ";" words "${name}")
    set(camel "")
    foreach(word IN LISTS words)
        string(SUBSTRING "${word}" 0 1 first)
        string(SUBSTRING "${word}" 1 -1 rest)
        string(TOUPPER "${first}" first)
        string(APPEND camel "${first}${rest}")
    endforeach()
    string(APPEND colors "// ${purpose}\ninline constexpr Color k${camel} = ${color};\n")
    string(APPEND rows "    {\"${name}\", k${camel}},\n")
endforeach()
set(header "// Written by the build from assets/skin/palette.txt. Do not edit.
#pragma once

#include <string_view>

#include \"platform/color.h\"

namespace ombrelia::palette {

${colors}
// A colour by the name that it has in style sheets.
struct Role {
    std::string_view name;
    Color color;
};

inline constexpr Role kRoles[] = {
${rows}};

}  // namespace ombrelia::palette
")
file(CONFIGURE OUTPUT "${OUTPUT}" CONTENT "${header}" @ONLY)
