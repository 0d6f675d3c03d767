// What the editor saves, and what its dialogs offer to open.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "files/bitmap_export.h"

namespace ombrelia {

// A kind of files as a dialog offers it.
struct FileFormat {
    const char* name;
    const char* suffix;  // small letters, with the dot

    // Writes the map; result as for WriteTerrainBitmap. None where files are read alone.
    void (*write)(const std::string& fileName, std::int16_t mapSize, std::int16_t& result);
};

inline constexpr FileFormat kSavedFormats[] = {
    {"Terrain Files", ".bmp", WriteTerrainBitmap},
};

// Only offered: what a file holds tells what it is (platform/picture_kinds_table.h).
inline constexpr FileFormat kOpenedFormats[] = {
    {"Image Files", ".bmp", nullptr},
};

// The formats and then all files, as dialogs take it: "Name (*.bmp)|*.bmp|All Files (*.*)|*.*".
std::string dialogFilter(std::span<const FileFormat> formats);

// The format whose suffix the name has, in letters of any case; the first for every other name.
const FileFormat& formatOfName(std::span<const FileFormat> formats, const std::string& fileName);

}  // namespace ombrelia
