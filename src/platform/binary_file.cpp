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
#include "platform/linux_calls.h"

namespace ombrelia {

namespace {

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

void BinaryFile::flush() {
    while (::fsync(handle_) != 0) {
        if (errno == EINVAL || errno == EOPNOTSUPP) {
            return;
        }
        if (errno != EINTR) {
            fail(errno);
        }
    }
}

void BinaryFile::flushAll() {
    if (!flushFileSystem(handle_)) {
        fail(errno);
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
