#include "views/map2d/cell_row.h"

#include <algorithm>
#include <cstring>

#include "platform/wide_vectors.h"

#if OMBRELIA_HAS_WIDE
#include <immintrin.h>
#endif

namespace ombrelia {

namespace {

OMBRELIA_IN_BOTH bool areAllInRange(const std::int16_t* heights, std::size_t cells) {
    unsigned short outside = 0;
    for (std::size_t x = 0; x < cells; ++x) {
        outside = static_cast<unsigned short>(outside | static_cast<unsigned short>(heights[x]));
    }
    return outside <= 0xFF;
}

OMBRELIA_IN_BOTH void paintAll(const CellRow& row, const Pixel* __restrict colors) {
    const std::int16_t* __restrict heights = row.heights;
    const std::int16_t* __restrict shadows = row.shadows;
    Pixel* __restrict pixels = row.pixels;
    for (std::size_t x = 0; x < row.columns; ++x) {
        const Pixel pixel = colors[static_cast<std::uint8_t>(heights[x])];
        pixels[x] = shadows[x] == heights[x] ? pixels[x] : pixel;
    }
    std::copy_n(heights, row.cells, row.shadows);
}

OMBRELIA_WIDE bool isInRangeWide(const CellRow& row) {
    return areAllInRange(row.heights, row.cells);
}

OMBRELIA_WIDE void paintWide(const CellRow& row, const Pixel* colors) {
    paintAll(row, colors);
}

#if OMBRELIA_HAS_WIDE

constexpr std::size_t kBlock = 64;  // cells whose colours are looked up at once

// Where the heights of a block are taken from, low byte of two, so that their colours' bytes,
// interleaved within lanes of 16, are pixels in order: lane n of vector q holds those from
// 16q + 4n on.
constexpr std::array<std::uint8_t, kBlock> interleavedOrder() {
    std::array<std::uint8_t, kBlock> order{};
    for (std::size_t n = 0; n < kBlock; ++n) {
        const std::size_t lane = n / 16;
        const std::size_t quarter = n % 16 / 4;
        const std::size_t cell = 16 * quarter + 4 * lane + n % 4;
        order[n] = static_cast<std::uint8_t>(2 * cell);
    }
    return order;
}

// A table of 256 bytes in four vectors.
class ByteTable {
  public:
    OMBRELIA_BYTE_TABLES explicit ByteTable(const std::array<std::uint8_t, 256>& bytes)
        : first_(_mm512_loadu_si512(bytes.data())),
          second_(_mm512_loadu_si512(bytes.data() + 64)),
          third_(_mm512_loadu_si512(bytes.data() + 128)),
          fourth_(_mm512_loadu_si512(bytes.data() + 192)) {}

    OMBRELIA_BYTE_TABLES __m512i at(__m512i places) const {
        const __m512i low = _mm512_permutex2var_epi8(first_, places, second_);
        const __m512i high = _mm512_permutex2var_epi8(third_, places, fourth_);
        return _mm512_mask_blend_epi8(_mm512_movepi8_mask(places), low, high);
    }

  private:
    __m512i first_, second_, third_, fourth_;
};

// Looks the three colour components of 64 heights up and puts them together.
class TablePainter {
  public:
    OMBRELIA_BYTE_TABLES explicit TablePainter(const CellColors& colors)
        : blue_(colors.blue), green_(colors.green), red_(colors.red) {}

    // Paints those of the next 64 cells whose bit is set; their heights in two halves.
    OMBRELIA_BYTE_TABLES void paint(__m512i low, __m512i high, std::uint64_t cells,
                                    Pixel* pixels) const {
        const __m512i heights =
            _mm512_permutex2var_epi8(low, _mm512_loadu_si512(kOrder.data()), high);
        const __m512i blue = blue_.at(heights);
        const __m512i green = green_.at(heights);
        const __m512i red = red_.at(heights);
        const __m512i opaque = _mm512_set1_epi8(-1);
        const __m512i lowHalf = _mm512_unpacklo_epi8(blue, green);
        const __m512i lowRest = _mm512_unpacklo_epi8(red, opaque);
        const __m512i highHalf = _mm512_unpackhi_epi8(blue, green);
        const __m512i highRest = _mm512_unpackhi_epi8(red, opaque);
        store(pixels, cells, 0, _mm512_unpacklo_epi16(lowHalf, lowRest));
        store(pixels, cells, 1, _mm512_unpackhi_epi16(lowHalf, lowRest));
        store(pixels, cells, 2, _mm512_unpacklo_epi16(highHalf, highRest));
        store(pixels, cells, 3, _mm512_unpackhi_epi16(highHalf, highRest));
    }

  private:
    OMBRELIA_BYTE_TABLES static void store(Pixel* pixels, std::uint64_t cells, unsigned quarter,
                                           __m512i values) {
        _mm512_mask_storeu_epi32(pixels + 16 * quarter,
                                 static_cast<__mmask16>(cells >> (16 * quarter)), values);
    }

    static constexpr auto kOrder = interleavedOrder();

    ByteTable blue_, green_, red_;
};

// The lowest count bits, at most all.
constexpr std::uint64_t firstBits(std::size_t count) {
    return count >= 64 ? ~std::uint64_t{0} : (std::uint64_t{1} << count) - 1;
}

OMBRELIA_BYTE_TABLES void paintByTables(const CellRow& row, const CellColors& colors) {
    const TablePainter painter(colors);
    for (std::size_t x = 0; x < row.cells; x += kBlock) {
        const std::uint64_t there = firstBits(row.cells - x);
        const auto thereLow = static_cast<__mmask32>(there);
        const auto thereHigh = static_cast<__mmask32>(there >> 32U);
        std::int16_t* shadows = row.shadows + x;
        const __m512i low = _mm512_maskz_loadu_epi16(thereLow, row.heights + x);
        const __m512i high = _mm512_maskz_loadu_epi16(thereHigh, row.heights + x + 32);
        const std::uint64_t dirtyLow = _mm512_mask_cmpneq_epi16_mask(
            thereLow, low, _mm512_maskz_loadu_epi16(thereLow, shadows));
        const std::uint64_t dirtyHigh = _mm512_mask_cmpneq_epi16_mask(
            thereHigh, high, _mm512_maskz_loadu_epi16(thereHigh, shadows + 32));
        _mm512_mask_storeu_epi16(shadows, thereLow, low);
        _mm512_mask_storeu_epi16(shadows + 32, thereHigh, high);
        if (x < row.columns) {
            const std::uint64_t dirty = dirtyLow | dirtyHigh << 32U;
            painter.paint(low, high, dirty & firstBits(row.columns - x), row.pixels + x);
        }
    }
}

#else

void paintByTables(const CellRow& row, const CellColors& colors) {
    paintAll(row, colors.whole);
}

#endif

}  // namespace

bool isDirty(const CellRow& row) {
    return std::memcmp(row.heights, row.shadows, row.cells * sizeof(std::int16_t)) != 0;
}

bool isInRange(const CellRow& row) {
    return hasWideVectors() ? isInRangeWide(row) : areAllInRange(row.heights, row.cells);
}

CellColors::CellColors(const Pixel* pixels) : whole(pixels) {
    for (std::size_t height = 0; height < blue.size(); ++height) {
        blue[height] = static_cast<std::uint8_t>(pixels[height]);
        green[height] = static_cast<std::uint8_t>(pixels[height] >> 8U);
        red[height] = static_cast<std::uint8_t>(pixels[height] >> 16U);
    }
}

void paintCells(const CellRow& row, const CellColors& colors) {
    if (hasByteTables()) {
        paintByTables(row, colors);
    } else if (hasWideVectors()) {
        paintWide(row, colors.whole);
    } else {
        paintAll(row, colors.whole);
    }
}

}  // namespace ombrelia
