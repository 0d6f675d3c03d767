#include "platform/ini_store.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "platform/failure.h"
#include "platform/messages.h"

namespace ombrelia {

namespace {

// How long another editor is waited for, and how often it is looked for meanwhile.
constexpr int kPatienceMilliseconds = 2000;
constexpr int kTryMilliseconds = 5;

constexpr std::size_t kMostBytes = 16U << 20U;

constexpr const char* kHexDigits = "0123456789ABCDEF";

bool mustBeEncoded(char c, bool isAtEdge) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x20 || byte == 0x7F || std::strchr("%=[];#", c) != nullptr ||
           (isAtEdge && c == ' ');
}

std::string encoded(const std::string& text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (mustBeEncoded(text[i], i == 0 || i + 1 == text.size())) {
            result += '%';
            result += kHexDigits[byte >> 4U];
            result += kHexDigits[byte & 15U];
        } else {
            result += text[i];
        }
    }
    return result;
}

int hexDigit(char c) {
    const char* found = c == '\0' ? nullptr : std::strchr(kHexDigits, c);
    return found == nullptr ? -1 : static_cast<int>(found - kHexDigits);
}

// Nothing for a text that encoded() cannot have made.
std::optional<std::string> decoded(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '%') {
            result += text[i];
            continue;
        }
        const int high = i + 2 < text.size() ? hexDigit(text[i + 1]) : -1;
        const int low = i + 2 < text.size() ? hexDigit(text[i + 2]) : -1;
        if (high < 0 || low < 0) {
            return std::nullopt;
        }
        result += static_cast<char>(16 * high + low);
        i += 2;
    }
    return result;
}

// Takes the first line off the text, without its end.
std::string_view takeLine(std::string_view& text) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return line;
}

class FileHandle {
  public:
    explicit FileHandle(int handle) : handle_(handle) {}
    ~FileHandle() {
        if (handle_ >= 0) {
            ::close(handle_);
        }
    }
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;
    int get() const { return handle_; }

  private:
    int handle_;
};

// False, with errno, if it cannot be had in this time: another editor may hold it that was stopped.
bool takeLock(int handle, int milliseconds) {
    for (int waited = 0; ::flock(handle, LOCK_EX | LOCK_NB) != 0; waited += kTryMilliseconds) {
        if ((errno != EWOULDBLOCK && errno != EINTR) || waited >= milliseconds) {
            return false;
        }
        ::usleep(kTryMilliseconds * 1000);
    }
    return true;
}

// Writes a new file whole and flushed, in the place of whatever had its name but a folder; the
// error number, 0 when all went well.
int writeWhole(const std::string& path, const std::string& bytes, mode_t mode) {
    ::unlink(path.c_str());
    constexpr int kNew = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
    const FileHandle file(::open(path.c_str(), kNew, mode));
    if (file.get() < 0) {
        return errno;
    }
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t written = ::write(file.get(), bytes.data() + done, bytes.size() - done);
        if (written < 0 && errno != EINTR) {
            return errno;
        }
        done += written > 0 ? static_cast<std::size_t>(written) : 0;
    }
    return ::fsync(file.get()) == 0 ? 0 : errno;
}

bool isLink(const std::string& path) {
    struct stat status {};
    return ::lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
}

// Reads an ordinary file whole; nothing where there is none. The reason why it cannot be read,
// empty when all went well. Waits for nothing that is no file.
std::string readWhole(const std::string& path, std::string& bytes) {
    bytes.clear();
    const FileHandle file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (file.get() < 0) {
        const int reason = errno;
        const bool isNothingThere = (reason == ENOENT || reason == ENOTDIR) && !isLink(path);
        return isNothingThere ? "" : std::strerror(reason);
    }
    struct stat status {};
    if (::fstat(file.get(), &status) != 0) {
        return std::strerror(errno);
    }
    if (!S_ISREG(status.st_mode)) {
        return messages::kNoOrdinaryFile;
    }
    std::array<char, 1U << 16U> part{};
    while (true) {
        const ssize_t got = ::read(file.get(), part.data(), part.size());
        if (got < 0 && errno != EINTR) {
            return std::strerror(errno);
        }
        if (got == 0) {
            return {};
        }
        bytes.append(part.data(), got > 0 ? static_cast<std::size_t>(got) : 0);
        if (bytes.size() > kMostBytes) {
            return messages::kNoSettingsAreSoLarge;
        }
    }
}

// The file itself where the path is a link.
std::string resolved(const std::string& path) {
    std::error_code ignored;
    const auto real = std::filesystem::canonical(path, ignored);
    return ignored ? path : real.string();
}

}  // namespace

IniSections parseIni(std::string_view text, bool& isMalformed) {
    IniSections sections;
    std::map<std::string, std::string>* current = nullptr;
    isMalformed = false;
    while (!text.empty()) {
        const std::string_view line = takeLine(text);
        if (line.empty() || line.front() == ';' || line.front() == '#') {
            continue;
        }
        const std::size_t equals = line.find('=');
        if (line.front() == '[' && line.ends_with(']')) {
            const auto name = decoded(line.substr(1, line.size() - 2));
            current = name ? &sections[*name] : nullptr;
            isMalformed = isMalformed || !name;
            continue;
        }
        if (equals == std::string_view::npos || current == nullptr) {
            isMalformed = true;
            continue;
        }
        const auto key = decoded(line.substr(0, equals));
        const auto value = decoded(line.substr(equals + 1));
        if (key && value) {
            (*current)[*key] = *value;
        } else {
            isMalformed = true;
        }
    }
    return sections;
}

std::string formatIni(const IniSections& sections) {
    std::string text;
    for (const auto& [section, entries] : sections) {
        text.append("[").append(encoded(section)).append("]\n");
        for (const auto& [key, value] : entries) {
            text += encoded(key) + "=" + encoded(value) + "\n";
        }
        text += "\n";
    }
    return text;
}

void IniStore::load() {
    if (isLoaded_) {
        return;
    }
    isLoaded_ = true;
    bool ignored = false;
    std::string text;
    unread_ = readWhole(path_, text);
    if (unread_.empty()) {
        sections_ = parseIni(text, ignored);
    }
}

std::string IniStore::read(const std::string& section, const std::string& key,
                           const std::string& ifMissing) {
    load();
    const auto entries = sections_.find(section);
    if (entries == sections_.end()) {
        return ifMissing;
    }
    const auto entry = entries->second.find(key);
    return entry == entries->second.end() ? ifMissing : entry->second;
}

void IniStore::apply(const Change& change, IniSections& sections) {
    if (!change.key) {
        sections.erase(change.section);
    } else if (change.value) {
        sections[change.section][*change.key] = *change.value;
    } else if (const auto found = sections.find(change.section); found != sections.end()) {
        found->second.erase(*change.key);
    }
}

void IniStore::change(Change change) {
    load();
    apply(change, sections_);
    changes_.push_back(std::move(change));
}

void IniStore::write(const std::string& section, const std::string& key, const std::string& value) {
    change({section, key, value});
}

void IniStore::removeKey(const std::string& section, const std::string& key) {
    change({section, key, std::nullopt});
}

void IniStore::removeSection(const std::string& section) {
    change({section, std::nullopt, std::nullopt});
}

std::vector<std::pair<std::string, std::string>> IniStore::enumerate(const std::string& section) {
    load();
    const auto entries = sections_.find(section);
    if (entries == sections_.end()) {
        return {};
    }
    return {entries->second.begin(), entries->second.end()};
}

std::string IniStore::commit() {
    if (changes_.empty()) {
        return {};
    }
    // What could not be read is worth more than what would take its place.
    std::string failure =
        unread_.empty() ? writeMerged() : messages::settingsNotRead(path_, unread_);
    if (failure.empty()) {
        changes_.clear();
    }
    return failure;
}

std::string IniStore::writeMerged() {
    const auto failed = [this](int errorNumber) {
        return messages::settingsNotSaved(path_, std::strerror(errorNumber));
    };
    std::error_code error;
    std::filesystem::create_directories(std::filesystem::path(path_).parent_path(), error);
    const std::string target = resolved(path_);
    const FileHandle lock(::open((target + ".lock").c_str(),
                                 O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0666));
    if (lock.get() < 0) {
        return failed(error ? error.value() : errno);  // the folder's reason is behind the other
    }
    isPatient_ = takeLock(lock.get(), isPatient_ ? kPatienceMilliseconds : 0);
    if (!isPatient_) {
        return messages::settingsNotSaved(
            path_, errno == EWOULDBLOCK ? messages::kStoreIsHeld : std::strerror(errno));
    }
    std::string before;
    if (const std::string unread = readWhole(target, before); !unread.empty()) {
        return messages::settingsNotRead(path_, unread);
    }
    bool isMalformed = false;
    IniSections merged = parseIni(before, isMalformed);
    struct stat status {};
    const mode_t mode = ::stat(target.c_str(), &status) == 0 ? status.st_mode & 0777U : 0666U;
    if (isMalformed) {
        if (const int reason = writeWhole(target + ".damaged", before, mode); reason != 0) {
            return failed(reason);
        }
    }
    for (const Change& change : changes_) {
        apply(change, merged);
    }
    const std::string fresh = target + ".new";
    int reason = writeWhole(fresh, formatIni(merged), mode);
    if (reason == 0 && ::rename(fresh.c_str(), target.c_str()) != 0) {
        reason = errno;
    }
    if (reason != 0) {
        ::unlink(fresh.c_str());
        return failed(reason);
    }
    return {};
}

namespace {

// Where there is no HOME, the home of the account.
std::string homeFolder() {
    const char* home = std::getenv("HOME");
    if (home != nullptr && *home != '\0') {
        return home;
    }
    const passwd* account = ::getpwuid(::getuid());
    return account != nullptr && account->pw_dir != nullptr ? account->pw_dir : ".";
}

}  // namespace

std::string userSettingsPath() {
    const char* folder = std::getenv("XDG_CONFIG_HOME");
    std::string base = folder != nullptr && *folder == '/' ? folder : "";
    if (base.empty()) {
        base = homeFolder() + "/.config";
    }
    return base + "/quillbyte/ombrelia-terrain-editor.ini";
}

}  // namespace ombrelia
