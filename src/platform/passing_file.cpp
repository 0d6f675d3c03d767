#include "platform/passing_file.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/linux_calls.h"

namespace ombrelia {

namespace {

// The second is for the case that another editor was stopped while it held the first.
constexpr const char* kPassingNames[] = {".ombrelia-terrain-editor.saving",
                                         ".ombrelia-terrain-editor.saving2"};

bool isNameOf(const std::string& name, int handle) {
    struct stat named {};
    struct stat opened {};
    return ::lstat(name.c_str(), &named) == 0 && ::fstat(handle, &opened) == 0 &&
           S_ISREG(named.st_mode) && named.st_dev == opened.st_dev && named.st_ino == opened.st_ino;
}

// Opens a passing file and locks it against all who would take it away; -1 if another process has
// it or took it away meanwhile.
int openHeld(const std::string& name, int flags) {
    const int handle =
        ::open(name.c_str(), flags | O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, kNewFileMode);
    if (handle < 0) {
        return -1;
    }
    const bool isLocked = ::flock(handle, LOCK_EX | LOCK_NB) == 0;
    if (isLocked && isNameOf(name, handle)) {
        return handle;
    }
    if (!isLocked && errno != EWOULDBLOCK && isNameOf(name, handle)) {
        ::unlink(name.c_str());  // where there are no locks nobody works at one
    }
    ::close(handle);
    return -1;
}

// A new file under a passing name, and its handle; an empty name if there is none.
std::pair<std::string, int> makePassing(const std::string& folder) {
    for (const char* passing : kPassingNames) {
        const std::string name = folder + passing;
        if (const int handle = openHeld(name, O_CREAT | O_EXCL); handle >= 0) {
            return {name, handle};
        }
    }
    return {"", -1};
}

}  // namespace

PassingFile::PassingFile(const std::string& folder, const std::string& path)
    : PassingFile(path, makePassing(folder)) {}

PassingFile::PassingFile(const std::string& path, std::pair<std::string, int> made)
    : name_(std::move(made.first)), file_(path, made.second) {}

PassingFile::~PassingFile() {
    if (isThere()) {
        ::unlink(name_.c_str());
    }
}

bool PassingFile::takeRightsOf(const BinaryFile& model) {
    struct stat wanted {};
    struct stat own {};
    if (::fstat(model.handle(), &wanted) != 0 || ::fstat(file_.handle(), &own) != 0 ||
        wanted.st_nlink != 1 || hasAccessList(model.handle()) || hasAccessList(file_.handle())) {
        return false;
    }
    const bool isOwn = wanted.st_uid == own.st_uid && wanted.st_gid == own.st_gid;
    if (!isOwn && ::fchown(file_.handle(), wanted.st_uid, wanted.st_gid) != 0) {
        return false;
    }
    return wanted.st_mode == own.st_mode || ::fchmod(file_.handle(), wanted.st_mode & 07777U) == 0;
}

bool PassingFile::becomeNew(const std::string& path) {
    constexpr int kHere = AT_FDCWD;
    if (!renameToNew(name_, path)) {
        if (::linkat(kHere, name_.c_str(), kHere, path.c_str(), 0) != 0) {
            return false;
        }
        ::unlink(name_.c_str());
    }
    name_.clear();
    return true;
}

bool PassingFile::replace(const std::string& path) {
    if (::rename(name_.c_str(), path.c_str()) != 0) {
        return false;
    }
    name_.clear();
    return true;
}

void removeLeftovers(const std::string& folder) {
    for (const char* passing : kPassingNames) {
        const std::string name = folder + passing;
        if (const int handle = openHeld(name, 0); handle >= 0) {
            ::unlink(name.c_str());
            ::close(handle);
        }
    }
}

}  // namespace ombrelia
