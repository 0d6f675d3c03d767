#include "platform/qt/gif_end.h"

#include <QIODevice>
#include <array>
#include <cstdint>

namespace ombrelia {

namespace {

// Bytes from the device's place on; false if there are fewer.
template <std::size_t count>
bool take(QIODevice& device, std::array<std::uint8_t, count>& into) {
    constexpr auto kCount = static_cast<qint64>(count);
    return device.read(reinterpret_cast<char*>(into.data()), kCount) == kCount;
}

bool skip(QIODevice& device, qint64 bytes) {
    const qint64 place = device.pos() + bytes;
    return bytes >= 0 && place <= device.size() && device.seek(place);
}

// Chunks of a length each, up to one without a length.
bool skipGifChunks(QIODevice& device) {
    std::array<std::uint8_t, 1> length{};
    while (take(device, length)) {
        if (length[0] == 0) {
            return true;
        }
        if (!skip(device, length[0])) {
            return false;
        }
    }
    return false;
}

// Bytes of the palette that these flags announce.
qint64 gifPaletteBytes(std::uint8_t flags) {
    constexpr unsigned kHasPalette = 0x80;
    return (flags & kHasPalette) == 0 ? 0 : qint64{6} << (flags & 7U);
}

bool endsAfterItsPicture(QIODevice& device) {
    constexpr std::uint8_t kExtension = 0x21;
    constexpr std::uint8_t kImage = 0x2C;
    std::array<std::uint8_t, 13> screen{};
    if (!take(device, screen) || !skip(device, gifPaletteBytes(screen[10]))) {
        return false;
    }
    std::array<std::uint8_t, 1> kind{};
    while (take(device, kind)) {
        if (kind[0] == kImage) {
            std::array<std::uint8_t, 9> image{};
            return take(device, image) && skip(device, gifPaletteBytes(image[8]) + 1) &&
                   skipGifChunks(device);
        }
        if (kind[0] != kExtension || !skip(device, 1) || !skipGifChunks(device)) {
            return false;
        }
    }
    return false;
}

}  // namespace

bool isGifComplete(QIODevice& device) {
    const qint64 place = device.pos();
    const bool isComplete = endsAfterItsPicture(device);
    device.seek(place);
    return isComplete;
}

}  // namespace ombrelia
