#include "platform/qt/picture_process.h"

#include <QCoreApplication>
#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <new>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include "platform/byte_source.h"
#include "platform/failure.h"
#include "platform/messages.h"
#include "platform/picture_sink.h"
#include "platform/qt/picture_loader.h"
#include "platform/surface.h"

namespace ombrelia {

namespace {

constexpr rlim_t kMostMemory = rlim_t{208} << 20U;  // bytes above those of the start

// What the process has of memory of its own, in bytes; 0 if the system does not tell.
rlim_t ownMemory() {
    rlim_t pages = 0;
    std::ifstream file("/proc/self/statm");
    constexpr int kDataField = 6;
    for (int field = 0; field < kDataField; ++field) {
        file >> pages;
    }
    return file ? pages * static_cast<rlim_t>(::sysconf(_SC_PAGESIZE)) : 0;
}

void setLimit(__rlimit_resource kind, rlim_t most) {
    rlimit limit{};
    if (::getrlimit(kind, &limit) == 0) {
        limit.rlim_cur = std::min(most, limit.rlim_max);
        ::setrlimit(kind, &limit);
    }
}

void limitThisProcess(rlim_t seconds) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    setLimit(RLIMIT_CORE, 0);
    setLimit(RLIMIT_DATA, ownMemory() + kMostMemory);
    std::signal(SIGXCPU, [](int) { ::_exit(kTimeIsUp); });
    setLimit(RLIMIT_CPU, seconds);
}

void tell(const void* from, std::size_t count) {
    std::fwrite(from, 1, count, stdout);
}

template <typename Value>
void tell(const Value& value) {
    tell(&value, sizeof(value));
}

void tellFailure(const std::string& sentence) {
    tell(PictureWord::Failure);
    tell(static_cast<int>(sentence.size()));
    tell(sentence.data(), sentence.size());
}

// Asks the other end what it wants.
class ParentsWish : public PictureWish {
  public:
    PictureGrid gridFor(int width, int height) override {
        tell(PictureWord::Size);
        tell(width);
        tell(height);
        std::fflush(stdout);
        PictureGrid grid;
        if (std::fread(&grid, sizeof(grid), 1, stdin) != 1) {
            std::exit(1);  // nobody is there any more
        }
        return grid;
    }
    bool goesOn() override { return true; }
};

void tellPicture(const std::string& path) {
    ParentsWish wish;
    Surface picture;
    FileSource source(path);
    readPicture(source, wish, picture);
    tell(PictureWord::Pixels);
    tell(picture.width());
    tell(picture.height());
    for (int y = 0; y < picture.height(); ++y) {
        tell(picture.row(y), static_cast<std::size_t>(picture.width()) * sizeof(Pixel));
    }
}

}  // namespace

std::optional<int> runPictureReader(int argc, char** argv) {
    if (argc != 4 || std::strcmp(argv[1], kReadPictureWord) != 0) {
        return std::nullopt;
    }
    const std::string path = argv[3];
    const QCoreApplication application(argc, argv);  // knows where the toolkit's readers are
    limitThisProcess(static_cast<rlim_t>(std::atol(argv[2])));
    try {
        tellPicture(path);
    } catch (const PictureFailure& failure) {
        tellFailure(failure.what());
    } catch (const std::bad_alloc&) {
        tellFailure(PictureFailure(path, messages::kNoMemory).what());
    }
    return std::fflush(stdout) == 0 ? 0 : 1;
}

}  // namespace ombrelia
