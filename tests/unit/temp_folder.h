// A folder for the files of one test, and ways to make writing fail in it.
#pragma once

#include <cstdint>
#include <string>
#include <sys/resource.h>
#include <sys/types.h>
#include <vector>

namespace ombrelia {

// A new folder that every user may write to; it goes with all that is in it.
class TempFolder {
  public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    std::string operator/(const std::string& name) const { return path_ + "/" + name; }
    const std::string& path() const { return path_; }

    // Names of what is in it, sorted.
    std::vector<std::string> names() const;

  private:
    std::string path_;
};

// While it lives no file of this process can grow past the limit; writing on is an error.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(std::uint64_t bytes);
    ~FileSizeLimit();
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

  private:
    rlimit before_{};
    void (*signalBefore_)(int) = nullptr;
};

// While it lives the process obeys the modes of files and folders, even if it runs as root.
class OrdinaryUser {
  public:
    OrdinaryUser();
    ~OrdinaryUser();
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

  private:
    bool wasRoot_ = false;
};

std::string contentOf(const std::string& path);
void writeContent(const std::string& path, const std::string& content);

}  // namespace ombrelia
