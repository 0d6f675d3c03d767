#include "platform/whole_file.h"

#include <fcntl.h>
#include <filesystem>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "platform/binary_file.h"
#include "platform/failure.h"

namespace ombrelia {

namespace {

constexpr int kMostLinks = 40;  // that the system follows

// What links lead to at last, whether it is there or not.
std::string endOf(std::string path) {
    for (int n = 0; n < kMostLinks; ++n) {
        std::error_code isNoLink;
        const std::filesystem::path next = std::filesystem::read_symlink(path, isNoLink);
        if (isNoLink) {
            break;
        }
        path = std::filesystem::path(path).parent_path() / next;
    }
    return path;
}

std::string folderOf(const std::string& path) {
    const std::size_t slash = path.find_last_of('/');
    return slash == std::string::npos ? "./" : path.substr(0, slash + 1);
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

// Puts the name of a file on the disk; its bytes are there.
void flushName(const SavePlace& place, BinaryFile& file) {
    const int handle = ::open(place.folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) {
        file.flushAll();  // a folder can be written to that cannot be read
        return;
    }
    BinaryFile folder(place.path, handle);
    folder.flush();
}

void finish(const SavePlace& place, BinaryFile& file, CreationGuard& guard) {
    flushName(place, file);
    file.close();
    guard.keep();
}

}  // namespace

SavePlace::SavePlace(std::string name)
    : path(std::move(name)), end(endOf(path)), folder(folderOf(end)) {}

bool makeNameless(const SavePlace& place, std::span<const std::uint8_t> bytes) {
    const int handle = ::open(place.folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, kNewFileMode);
    if (handle < 0) {
        return false;
    }
    BinaryFile file(place.path, handle);
    file.write(bytes);
    file.flush();
    const std::string itself = "/proc/self/fd/" + std::to_string(handle);
    if (::linkat(AT_FDCWD, itself.c_str(), AT_FDCWD, place.end.c_str(), AT_SYMLINK_FOLLOW) != 0) {
        return false;
    }
    CreationGuard guard(place.end, true);
    finish(place, file, guard);
    return true;
}

bool saveWholeFile(const std::string& path, std::span<const std::uint8_t> bytes) {
    const SavePlace place(path);
    if (!isNameTaken(place.end) && makeNameless(place, bytes)) {
        return true;
    }
    BinaryFile file(path);
    if (file.length() != 0) {
        return false;
    }
    CreationGuard guard(place.end, file.isNew());
    file.write(bytes);
    file.flush();
    finish(place, file, guard);
    return true;
}

}  // namespace ombrelia
