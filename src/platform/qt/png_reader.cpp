#include "platform/qt/png_reader.h"

#include <QColor>
#include <QRgba64>
#include <array>
#include <csetjmp>
#include <cstring>
#include <exception>
#include <optional>
#include <png.h>
#include <vector>

#include "platform/byte_source.h"
#include "platform/exif_orientation.h"
#include "platform/failure.h"
#include "platform/messages.h"
#include "platform/picture_sink.h"
#include "platform/surface.h"

namespace ombrelia {

namespace {

constexpr std::size_t kSignatureBytes = 8;
constexpr int kPasses = 7;  // of an interlaced picture

// Chunks that say nothing about heights and can be large.
constexpr const char kSkipped[] = "iCCP\0sPLT\0tEXt\0zTXt\0iTXt\0hIST";
constexpr int kSkippedCount = 6;

std::uint16_t sixteenBits(const std::uint8_t* bytes) {
    return static_cast<std::uint16_t>(bytes[0] << 8U | bytes[1]);
}

Pixel overBlack(Pixel pixel) {
    return qPremultiply(pixel) | 0xFF000000U;
}

// The library leaves a step by a jump over its own frames, so a step has nothing to destroy.
class PngReader {
  public:
    PngReader(ByteSource& source, PictureWish& wish, Surface& picture)
        : path_(source.path()), bytes_(source, 0), wish_(wish), picture_(picture) {
        png_ = png_create_read_struct(PNG_LIBPNG_VER_STRING, this, fail, ignore);
        info_ = png_ == nullptr ? nullptr : png_create_info_struct(png_);
        if (info_ == nullptr) {
            png_destroy_read_struct(&png_, nullptr, nullptr);
            throw PictureFailure(path_, messages::kNoMemory);
        }
    }
    ~PngReader() { png_destroy_read_struct(&png_, &info_, nullptr); }
    PngReader(const PngReader&) = delete;
    PngReader& operator=(const PngReader&) = delete;

    void read() {
        step(&PngReader::readHead);
        width_ = png_get_image_width(png_, info_);
        height_ = png_get_image_height(png_, info_);
        sink_.emplace(path_, width_, height_, wish_, picture_, turn());
        step(&PngReader::prepareRows);
        row_.resize(png_get_rowbytes(png_, info_));
        pixels_.resize(width_);
        step(&PngReader::readRows);
        picture_.changed();
    }

  private:
    void step(void (PngReader::*work)()) {
        if (setjmp(png_jmpbuf(png_)) == 0) {
            (this->*work)();
        } else if (thrown_) {
            std::rethrow_exception(thrown_);
        } else {
            throw PictureFailure(path_, messages::damagedPicture(reason_.data()));
        }
    }

    static void fail(png_structp png, png_const_charp reason) {
        auto* reader = static_cast<PngReader*>(png_get_error_ptr(png));
        std::strncpy(reader->reason_.data(), reason, reader->reason_.size() - 1);
        png_longjmp(png, 1);
    }
    static void ignore(png_structp /*png*/, png_const_charp /*warning*/) {}

    static void fetch(png_structp png, png_bytep into, std::size_t count) {
        auto* reader = static_cast<PngReader*>(png_get_io_ptr(png));
        try {
            reader->bytes_.fill({into, count});
        } catch (...) {
            reader->thrown_ = std::current_exception();
        }
        if (reader->thrown_) {
            png_error(png, "");
        }
    }

    void readHead() {
        png_set_read_fn(png_, this, fetch);
        // Sizes are checked where those of all kinds are.
        png_set_user_limits(png_, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
        png_set_keep_unknown_chunks(png_, PNG_HANDLE_CHUNK_NEVER,
                                    reinterpret_cast<png_const_bytep>(kSkipped), kSkippedCount);
        png_read_info(png_, info_);
    }

    PictureTurn turn() {
        png_bytep notes = nullptr;
        png_uint_32 count = 0;
        const bool has = png_get_eXIf_1(png_, info_, &count, &notes) != 0;
        return has ? exifTurn({notes, count}) : PictureTurn{};
    }

    // Rows are of eight bits and three or four components, or of sixteen and one, three or four.
    void prepareRows() {
        png_set_expand(png_);
        const bool isGrey = png_get_color_type(png_, info_) == PNG_COLOR_TYPE_GRAY;
        const bool hasClearGrey = png_get_valid(png_, info_, PNG_INFO_tRNS) != 0;
        if (png_get_bit_depth(png_, info_) < 16 || !isGrey || hasClearGrey) {
            png_set_gray_to_rgb(png_);
        }
        png_read_update_info(png_, info_);
        isDeep_ = png_get_bit_depth(png_, info_) == 16;
        components_ = png_get_channels(png_, info_);
    }

    void readRows() {
        const bool isInterlaced = png_get_interlace_type(png_, info_) != PNG_INTERLACE_NONE;
        for (int pass = 0; pass < (isInterlaced ? kPasses : 1); ++pass) {
            isInterlaced ? readPass(pass) : readAllRows();
        }
        png_read_end(png_, nullptr);
    }

    void readAllRows() {
        for (png_uint_32 y = 0; y < height_; ++y) {
            png_read_row(png_, row_.data(), nullptr);
            if (sink_->keepsRow(static_cast<int>(y))) {
                decode(width_);
                sink_->putRow(static_cast<int>(y), pixels_.data());
            }
        }
    }

    // The pixels of a pass stand side by side in its rows.
    void readPass(int pass) {
        const png_uint_32 columns = PNG_PASS_COLS(width_, pass);
        const png_uint_32 rows = columns == 0 ? 0 : PNG_PASS_ROWS(height_, pass);
        for (png_uint_32 row = 0; row < rows; ++row) {
            png_read_row(png_, row_.data(), nullptr);
            const auto y = static_cast<int>(PNG_ROW_FROM_PASS_ROW(row, pass));
            if (!sink_->keepsRow(y)) {
                continue;
            }
            decode(columns);
            for (png_uint_32 column = 0; column < columns; ++column) {
                const auto x = static_cast<int>(PNG_COL_FROM_PASS_COL(column, pass));
                sink_->putPixel(x, y, pixels_[column]);
            }
        }
    }

    void decode(png_uint_32 count) {
        const std::uint8_t* from = row_.data();
        const int step = components_ * (isDeep_ ? 2 : 1);
        for (png_uint_32 x = 0; x < count; ++x, from += step) {
            pixels_[x] = isDeep_ ? deepPixel(from) : plainPixel(from);
        }
    }

    Pixel plainPixel(const std::uint8_t* from) const {
        const Pixel pixel = qRgba(from[0], from[1], from[2], components_ == 4 ? from[3] : 255);
        return components_ == 4 ? overBlack(pixel) : pixel;
    }

    Pixel deepPixel(const std::uint8_t* from) const {
        if (components_ == 1) {
            return qRgb(from[0], from[0], from[0]);
        }
        const std::uint16_t alpha = components_ == 4 ? sixteenBits(from + 6) : 0xFFFF;
        const QRgba64 color = QRgba64::fromRgba64(sixteenBits(from), sixteenBits(from + 2),
                                                  sixteenBits(from + 4), alpha);
        return color.premultiplied().toArgb32() | 0xFF000000U;
    }

    std::string path_;
    ByteStream bytes_;
    PictureWish& wish_;
    Surface& picture_;
    png_structp png_ = nullptr;
    png_infop info_ = nullptr;
    png_uint_32 width_ = 0;
    png_uint_32 height_ = 0;
    std::optional<PictureSink> sink_;
    bool isDeep_ = false;
    int components_ = 0;
    std::vector<std::uint8_t> row_;
    std::vector<Pixel> pixels_;
    std::array<char, 128> reason_{};
    std::exception_ptr thrown_;
};

}  // namespace

bool isPng(ByteSource& source) {
    std::array<std::uint8_t, kSignatureBytes> begin{};
    if (source.size() < begin.size()) {
        return false;
    }
    source.read(0, begin);
    return png_sig_cmp(begin.data(), 0, begin.size()) == 0;
}

void readPng(ByteSource& source, PictureWish& wish, Surface& picture) {
    PngReader(source, wish, picture).read();
}

}  // namespace ombrelia
