#include "temp_folder.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <sys/stat.h>
#include <unistd.h>

namespace ombrelia {

namespace {

constexpr mode_t kEveryone = 0777;
constexpr uid_t kNobody = 65534;

}  // namespace

TempFolder::TempFolder()
    : path_((std::filesystem::temp_directory_path() / "ombrelia-unit-XXXXXX").string()) {
    if (::mkdtemp(path_.data()) == nullptr || ::chmod(path_.c_str(), kEveryone) != 0) {
        throw std::runtime_error("no folder for the files of a test");
    }
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::vector<std::string> TempFolder::names() const {
    std::vector<std::string> found;
    for (const auto& entry : std::filesystem::directory_iterator(path_)) {
        found.push_back(entry.path().filename().string());
    }
    std::sort(found.begin(), found.end());
    return found;
}

FileSizeLimit::FileSizeLimit(std::uint64_t bytes) {
    signalBefore_ = std::signal(SIGXFSZ, SIG_IGN);
    EXPECT_EQ(::getrlimit(RLIMIT_FSIZE, &before_), 0);
    rlimit limit = before_;
    limit.rlim_cur = bytes;
    EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
}

FileSizeLimit::~FileSizeLimit() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, signalBefore_);
}

OrdinaryUser::OrdinaryUser() : wasRoot_(::geteuid() == 0) {
    if (wasRoot_) {
        EXPECT_EQ(::seteuid(kNobody), 0);
    }
}

OrdinaryUser::~OrdinaryUser() {
    if (wasRoot_ && ::seteuid(0) != 0) {
        std::abort();
    }
}

std::string contentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.good()) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

void writeContent(const std::string& path, const std::string& content) {
    std::ofstream file(path, std::ios::binary);
    file << content;
    EXPECT_TRUE(file.good()) << path;
}

}  // namespace ombrelia
