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

// Two ways to a new file that appears under its name with all its bytes or, whatever happens, not
// at all. False if something of this name is there or the file system offers no such way; nothing
// has happened then. Throw FileFailure. A file without a name gets its name at the end.
[[nodiscard]] bool makeNameless(const SavePlace& place, std::span<const std::uint8_t> bytes);
// A file of a passing name gets the right one at the end.
[[nodiscard]] bool makeBeside(const SavePlace& place, std::span<const std::uint8_t> bytes);

// Puts a whole file in the place of an empty one, which is made if it is missing. Only where it
// alone can be written, not its folder, or where more than its bytes would be lost, are they
// written into it; a kill can leave a part of them then. Result and failures as of saveWholeFile.
[[nodiscard]] bool fillEmpty(const SavePlace& place, std::span<const std::uint8_t> bytes);

// Saves the bytes under a name that nothing has, or in an empty file: the file has all of them
// then, flushed to the disk together with its name, or is as it was. False if it holds something
// already, which is left alone. Takes away what a save left in this folder that was killed. Throws
// FileFailure.
[[nodiscard]] bool saveWholeFile(const std::string& path, std::span<const std::uint8_t> bytes);

}  // namespace ombrelia
