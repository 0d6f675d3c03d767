// The terrain's file: an uncompressed bitmap of 8 bits a pixel in grey, one byte a map point.
#pragma once

#include <cstdint>
#include <string>

namespace ombrelia {

// Writes points 0..mapSize - 1 of HeightMap. A file that is not empty is left alone and result set
// to 1; result is otherwise untouched. Throws FileFailure, with nothing half-written left behind.
void WriteTerrainBitmap(const std::string& fileName, std::int16_t mapSize, std::int16_t& result);

// The 1078 bytes of header and palette for 65, 129, 193 or 257 points a side; another size gets a
// header without the parts that depend on it.
void BuildBitmapHeader(std::string& header, std::int16_t mapSize);

}  // namespace ombrelia
