#include "platform/headless/pnm_reader.h"

#include <array>
#include <vector>

#include "platform/byte_source.h"
#include "platform/failure.h"
#include "platform/messages.h"
#include "platform/picture_sink.h"
#include "platform/surface.h"

namespace ombrelia {

namespace {

constexpr unsigned kMostValue = 255;

class MapText {
  public:
    explicit MapText(ByteSource& source)
        : path_(source.path()), bytes_(static_cast<std::size_t>(source.size())) {
        source.read(0, bytes_);
    }

    char kind() const { return static_cast<char>(bytes_[1]); }

    // The next whole number; comments run from # to the end of their line.
    unsigned number() {
        skipBlanks();
        unsigned value = 0;
        const std::size_t first = place_;
        constexpr unsigned kTooLong = 100'000'000;
        while (place_ < bytes_.size() && isDigit(bytes_[place_]) && value < kTooLong) {
            value = value * 10 + (bytes_[place_++] - static_cast<unsigned>('0'));
        }
        if (place_ == first) {
            throw PictureFailure(path_, messages::kCutOff);
        }
        return value;
    }

    unsigned byte() {
        if (place_ >= bytes_.size()) {
            throw PictureFailure(path_, messages::kCutOff);
        }
        return bytes_[place_++];
    }

  private:
    static bool isDigit(std::uint8_t byte) { return byte >= '0' && byte <= '9'; }
    static bool isBlank(std::uint8_t byte) { return byte == ' ' || (byte >= '\t' && byte <= '\r'); }

    void skipBlanks() {
        bool isComment = false;
        while (place_ < bytes_.size() &&
               (isComment || isBlank(bytes_[place_]) || bytes_[place_] == '#')) {
            isComment = bytes_[place_] == '#' || (isComment && bytes_[place_] != '\n');
            ++place_;
        }
    }

    std::string path_;
    std::vector<std::uint8_t> bytes_;
    std::size_t place_ = 2;
};

}  // namespace

bool isPortableMap(ByteSource& source) {
    std::array<std::uint8_t, 2> begin{};
    if (source.size() < begin.size()) {
        return false;
    }
    source.read(0, begin);
    return begin[0] == 'P' &&
           (begin[1] == '2' || begin[1] == '3' || begin[1] == '5' || begin[1] == '6');
}

void readPortableMap(ByteSource& source, PictureWish& wish, Surface& picture) {
    MapText text(source);
    const bool isGrey = text.kind() == '2' || text.kind() == '5';
    const bool isInBytes = text.kind() == '5' || text.kind() == '6';
    const unsigned width = text.number();
    const unsigned height = text.number();
    if (text.number() != kMostValue) {
        throw PictureFailure(source.path(), messages::kDamagedHeader);
    }
    if (isInBytes) {
        text.byte();  // one blank parts the header from the bytes
    }
    PictureSink sink(source.path(), width, height, wish, picture);
    const auto next = [&] { return isInBytes ? text.byte() : text.number(); };
    std::vector<Pixel> row(width);
    for (int y = 0; y < static_cast<int>(height); ++y) {
        for (Pixel& pixel : row) {
            const unsigned red = next();
            const unsigned green = isGrey ? red : next();
            const unsigned blue = isGrey ? red : next();
            pixel = pixelOf(rgb(red, green, blue));
        }
        sink.putRow(y, row.data());
    }
    picture.changed();
}

}  // namespace ombrelia
