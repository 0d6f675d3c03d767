#include "platform/narrow_polygon.h"

// Vectors as x86 names them; a compiler for WebAssembly knows the names too.
#ifdef __SSE2__

#include <emmintrin.h>

namespace ombrelia::raster {

// Takes what would be written to no pixel. Not of this file alone, lest the compiler see that
// nobody reads it.
Pixel pixelOfNobody;

namespace {

void fillColumn(const Ground& ground, std::int32_t x, std::int32_t top, std::int32_t bottom) {
    const std::int32_t first = std::max(top, 0);
    const std::int32_t end = std::min(bottom, ground.height);
    const std::ptrdiff_t width = ground.width;
    std::ptrdiff_t at = first * width + x;
    // Whether there is a first row is as good as chance, so there is no branch for it.
    Pixel* const topmost[] = {&pixelOfNobody, ground.pixels + at};
    *topmost[first < end ? 1 : 0] = ground.color;
    for (std::int32_t y = first + 1; y < end; ++y) {
        at += width;
        ground.pixels[at] = ground.color;
    }
}

// Between four rows the first and the last part.
void fillTwice(const Ground& ground, std::int32_t x, std::array<std::int32_t, 4> rows) {
    sortFew(rows, 4);
    fillColumn(ground, x, rows[0], rows[1]);
    fillColumn(ground, x, rows[2], rows[3]);
}

// The first rows that lie below four edges, column after column, side by side, so that one
// instruction serves all. A centre on an edge belongs to what is on the edge's right. Single
// precision is enough: numerators stay below 2^23, and a quotient, at most 2^14, is off by at most
// 2^-9, less than the 2^-8 that the half in the numerator keeps it from a whole number.
class FourSteepEdges {
  public:
    FourSteepEdges(std::span<const PixelPoint, 4> corners, std::int32_t firstColumn) {
        const __m128 first = _mm_castsi128_ps(load(&corners[0]));
        const __m128 second = _mm_castsi128_ps(load(&corners[2]));
        const __m128 x = numbers(_mm_shuffle_ps(first, second, _MM_SHUFFLE(2, 0, 2, 0)));
        const __m128 y = numbers(_mm_shuffle_ps(first, second, _MM_SHUFFLE(3, 1, 3, 1)));
        const __m128 otherX = next(x);
        const __m128 otherY = next(y);
        const __m128 signedColumns = _mm_sub_ps(otherX, x);
        const __m128 minus = _mm_and_ps(signedColumns, _mm_set1_ps(-0.0F));
        const __m128 fall = _mm_xor_ps(_mm_sub_ps(otherY, y), minus);
        columns_ = _mm_xor_ps(signedColumns, minus);
        column_ = _mm_sub_ps(_mm_set1_ps(static_cast<float>(firstColumn)), _mm_min_ps(x, otherX));
        upper_ = _mm_min_ps(y, otherY);
        growth_ = _mm_add_ps(fall, fall);
        const __m128 twice = _mm_add_ps(columns_, columns_);
        // An edge without columns passes through none; its quotients must only be finite.
        reciprocal_ = _mm_div_ps(ones(), _mm_max_ps(twice, ones()));
        const __m128 lift =
            _mm_sub_ps(_mm_setzero_ps(), _mm_add_ps(_mm_mul_ps(twice, fall), ones()));
        numerator_ = _mm_add_ps(
            _mm_add_ps(_mm_mul_ps(_mm_add_ps(_mm_add_ps(column_, column_), ones()), fall),
                       _mm_add_ps(columns_, _mm_set1_ps(0.5F))),
            _mm_and_ps(lift, _mm_cmplt_ps(fall, _mm_setzero_ps())));
    }

    // Finds which edges pass through the present column, and their rows.
    void look() {
        rows_ = _mm_add_ps(upper_, _mm_cvtepi32_ps(wholesOf(_mm_mul_ps(numerator_, reciprocal_))));
        isHere_ =
            _mm_and_ps(_mm_cmpge_ps(column_, _mm_setzero_ps()), _mm_cmplt_ps(column_, columns_));
    }

    bool areAllHere() const { return _mm_movemask_ps(isHere_) == 15; }

    // The rows of the only two that pass.
    Range outerRows() const {
        const __m128 away = _mm_andnot_ps(isHere_, _mm_set1_ps(1.0e9F));
        const __m128 low = _mm_add_ps(rows_, away);
        const __m128 high = _mm_sub_ps(away, rows_);
        const __m128 halves = _mm_min_ps(_mm_unpacklo_ps(low, high), _mm_unpackhi_ps(low, high));
        const __m128i ends = wholesOf(_mm_min_ps(halves, _mm_movehl_ps(halves, halves)));
        const auto both = static_cast<std::uint64_t>(_mm_cvtsi128_si64(ends));
        return {static_cast<std::int32_t>(both), -static_cast<std::int32_t>(both >> 32U)};
    }

    std::array<std::int32_t, 4> allRows() const {
        std::array<std::int32_t, 4> rows;
        _mm_storeu_si128(reinterpret_cast<__m128i*>(rows.data()), wholesOf(rows_));
        return rows;
    }

    void step() {
        column_ = _mm_add_ps(column_, ones());
        numerator_ = _mm_add_ps(numerator_, growth_);
    }

  private:
    static __m128i load(const PixelPoint* two) {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(two));
    }
    // As the compiler has it: WebAssembly's own way to the instruction takes each number alone.
    static __m128i wholesOf(__m128 numbers) {
        using FourWholes = std::int32_t __attribute__((vector_size(16)));
        return reinterpret_cast<__m128i>(__builtin_convertvector(numbers, FourWholes));
    }
    static __m128 ones() { return _mm_set1_ps(1); }
    static __m128 numbers(__m128 wholes) { return _mm_cvtepi32_ps(_mm_castps_si128(wholes)); }
    static __m128 next(__m128 four) { return _mm_shuffle_ps(four, four, _MM_SHUFFLE(0, 3, 2, 1)); }

    __m128 columns_, column_, upper_, growth_, numerator_, reciprocal_;
    __m128 rows_, isHere_;
};

void fillColumns(std::span<const PixelPoint, 4> corners, const Ground& ground, std::int32_t left,
                 std::int32_t right) {
    const std::int32_t first = std::max(left, 0);
    const std::int32_t end = std::min(right, ground.width);
    FourSteepEdges edges(corners, first);
    for (std::int32_t x = first; x < end; ++x, edges.step()) {
        edges.look();
        if (edges.areAllHere()) {
            fillTwice(ground, x, edges.allRows());
        } else {
            const Range rows = edges.outerRows();
            fillColumn(ground, x, rows.low, rows.high);
        }
    }
}

// A shape of one column: an edge passes half way between its ends, down from there if it falls.
void fillOneColumn(std::span<const PixelPoint, 4> corners, const Ground& ground,
                   std::int32_t left) {
    std::array<std::int32_t, 5> rows;  // one more is written than counts
    std::size_t count = 0;
    PixelPoint before = corners[3];
    for (const PixelPoint& corner : corners) {
        const bool isRise = (before.x == left ? corner.y - before.y : before.y - corner.y) < 0;
        rows[count] = (before.y + corner.y + (isRise ? 0 : 1)) >> 1;
        count += before.x != corner.x ? 1U : 0U;
        before = corner;
    }
    if (count == 4) {
        fillTwice(ground, left, {rows[0], rows[1], rows[2], rows[3]});
    } else {
        const Range pair = sorted(rows[0], rows[1]);
        fillColumn(ground, left, pair.low, pair.high);
    }
}

}  // namespace

bool fillNarrow(std::span<const PixelPoint, 4> corners, const Ground& ground, std::int32_t left,
                std::int32_t right) {
    if (right - left == 1) {
        fillOneColumn(corners, ground, left);
    } else {
        fillColumns(corners, ground, left, right);
    }
    return true;
}

}  // namespace ombrelia::raster

#else

namespace ombrelia::raster {

bool fillNarrow(std::span<const PixelPoint, 4>, const Ground&, std::int32_t, std::int32_t) {
    return false;
}

}  // namespace ombrelia::raster

#endif
