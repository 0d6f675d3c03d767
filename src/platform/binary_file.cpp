#include "platform/binary_file.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "platform/failure.h"

namespace ombrelia {

namespace {

constexpr mode_t kNewFileMode = 0666;

// A link whose end does not exist yet; opening it creates that end.
bool leadsNowhere(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) != 0 && errno == ENOENT;
}

// Removes the file itself; links that lead to it stay.
void removeFile(const std::string& path) {
    const std::unique_ptr<char, decltype(&std::free)> end(::realpath(path.c_str(), nullptr),
                                                          &std::free);
    if (end != nullptr) {
        ::unlink(end.get());
    }
}

// Takes away what a save has made, unless it was finished.
class CreationGuard {
  public:
    CreationGuard(const std::string& path, bool wasNew) : path_(path), wasNew_(wasNew) {}
    ~CreationGuard() {
        if (!isKept_) {
            undoCreation(path_, wasNew_);
        }
    }
    CreationGuard(const CreationGuard&) = delete;
    CreationGuard& operator=(const CreationGuard&) = delete;

    void keep() { isKept_ = true; }

  private:
    const std::string& path_;
    bool wasNew_;
    bool isKept_ = false;
};

}  // namespace

BinaryFile::BinaryFile(std::string path) : path_(std::move(path)) {
    handle_ = ::open(path_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, kNewFileMode);
    isNew_ = handle_ >= 0;
    if (!isNew_ && errno == EEXIST) {
        const bool isLooseLink = leadsNowhere(path_);
        handle_ = ::open(path_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK, kNewFileMode);
        isNew_ = handle_ >= 0 && isLooseLink;
    }
    if (handle_ < 0) {
        fail(errno);
    }
    struct stat status {};
    if (::fstat(handle_, &status) != 0) {
        const int reason = errno;
        ::close(std::exchange(handle_, -1));
        fail(reason);
    }
    if (!S_ISREG(status.st_mode)) {
        ::close(std::exchange(handle_, -1));
        throw FileFailure("saved", path_, "It is not an ordinary file");
    }
}

BinaryFile::~BinaryFile() {
    if (handle_ >= 0) {
        ::close(handle_);
    }
}

std::uint64_t BinaryFile::length() const {
    struct stat status {};
    if (::fstat(handle_, &status) != 0) {
        fail(errno);
    }
    return static_cast<std::uint64_t>(status.st_size);
}

void BinaryFile::write(std::span<const std::uint8_t> bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(handle_, bytes.data(), bytes.size());
        if (written < 0) {
            if (errno == EINTR) {
                continue;
            }
            fail(errno);
        }
        bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
}

void BinaryFile::close() {
    if (handle_ >= 0 && ::close(std::exchange(handle_, -1)) != 0 && errno != EINTR) {
        fail(errno);
    }
}

void BinaryFile::fail(int errorNumber) const {
    throw FileFailure("saved", path_, std::strerror(errorNumber));
}

bool makeWholeFile(const std::string& path, std::span<const std::uint8_t> bytes) {
    const std::size_t slash = path.find_last_of('/');
    const std::string folder = slash == std::string::npos ? "." : path.substr(0, slash + 1);
    const int handle = ::open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, kNewFileMode);
    if (handle < 0) {
        return false;
    }
    BinaryFile nameless(path, handle);
    nameless.write(bytes);
    const std::string end = "/proc/self/fd/" + std::to_string(handle);
    const bool isNamed =
        ::linkat(AT_FDCWD, end.c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW) == 0;
    try {
        nameless.close();
    } catch (const FileFailure&) {
        if (isNamed) {
            undoCreation(path, true);
        }
        throw;
    }
    return isNamed;
}

bool saveWholeFile(const std::string& path, std::span<const std::uint8_t> bytes) {
    if (!isNameTaken(path) && makeWholeFile(path, bytes)) {
        return true;
    }
    BinaryFile probe(path);
    if (probe.length() != 0) {
        return false;
    }
    CreationGuard guard(path, probe.isNew());
    probe.close();
    BinaryFile file(path);
    file.write(bytes);
    file.close();
    guard.keep();
    return true;
}

bool isOrdinaryFile(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

bool isNameTaken(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 || errno != ENOENT;
}

void undoCreation(const std::string& path, bool wasNew) {
    if (wasNew) {
        removeFile(path);
    } else if (::truncate(path.c_str(), 0) != 0) {
        // Nothing more can be done; the failure that led here is reported.
        return;
    }
}

}  // namespace ombrelia
