// A file opened for reading and writing of bytes, created if it is missing. Every failure is a
// FileFailure with the file's name and the system's reason.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <utility>

namespace ombrelia {

class BinaryFile {
  public:
    // Opens, or creates, an ordinary file. Throws FileFailure for folders, pipes and devices too.
    explicit BinaryFile(std::string path);
    ~BinaryFile();
    BinaryFile(const BinaryFile&) = delete;
    BinaryFile& operator=(const BinaryFile&) = delete;

    // Bytes in the file.
    std::uint64_t length() const;

    // Whether this opening created the file.
    bool isNew() const { return isNew_; }

    // Writes all bytes at the current place.
    void write(std::span<const std::uint8_t> bytes);

    // Closes; throws when the system reports a late failure. A second call does nothing.
    void close();

  private:
    BinaryFile(std::string path, int handle) : path_(std::move(path)), handle_(handle) {}
    [[noreturn]] void fail(int errorNumber) const;
    friend bool makeWholeFile(const std::string& path, std::span<const std::uint8_t> bytes);

    std::string path_;
    int handle_ = -1;
    bool isNew_ = false;
};

// Makes a new file that appears under its name with all its bytes or, whatever happens, not at all.
// False if something of this name is there or the file system offers no such way; nothing has
// happened then. Throws FileFailure.
[[nodiscard]] bool makeWholeFile(const std::string& path, std::span<const std::uint8_t> bytes);

// Saves the bytes under a name that nothing has, or an empty file: the file has all of them then,
// or is as it was. False if it holds something already, which is left alone. Throws FileFailure.
[[nodiscard]] bool saveWholeFile(const std::string& path, std::span<const std::uint8_t> bytes);

// Whether there is an ordinary file, or a link to one, of this name.
bool isOrdinaryFile(const std::string& path);

// Whether anything of this name is there, whatever it is.
bool isNameTaken(const std::string& path);

// Takes away what a failed save left: a file that it created is removed, one that was empty before
// is empty again. Does nothing if that is impossible.
void undoCreation(const std::string& path, bool wasNew);

}  // namespace ombrelia
