#include "platform/qt/jpeg_reader.h"

#include <QColor>
#include <array>
#include <csetjmp>
#include <cstdio>  // before jpeglib.h, which needs it
#include <exception>
#include <jpeglib.h>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/byte_source.h"
#include "platform/exif_orientation.h"
#include "platform/failure.h"
#include "platform/messages.h"
#include "platform/picture_sink.h"
#include "platform/surface.h"

namespace ombrelia {

namespace {

constexpr int kNotesMarker = JPEG_APP0 + 1;
constexpr std::string_view kNotesBegin("Exif\0\0", 6);

// Bytes of a picture whose scans have to be gathered before its first row is known.
constexpr std::uint64_t kMostGathered = std::uint64_t{144} << 20U;

std::uint64_t gatheredBytes(const jpeg_decompress_struct& jpeg) {
    constexpr std::uint64_t kBlockBytes = sizeof(JBLOCK);
    std::uint64_t blocks = 0;
    for (int i = 0; i < jpeg.num_components; ++i) {
        const jpeg_component_info& component = jpeg.comp_info[i];
        blocks += std::uint64_t{component.width_in_blocks} * component.height_in_blocks;
    }
    return blocks * kBlockBytes;
}

// The library leaves a step by a jump over its own frames, so a step has nothing to destroy.
class JpegReader {
  public:
    JpegReader(ByteSource& source, PictureWish& wish, Surface& picture)
        : path_(source.path()), bytes_(source, 0), wish_(wish), picture_(picture) {
        jpeg_.err = jpeg_std_error(&errors_);
        jpeg_.client_data = this;
        errors_.error_exit = fail;
        errors_.emit_message = notice;
        errors_.output_message = [](j_common_ptr) {};
        input_.init_source = [](j_decompress_ptr) {};
        input_.fill_input_buffer = fetch;
        input_.skip_input_data = skip;
        input_.resync_to_restart = jpeg_resync_to_restart;
        input_.term_source = [](j_decompress_ptr) {};
    }
    ~JpegReader() { jpeg_destroy_decompress(&jpeg_); }
    JpegReader(const JpegReader&) = delete;
    JpegReader& operator=(const JpegReader&) = delete;

    void read() {
        step(&JpegReader::readHead);
        if (jpeg_has_multiple_scans(&jpeg_) != 0 && gatheredBytes(jpeg_) > kMostGathered) {
            throw PictureFailure(path_,
                                 messages::pictureTooLarge(jpeg_.image_width, jpeg_.image_height));
        }
        sink_.emplace(path_, jpeg_.image_width, jpeg_.image_height, wish_, picture_, turn());
        step(&JpegReader::begin);
        row_.resize(std::size_t{jpeg_.output_width} *
                    static_cast<std::size_t>(jpeg_.output_components));
        pixels_.resize(jpeg_.output_width);
        step(&JpegReader::readRows);
        picture_.changed();
    }

  private:
    void step(void (JpegReader::*work)()) {
        if (setjmp(jump_) == 0) {
            (this->*work)();
        } else if (thrown_) {
            std::rethrow_exception(thrown_);
        } else {
            std::array<char, JMSG_LENGTH_MAX> reason{};
            errors_.format_message(reinterpret_cast<j_common_ptr>(&jpeg_), reason.data());
            throw PictureFailure(path_, messages::damagedPicture(reason.data()));
        }
    }

    static JpegReader& readerOf(void* client) { return *static_cast<JpegReader*>(client); }
    [[noreturn]] static void fail(j_common_ptr jpeg) {
        std::longjmp(readerOf(jpeg->client_data).jump_, 1);
    }
    static void notice(j_common_ptr /*jpeg*/, int /*level*/) {}

    static boolean fetch(j_decompress_ptr jpeg) {
        JpegReader& reader = readerOf(jpeg->client_data);
        std::span<const std::uint8_t> chunk;
        try {
            chunk = reader.bytes_.takeChunk();
            if (chunk.empty()) {
                throw PictureFailure(reader.path_, messages::kCutOff);
            }
        } catch (...) {
            reader.thrown_ = std::current_exception();
        }
        if (reader.thrown_) {
            fail(reinterpret_cast<j_common_ptr>(jpeg));
        }
        reader.input_.next_input_byte = chunk.data();
        reader.input_.bytes_in_buffer = chunk.size();
        return TRUE;
    }

    static void skip(j_decompress_ptr jpeg, long count) {
        jpeg_source_mgr& input = *jpeg->src;
        while (count > static_cast<long>(input.bytes_in_buffer)) {
            count -= static_cast<long>(input.bytes_in_buffer);
            fetch(jpeg);
        }
        if (count > 0) {
            input.next_input_byte += count;
            input.bytes_in_buffer -= static_cast<std::size_t>(count);
        }
    }

    void readHead() {
        constexpr unsigned kWholeMarker = 0xFFFF;
        jpeg_create_decompress(&jpeg_);
        jpeg_.src = &input_;
        jpeg_save_markers(&jpeg_, kNotesMarker, kWholeMarker);
        jpeg_read_header(&jpeg_, TRUE);
    }

    PictureTurn turn() const {
        for (auto* marker = jpeg_.marker_list; marker != nullptr; marker = marker->next) {
            const std::span<const std::uint8_t> bytes(marker->data, marker->data_length);
            const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
            if (text.starts_with(kNotesBegin)) {
                return exifTurn(bytes.subspan(kNotesBegin.size()));
            }
        }
        return {};
    }

    // Rows have one, three or four components.
    void begin() {
        const bool isGrey = jpeg_.jpeg_color_space == JCS_GRAYSCALE;
        const bool isPrinted =
            jpeg_.jpeg_color_space == JCS_CMYK || jpeg_.jpeg_color_space == JCS_YCCK;
        jpeg_.out_color_space = isGrey ? JCS_GRAYSCALE : (isPrinted ? JCS_CMYK : JCS_RGB);
        jpeg_start_decompress(&jpeg_);
    }

    void readRows() {
        JSAMPROW rows[] = {row_.data()};
        while (jpeg_.output_scanline < jpeg_.output_height) {
            const auto y = static_cast<int>(jpeg_.output_scanline);
            jpeg_read_scanlines(&jpeg_, rows, 1);
            if (sink_->keepsRow(y)) {
                decode();
                sink_->putRow(y, pixels_.data());
            }
        }
    }

    void decode() {
        const std::uint8_t* from = row_.data();
        for (Pixel& pixel : pixels_) {
            pixel = pixelAt(from);
            from += jpeg_.output_components;
        }
    }

    Pixel pixelAt(const std::uint8_t* from) const {
        switch (jpeg_.output_components) {
            case 1:
                return qRgb(from[0], from[0], from[0]);
            case 4: {  // inks, 255 for none
                const int black = from[3];
                return qRgb(black * from[0] / 255, black * from[1] / 255, black * from[2] / 255);
            }
            default:
                return qRgb(from[0], from[1], from[2]);
        }
    }

    std::string path_;
    ByteStream bytes_;
    PictureWish& wish_;
    Surface& picture_;
    jpeg_decompress_struct jpeg_{};
    jpeg_error_mgr errors_{};
    jpeg_source_mgr input_{};
    std::optional<PictureSink> sink_;
    std::vector<std::uint8_t> row_;
    std::vector<Pixel> pixels_;
    std::jmp_buf jump_{};
    std::exception_ptr thrown_;
};

}  // namespace

bool isJpeg(ByteSource& source) {
    constexpr std::array<std::uint8_t, 3> kBegin = {0xFF, 0xD8, 0xFF};
    std::array<std::uint8_t, 3> begin{};
    if (source.size() < begin.size()) {
        return false;
    }
    source.read(0, begin);
    return begin == kBegin;
}

void readJpeg(ByteSource& source, PictureWish& wish, Surface& picture) {
    JpegReader(source, wish, picture).read();
}

}  // namespace ombrelia
