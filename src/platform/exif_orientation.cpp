#include "platform/exif_orientation.h"

#include <iterator>
#include <optional>

namespace ombrelia {

namespace {

constexpr std::uint32_t kOrientationTag = 0x0112;
constexpr std::size_t kEntryBytes = 12;

// By the tag's value less 1: where the file's first row and first column are in the picture.
constexpr PictureTurn kTurns[] = {
    {false, false, false},  // top, left
    {false, true, false},   // top, right
    {false, true, true},    // bottom, right
    {false, false, true},   // bottom, left
    {true, false, false},   // left, top
    {true, true, false},    // right, top
    {true, true, true},     // right, bottom
    {true, false, true},    // left, bottom
};

class Notes {
  public:
    explicit Notes(std::span<const std::uint8_t> bytes)
        : bytes_(bytes), isBigEndian_(!bytes.empty() && bytes[0] == 'M') {}

    // Numbers beyond the end are none.
    std::optional<std::uint32_t> number(std::size_t at, std::size_t length) const {
        if (at > bytes_.size() || length > bytes_.size() - at) {
            return std::nullopt;
        }
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < length; ++i) {
            value = value << 8U | bytes_[isBigEndian_ ? at + i : at + length - 1 - i];
        }
        return value;
    }

  private:
    std::span<const std::uint8_t> bytes_;
    bool isBigEndian_;
};

}  // namespace

PictureTurn exifTurn(std::span<const std::uint8_t> notes) {
    const Notes numbers(notes);
    const std::size_t table = numbers.number(4, 4).value_or(0);
    const std::uint32_t entries = numbers.number(table, 2).value_or(0);
    for (std::uint32_t i = 0; i < entries; ++i) {
        const std::size_t entry = table + 2 + i * kEntryBytes;
        const auto tag = numbers.number(entry, 2);
        if (!tag) {
            break;
        }
        if (*tag == kOrientationTag) {
            const std::uint32_t value = numbers.number(entry + 8, 2).value_or(0);
            return value >= 1 && value <= std::size(kTurns) ? kTurns[value - 1] : PictureTurn{};
        }
    }
    return {};
}

}  // namespace ombrelia
