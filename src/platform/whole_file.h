// Files that are written whole or not at all.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace ombrelia {

// Makes a new file that appears under its name with all its bytes or, whatever happens, not at all.
// False if something of this name is there or the file system offers no such way; nothing has
// happened then. Throws FileFailure.
[[nodiscard]] bool makeWholeFile(const std::string& path, std::span<const std::uint8_t> bytes);

// Saves the bytes under a name that nothing has, or an empty file: the file has all of them then,
// or is as it was. False if it holds something already, which is left alone. Throws FileFailure.
[[nodiscard]] bool saveWholeFile(const std::string& path, std::span<const std::uint8_t> bytes);

}  // namespace ombrelia
