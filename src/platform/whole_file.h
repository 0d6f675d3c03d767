// Files that are written whole or not at all, and are on the disk then.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace ombrelia {

// Where a file is to be saved.
struct SavePlace {
    explicit SavePlace(std::string name);

    std::string path;    // as the user named it: what failures tell
    std::string end;     // what that leads to, if it is a link; need not be there
    std::string folder;  // the end's, with a slash behind it
};

// Makes a new file that appears under its name with all its bytes or, whatever happens, not at all.
// False if something of this name is there or the file system offers no such way; nothing has
// happened then. Throws FileFailure.
[[nodiscard]] bool makeNameless(const SavePlace& place, std::span<const std::uint8_t> bytes);

// Saves the bytes under a name that nothing has, or an empty file: the file has all of them then,
// flushed to the disk together with its name, or is as it was. False if it holds something already,
// which is left alone. Throws FileFailure.
[[nodiscard]] bool saveWholeFile(const std::string& path, std::span<const std::uint8_t> bytes);

}  // namespace ombrelia
