// Laid in front of the C library: makes one call that reads or changes a folder fail, or kills the
// process in it. What to do stands in the environment:
//   FAULT_FOLDER   calls on files below it are counted; all others pass
//   FAULT_AT       number of the call that fails, from 1; 0: none
//   FAULT_KIND     an error number, "short" (a write or read does one half), "kill" (in front of
//                  the call, a write after one half), "killed" (behind the call) or "other" (in
//                  front of it another program writes the file FAULT_OTHER; nothing fails)
//   FAULT_LASTS    1: every later call fails too, as on a full disk
//   FAULT_REFUSE   calls that the file system does not know: O_TMPFILE, renameat2, linkat, flock
//   FAULT_LOG      a file that gets a line for each counted call
#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::size_t kMostFiles = 1024;
std::array<std::array<char, PATH_MAX>, kMostFiles> watched;  // by handle; empty: passes
long calls = 0;
bool isBusy = false;  // inside a call of ours: what it calls itself passes

template <typename Function>
Function* real(Function* /*type*/, const char* name) {
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

const char* wish(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

bool isBelow(const char* path) {
    const char* folder = wish("FAULT_FOLDER");
    return path != nullptr && *folder != '\0' &&
           std::strncmp(path, folder, std::strlen(folder)) == 0;
}

void note(const char* what, const char* path) {
    const char* log = wish("FAULT_LOG");
    if (*log == '\0') {
        return;
    }
    if (std::FILE* file = std::fopen(log, "a")) {
        std::fprintf(file, "%ld %s %s\n", calls, what, path);
        std::fclose(file);
    }
}

[[noreturn]] void die() {
    ::kill(::getpid(), SIGKILL);
    std::abort();
}

bool isKind(const char* kind) {
    return std::strcmp(wish("FAULT_KIND"), kind) == 0;
}

// What another program does at this moment.
void writeOther() {
    if (std::FILE* file = std::fopen(wish("FAULT_OTHER"), "w")) {
        std::fputs("other", file);
        std::fclose(file);
    }
}

// Counts a call; true if it is the one that the wish is about.
bool isChosen(const char* what, const char* path) {
    isBusy = true;
    ++calls;
    note(what, path);
    const long at = std::atol(wish("FAULT_AT"));
    if (calls == at && isKind("other")) {
        writeOther();
    }
    isBusy = false;
    return at != 0 && !isKind("other") &&
           (calls == at || (calls > at && *wish("FAULT_LASTS") == '1'));
}

// Whether the file system shall not know a call on a file; errno says it in the system's words
// then.
bool isRefused(const char* call, const char* path, int error) {
    if (isBusy || !isBelow(path) || std::strstr(wish("FAULT_REFUSE"), call) == nullptr) {
        return false;
    }
    errno = error;
    return true;
}

// The error of a chosen call, 0 if it is to be done after all.
int chosenError() {
    if (isKind("kill")) {
        die();
    }
    return isKind("short") || isKind("killed") ? 0 : std::atoi(wish("FAULT_KIND"));
}

// Does a call, or fails in its stead.
template <typename Call>
int guarded(const char* what, const char* path, Call call) {
    if (isBusy || !isBelow(path)) {
        return call();
    }
    const bool chosen = isChosen(what, path);
    if (const int error = chosen ? chosenError() : 0; error != 0) {
        errno = error;
        return -1;
    }
    const int result = call();
    if (chosen && isKind("killed")) {
        die();
    }
    return result;
}

// The path that a handle was opened with, empty if its calls pass.
const char* pathOf(int file) {
    const bool isKnown = !isBusy && file >= 0 && static_cast<std::size_t>(file) < kMostFiles;
    return isKnown ? watched[static_cast<std::size_t>(file)].data() : "";
}

void watch(int file, const char* path) {
    if (file >= 0 && static_cast<std::size_t>(file) < kMostFiles) {
        auto& known = watched[static_cast<std::size_t>(file)];
        std::snprintf(known.data(), known.size(), "%s", path);
    }
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    mode_t mode = 0;
    if ((flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE) {
        va_list more;
        va_start(more, flags);
        mode = static_cast<mode_t>(va_arg(more, unsigned));
        va_end(more);
    }
    static auto* const next = real<int(const char*, int, ...)>(nullptr, "open");
    if (isBusy || !isBelow(path)) {
        return next(path, flags, mode);
    }
    if ((flags & O_TMPFILE) == O_TMPFILE && isRefused("O_TMPFILE", path, EOPNOTSUPP)) {
        return -1;
    }
    const int file = guarded("open", path, [&] { return next(path, flags, mode); });
    watch(file, path);
    return file;
}

ssize_t read(int file, void* bytes, std::size_t count) {
    static auto* const next = real<ssize_t(int, void*, std::size_t)>(nullptr, "read");
    if (*pathOf(file) == '\0' || !isChosen("read", pathOf(file))) {
        return next(file, bytes, count);
    }
    if (const int error = chosenError(); error != 0) {
        errno = error;
        return -1;
    }
    return next(file, bytes, isKind("short") ? count / 2 : count);
}

ssize_t write(int file, const void* bytes, std::size_t count) {
    static auto* const next = real<ssize_t(int, const void*, std::size_t)>(nullptr, "write");
    if (*pathOf(file) == '\0' || !isChosen("write", pathOf(file))) {
        return next(file, bytes, count);
    }
    if (isKind("kill")) {
        static_cast<void>(next(file, bytes, count / 2));
        die();
    }
    if (isKind("short")) {
        return next(file, bytes, count / 2 + 1);
    }
    if (const int error = chosenError(); error != 0) {
        errno = error;
        return -1;
    }
    static_cast<void>(next(file, bytes, count));
    die();
}

int fsync(int file) {
    static auto* const next = real<int(int)>(nullptr, "fsync");
    return guarded("fsync", pathOf(file), [&] { return next(file); });
}

int syncfs(int file) noexcept {
    static auto* const next = real<int(int)>(nullptr, "syncfs");
    return guarded("syncfs", pathOf(file), [&] { return next(file); });
}

int close(int file) {
    static auto* const next = real<int(int)>(nullptr, "close");
    const std::string path = pathOf(file);
    if (path.empty()) {
        return next(file);
    }
    watch(file, "");
    const int status = next(file);  // the file is closed even where the system reports an error
    return guarded("close", path.c_str(), [&] { return status; });
}

int rename(const char* from, const char* to) noexcept {
    static auto* const next = real<int(const char*, const char*)>(nullptr, "rename");
    return guarded("rename", to, [&] { return next(from, to); });
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept {
    static auto* const next = real<int(int, const char*, int, const char*, int)>(nullptr, "linkat");
    if (isRefused("linkat", to, EPERM)) {
        return -1;
    }
    return guarded("linkat", to, [&] { return next(fromFolder, from, toFolder, to, flags); });
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
              unsigned flags) noexcept {
    static auto* const next =
        real<int(int, const char*, int, const char*, unsigned)>(nullptr, "renameat2");
    if (isRefused("renameat2", to, EINVAL)) {
        return -1;
    }
    return guarded("renameat2", to, [&] { return next(fromFolder, from, toFolder, to, flags); });
}

// Is killed at, but never fails: what cannot be taken away stays.
int unlink(const char* path) noexcept {
    static auto* const next = real<int(const char*)>(nullptr, "unlink");
    const bool chosen = !isBusy && isBelow(path) && isChosen("unlink", path);
    if (chosen && isKind("kill")) {
        die();
    }
    const int result = next(path);
    if (chosen && isKind("killed")) {
        die();
    }
    return result;
}

int flock(int file, int operation) noexcept {
    static auto* const next = real<int(int, int)>(nullptr, "flock");
    if (isRefused("flock", pathOf(file), ENOLCK)) {
        return -1;
    }
    return guarded("flock", pathOf(file), [&] { return next(file, operation); });
}

int fchmod(int file, mode_t mode) noexcept {
    static auto* const next = real<int(int, mode_t)>(nullptr, "fchmod");
    return guarded("fchmod", pathOf(file), [&] { return next(file, mode); });
}

int mkdir(const char* path, mode_t mode) noexcept {
    static auto* const next = real<int(const char*, mode_t)>(nullptr, "mkdir");
    return guarded("mkdir", path, [&] { return next(path, mode); });
}
}
