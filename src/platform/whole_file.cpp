#include "platform/whole_file.h"

#include <fcntl.h>
#include <filesystem>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "platform/binary_file.h"
#include "platform/passing_file.h"

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
    // A file that was there is guarded from the first change on.
    CreationGuard(const std::string& path, bool wasNew)
        : path_(path), wasNew_(wasNew), isOn_(wasNew) {}
    ~CreationGuard() {
        if (isOn_) {
            undoCreation(path_, wasNew_);
        }
    }
    CreationGuard(const CreationGuard&) = delete;
    CreationGuard& operator=(const CreationGuard&) = delete;

    void begin() { isOn_ = true; }
    void end() { isOn_ = false; }

  private:
    const std::string& path_;
    bool wasNew_;
    bool isOn_;
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
    guard.end();
}

void writeFlushed(BinaryFile& file, std::span<const std::uint8_t> bytes) {
    file.write(bytes);
    file.flush();
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
    writeFlushed(file, bytes);
    const std::string itself = "/proc/self/fd/" + std::to_string(handle);
    if (::linkat(AT_FDCWD, itself.c_str(), AT_FDCWD, place.end.c_str(), AT_SYMLINK_FOLLOW) != 0) {
        return false;
    }
    CreationGuard guard(place.end, true);
    finish(place, file, guard);
    return true;
}

bool makeBeside(const SavePlace& place, std::span<const std::uint8_t> bytes) {
    PassingFile passing(place.folder, place.path);
    if (!passing.isThere()) {
        return false;
    }
    writeFlushed(passing.file(), bytes);
    if (!passing.becomeNew(place.end)) {
        return false;
    }
    CreationGuard guard(place.end, true);
    finish(place, passing.file(), guard);
    return true;
}

bool fillEmpty(const SavePlace& place, std::span<const std::uint8_t> bytes) {
    BinaryFile empty(place.path);
    if (empty.length() != 0) {
        return false;
    }
    CreationGuard guard(place.end, empty.isNew());
    PassingFile passing(place.folder, place.path);
    if (passing.isThere() && passing.takeRightsOf(empty)) {
        writeFlushed(passing.file(), bytes);
        if (BinaryFile(place.path).length() != 0) {
            guard.end();  // another program was faster
            return false;
        }
        if (passing.replace(place.end)) {
            guard.begin();
            finish(place, passing.file(), guard);
            return true;
        }
    }
    guard.begin();
    writeFlushed(empty, bytes);
    finish(place, empty, guard);
    return true;
}

bool saveWholeFile(const std::string& path, std::span<const std::uint8_t> bytes) {
    const SavePlace place(path);
    removeLeftovers(place.folder);
    if (!isNameTaken(place.end) && (makeNameless(place, bytes) || makeBeside(place, bytes))) {
        return true;
    }
    return fillEmpty(place, bytes);
}

}  // namespace ombrelia
