// A file opened for reading and writing of bytes, created if it is missing. Every failure is a
// FileFailure with the file's name and the system's reason.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <sys/types.h>
#include <utility>

namespace ombrelia {

// Of a file that is made anew; the user's mask takes from it.
inline constexpr mode_t kNewFileMode = 0666;

class BinaryFile {
  public:
    // Opens, or creates, an ordinary file. Throws FileFailure for folders, pipes and devices too.
    explicit BinaryFile(std::string path);
    // Takes over an open file; failures name the path.
    BinaryFile(std::string path, int handle) : path_(std::move(path)), handle_(handle) {}
    ~BinaryFile();
    BinaryFile(const BinaryFile&) = delete;
    BinaryFile& operator=(const BinaryFile&) = delete;

    int handle() const { return handle_; }

    // Bytes in the file.
    std::uint64_t length() const;

    // Whether this opening created the file.
    bool isNew() const { return isNew_; }

    // Writes all bytes at the current place.
    void write(std::span<const std::uint8_t> bytes);

    // Puts what was written on the disk; does nothing where the file system knows no such thing.
    void flush();

    // The same for all of the file system.
    void flushAll();

    // Closes; throws when the system reports a late failure. A second call does nothing.
    void close();

  private:
    [[noreturn]] void fail(int errorNumber) const;

    std::string path_;
    int handle_ = -1;
    bool isNew_ = false;
};

// Whether there is an ordinary file, or a link to one, of this name.
bool isOrdinaryFile(const std::string& path);

// Whether anything of this name is there, whatever it is.
bool isNameTaken(const std::string& path);

// Takes away what a failed save left: a file that it created is removed, one that was empty before
// is empty again. Does nothing if that is impossible.
void undoCreation(const std::string& path, bool wasNew);

}  // namespace ombrelia
