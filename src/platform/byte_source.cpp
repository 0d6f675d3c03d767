#include "platform/byte_source.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "platform/failure.h"
#include "platform/messages.h"

namespace ombrelia {

void MemorySource::read(std::uint64_t offset, std::span<std::uint8_t> into) {
    if (offset > bytes_.size() || into.size() > bytes_.size() - offset) {
        throw PictureFailure(path(), messages::kCutOff);
    }
    std::copy_n(bytes_.begin() + static_cast<std::ptrdiff_t>(offset), into.size(), into.begin());
}

FileSource::FileSource(std::string path) : ByteSource(std::move(path)) {
    // A pipe without a writer must not hold the program up.
    handle_ = ::open(this->path().c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (handle_ < 0) {
        throw PictureFailure(this->path(), std::strerror(errno));
    }
    struct stat status {};
    const bool isKnown = ::fstat(handle_, &status) == 0;
    size_ = static_cast<std::uint64_t>(status.st_size);
    if (!isKnown || !S_ISREG(status.st_mode) || size_ == 0) {
        const bool isEmpty = isKnown && S_ISREG(status.st_mode);
        ::close(std::exchange(handle_, -1));
        throw PictureFailure(this->path(),
                             isEmpty ? messages::kEmptyFile : messages::kNoOrdinaryFile);
    }
}

FileSource::~FileSource() {
    if (handle_ >= 0) {
        ::close(handle_);
    }
}

void FileSource::read(std::uint64_t offset, std::span<std::uint8_t> into) {
    while (!into.empty()) {
        const ssize_t got = ::pread(handle_, into.data(), into.size(), static_cast<off_t>(offset));
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got <= 0) {
            throw PictureFailure(path(), got < 0 ? std::strerror(errno) : messages::kCutOff);
        }
        into = into.subspan(static_cast<std::size_t>(got));
        offset += static_cast<std::uint64_t>(got);
    }
}

std::uint8_t ByteStream::take() {
    if (place_ == chunk_.size()) {
        fetch();
        if (chunk_.empty()) {
            throw PictureFailure(source_.path(), messages::kCutOff);
        }
    }
    return chunk_[place_++];
}

void ByteStream::fill(std::span<std::uint8_t> into) {
    while (!into.empty()) {
        if (place_ == chunk_.size()) {
            fetch();
        }
        const std::size_t count = std::min(into.size(), chunk_.size() - place_);
        if (count == 0) {
            throw PictureFailure(source_.path(), messages::kCutOff);
        }
        std::copy_n(chunk_.begin() + static_cast<std::ptrdiff_t>(place_), count, into.begin());
        place_ += count;
        into = into.subspan(count);
    }
}

std::span<const std::uint8_t> ByteStream::takeChunk() {
    if (place_ == chunk_.size()) {
        fetch();
    }
    const std::span<const std::uint8_t> rest = std::span(chunk_).subspan(place_);
    place_ = chunk_.size();
    return rest;
}

// Leaves the chunk empty at the end.
void ByteStream::fetch() {
    constexpr std::uint64_t kChunkBytes = 65536;
    const std::uint64_t left = next_ < source_.size() ? source_.size() - next_ : 0;
    chunk_.resize(static_cast<std::size_t>(std::min(kChunkBytes, left)));
    place_ = 0;
    source_.read(next_, chunk_);
    next_ += chunk_.size();
}

}  // namespace ombrelia
