// Makes the documents' pictures from the running program:
//   picture_book windows FOLDER SUFFIX
//   picture_book road|maps|motions FOLDER
#include <cstdio>
#include <string>

#include "album.h"
#include "platform/services.h"

namespace {

struct Kind {
    const char* name;
    int arguments;
    void (*take)(const ombrelia::Album& album);
    int yieldMilliseconds;  // above 0: so slow that a run can be taken in the middle
};

constexpr Kind kKinds[] = {{"windows", 4, ombrelia::takeWindows, 1},
                           {"road", 3, ombrelia::takeRoad, 0},
                           {"maps", 3, ombrelia::takeMaps, 0},
                           {"motions", 3, ombrelia::takeMotions, 0}};

}  // namespace

int main(int argc, char** argv) {
    for (const Kind& kind : kKinds) {
        if (argc != kind.arguments || std::string(argv[1]) != kind.name) {
            continue;
        }
        ombrelia::SteadyRandom random;
        ombrelia::ScreenDriver::run(
            [&](ombrelia::ScreenDriver& driver) {
                driver.inProgram([&] { ombrelia::services().random = &random; });
                kind.take({driver, argv[2], argc > 3 ? argv[3] : ""});
            },
            kind.yieldMilliseconds);
        return 0;
    }
    std::fprintf(stderr,
                 "picture_book windows FOLDER SUFFIX\npicture_book road|maps|motions FOLDER\n");
    return 2;
}
