// What Linux knows about files beyond what every such system does, and what the others do instead.
#pragma once

#include <string>
#include <unistd.h>

#ifdef __linux__
#include <cstdio>
#include <fcntl.h>
#include <sys/xattr.h>
#endif

namespace ombrelia {

#ifdef __linux__

// Gives a file a name that nothing has, in one step; false if that is impossible.
inline bool renameToNew(const std::string& name, const std::string& path) {
    return ::renameat2(AT_FDCWD, name.c_str(), AT_FDCWD, path.c_str(), RENAME_NOREPLACE) == 0;
}

// Whether a list tells who may use the file, beside its mode.
inline bool hasAccessList(int handle) {
    return ::fgetxattr(handle, "system.posix_acl_access", nullptr, 0) > 0;
}

// Puts everything of the file system in which the file is on the disk; false, and errno, if that
// fails.
inline bool flushFileSystem(int handle) {
    return ::syncfs(handle) == 0;
}

#else

inline bool renameToNew(const std::string& /*name*/, const std::string& /*path*/) {
    return false;
}

inline bool hasAccessList(int /*handle*/) {
    return false;
}

inline bool flushFileSystem(int /*handle*/) {
    ::sync();
    return true;
}

#endif

}  // namespace ombrelia
