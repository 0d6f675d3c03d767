// long_life HOURS: works the editor for so many simulated hours, ticks in every frame and something
// done every five seconds, and measures memory, open files and time. Fails if the last hour takes
// more of anything than the first, beyond what measuring blurs. A machine has slow minutes, which
// pass, while growth stays: an hour that took longer is followed by others before it counts.
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <malloc.h>
#include <string>
#include <vector>

#include "session.h"

namespace ombrelia {

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr int kDeedsOfHour = 720;               // one in five seconds
constexpr int kTicksBetween = 312;              // frames in five seconds
constexpr std::size_t kMostGrowth = 32 * 1024;  // bytes in use, over all hours
constexpr double kMostSlower = 1.5;  // the fastest time of the last hour to that of the first
constexpr int kSecondLooks = 8;      // hours after one that took longer

// What is done, in turn. Lines that begin with "! " remove a file.
struct Deed {
    const char* name;
    std::vector<const char*> lines;
};
const std::vector<Deed>& deeds() {
    static const std::vector<Deed> all = {
        {"generate", {"click Form1.NTool(4)", "click Form1.NTool(20)"}},
        {"pencil",
         {"click Form1.NTool(0)", "press Form1.MapView left 20 20", "move Form1.MapView left 60 40",
          "move Form1.MapView left 90 120", "release Form1.MapView left 140 160"}},
        {"line",
         {"click Form1.NTool(1)", "press Form1.MapView left 10 200",
          "move Form1.MapView left 100 100", "release Form1.MapView left 240 30"}},
        {"raise",
         {"click Form1.NTool(2)", "press Form1.MapView left 50 50", "move Form1.MapView left 60 55",
          "move Form1.MapView left 70 60", "release Form1.MapView left 70 60"}},
        {"mountain",
         {"click Form1.NTool(8)", "press Form1.MapView left 128 128",
          "release Form1.MapView left 128 128"}},
        {"canyon",
         {"click Form1.NTool(9)", "press Form1.MapView left 10 10", "move Form1.MapView left 90 30",
          "move Form1.MapView left 130 200", "release Form1.MapView left 250 250"}},
        {"plain",
         {"click Form1.NTool(10)", "press Form1.MapView left 70 90",
          "release Form1.MapView left 70 90"}},
        {"a stop", {"on-yield 20 click Form1.NTool(122)", "click Form1.NTool(20)", "tick 3"}},
        {"perspective",
         {"click Form1.NTool(6)", "click Form1.NTool(19)", "press Form1.MapView left 50 50",
          "move Form1.MapView left 80 70", "release Form1.MapView left 80 70",
          "click Form1.NTool(5)"}},
        {"save", {"! map.bmp", "answer save map.bmp", "click Form1.NTool(14)"}},
        {"import", {"answer open map.bmp", "click Form1.NTool(13)"}},
        {"colours",
         {"answer input \"My set\"", "click Form1.NTool(26)", "choose Form1.Combo1 3",
          "click Form1.NTool(24)", "choose Form1.Combo1 0"}},
        {"help",
         {"click Form1.NTool(23)", "click HelpBox.NTool(93)", "fire HelpBox Timer1",
          "click HelpBox.NTool(98)"}},
        {"a game",
         {"click Form1.NTool(23)", "click HelpBox.NTool(96)", "doubleclick HelpBox.Label41 4 4",
          "fire Form2 Timer1", "key Form2 40", "fire Form2 Timer1", "close Form2"}},
        {"new map",
         {"answer message yes", "click Form1.NTool(15)", "doubleclick SizeSelect.Label2 9 9",
          "click SizeSelect.NTool(83)"}},
        {"a maze",
         {"drag Form1.NTool(153) Form1.Label32", "resize frm3DMaze 300 220",
          "fire frm3DMaze Timer1", "fire frm3DMaze Timer1", "fire frm3DMaze Timer1",
          "close frm3DMaze"}},
    };
    return all;
}

struct Hour {
    std::size_t bytesInUse = 0;
    std::size_t residentKiB = 0;
    std::size_t openFiles = 0;
    std::vector<double> fastest;  // milliseconds, for each deed
    double fastestTicks = 1e9;    // microseconds for the ticks of five seconds
};

std::size_t countFiles() {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator()));
}

std::size_t residentKiB() {
    long pages = 0;
    if (std::FILE* file = std::fopen("/proc/self/statm", "r")) {
        static_cast<void>(std::fscanf(file, "%*d %ld", &pages));
        std::fclose(file);
    }
    return static_cast<std::size_t>(pages) * 4;
}

double millisecondsSince(Clock::time_point began) {
    return std::chrono::duration<double, std::milli>(Clock::now() - began).count();
}

double play(scenario::Session& session, const Deed& deed) {
    const auto began = Clock::now();
    for (const std::string line : deed.lines) {
        if (line.starts_with("! ")) {
            fs::remove(line.substr(2));
        } else {
            session.runLine(line);
        }
    }
    return millisecondsSince(began);
}

Hour workAnHour(scenario::Session& session) {
    Hour hour;
    hour.fastest.assign(deeds().size(), 1e9);
    for (int n = 0; n < kDeedsOfHour; ++n) {
        const std::size_t which = static_cast<std::size_t>(n) % deeds().size();
        double& fastest = hour.fastest[which];
        fastest = std::min(fastest, play(session, deeds()[which]));
        const auto began = Clock::now();
        session.runLine("tick " + std::to_string(kTicksBetween));
        hour.fastestTicks = std::min(hour.fastestTicks, 1000 * millisecondsSince(began));
        session.platform.Calls.clear();  // the tool's own log
        session.platform.Calls.shrink_to_fit();
    }
    hour.bytesInUse = mallinfo2().uordblks;
    hour.residentKiB = residentKiB();
    hour.openFiles = countFiles();
    return hour;
}

void print(int number, const Hour& hour) {
    std::printf("hour %d: %zu bytes in use, %zu KiB resident, %zu files open, ticks %.0f us",
                number, hour.bytesInUse, hour.residentKiB, hour.openFiles, hour.fastestTicks);
    for (std::size_t i = 0; i < deeds().size(); ++i) {
        std::printf(", %s %.2f ms", deeds()[i].name, hour.fastest[i]);
    }
    std::printf("\n");
    std::fflush(stdout);
}

bool isSlower(double last, double first) {
    constexpr double kBlur = 0.05;  // milliseconds
    return last > first * kMostSlower + kBlur;
}

int complain(const std::string& what) {
    std::printf("grown: %s\n", what.c_str());
    return 1;
}

int countSlower(const Hour& first, const Hour& last) {
    int slower = 0;
    if (isSlower(last.fastestTicks / 1000, first.fastestTicks / 1000)) {
        slower += complain("the time of the ticks");
    }
    for (std::size_t i = 0; i < deeds().size(); ++i) {
        if (isSlower(last.fastest[i], first.fastest[i])) {
            slower += complain(std::string("the time of ") + deeds()[i].name);
        }
    }
    return slower;
}

int countGrown(const Hour& first, const Hour& last) {
    int grown = 0;
    if (last.bytesInUse > first.bytesInUse + kMostGrowth) {
        grown += complain("memory");
    }
    if (last.openFiles > first.openFiles) {
        grown += complain("open files");
    }
    return grown;
}

int liveFor(int hours) {
    scenario::Session session;
    for (const char* line : {"random-lcg 1", "clock-step 0.5", "ticks on", "start 83"}) {
        session.runLine(line);
    }
    int lived = 0;
    const auto next = [&] {
        Hour hour = workAnHour(session);
        print(++lived, hour);
        return hour;
    };
    const Hour first = next();
    Hour last = first;
    while (lived < hours) {
        last = next();
    }
    int slower = countSlower(first, last);
    for (int n = 0; n < kSecondLooks && slower > 0; ++n) {
        last = next();
        slower = countSlower(first, last);
    }
    return slower + countGrown(first, last) == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

}  // namespace ombrelia

int main(int count, char** arguments) {
    return ombrelia::liveFor(count > 1 ? std::atoi(arguments[1]) : 8);
}
