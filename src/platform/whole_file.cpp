#include "platform/whole_file.h"

#include <fcntl.h>
#include <unistd.h>

#include "platform/binary_file.h"
#include "platform/failure.h"

namespace ombrelia {

namespace {

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

}  // namespace ombrelia
