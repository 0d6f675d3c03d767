// monkey FIRST COUNT EVENTS FOLDER: plays COUNT seeds from FIRST on, each until so many events were
// delivered, and looks at the desk again and again. A seed that fails becomes a short scenario in
// FOLDER.
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "desk_check.h"
#include "shrink.h"

namespace ombrelia::monkey {

namespace {

constexpr long kEventsBetweenChecks = 700;
constexpr unsigned kMostSeconds = 600;

struct Wish {
    std::uint64_t first = 1;
    std::uint64_t count = 0;
    long events = 0;
    std::filesystem::path folder;
};

void playSeed(std::uint64_t seed, long events, const std::string& journalPath) {
    scenario::Session session;
    Journal journal(session, journalPath);
    Chance chance(seed);
    User user(session, journal, chance);
    journal.insist("random-lcg " + std::to_string(seed % 1000003));
    journal.insist("clock-step 0.5");
    journal.insist("failures told");
    journal.insist("ticks on");
    journal.insist("start");
    for (int check = 1; journal.events() < events; ++check) {
        const long until = journal.events() + kEventsBetweenChecks;
        while (journal.events() < until) {
            user.act();
        }
        checkDesk(user, journal, check);
    }
    std::ofstream(journalPath + ".events") << journal.events();
}

void writeScenario(const std::filesystem::path& path, const std::string& head, const Lines& lines) {
    std::ofstream file(path);
    file << "# " << head << "\n";
    for (const std::string& line : lines) {
        file << line << "\n";
    }
}

void report(std::uint64_t seed, const Outcome& outcome, const Lines& lines, const Wish& wish) {
    std::cout << "seed " << seed << ": " << outcome.what << "\n" << std::flush;
    const std::string name = "seed_" + std::to_string(seed);
    writeScenario(wish.folder / (name + "_whole.txt"), outcome.what, lines);
    const Outcome again = runLines(lines);
    if (!again.isLike(outcome)) {
        std::cout << "    the lines alone end otherwise: " << again.what << "\n";
        return;
    }
    const Lines fewer = shrink(lines, outcome);
    writeScenario(wish.folder / (name + ".txt"), outcome.what, fewer);
    std::cout << "    " << fewer.size() << " of " << lines.size()
              << " lines do it: " << (wish.folder / (name + ".txt")).string() << "\n";
}

int playSeeds(const Wish& wish) {
    std::filesystem::create_directories(wish.folder);
    const std::string journalPath =
        (wish.folder / ("journal_" + std::to_string(wish.first))).string();
    const auto began = std::chrono::steady_clock::now();
    long events = 0;
    int failures = 0;
    for (std::uint64_t seed = wish.first; seed < wish.first + wish.count; ++seed) {
        const Outcome outcome =
            runApart([&] { playSeed(seed, wish.events, journalPath); }, kMostSeconds);
        long played = 0;
        std::ifstream(journalPath + ".events") >> played;
        std::filesystem::remove(journalPath + ".events");
        events += played;
        if (!outcome.isGood()) {
            ++failures;
            report(seed, outcome, readJournal(journalPath), wish);
        }
    }
    std::filesystem::remove(journalPath);
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - began;
    std::cout << wish.count << " seeds from " << wish.first << ", " << events << " events in "
              << took.count() << " s, " << failures << " failed\n";
    return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

}  // namespace ombrelia::monkey

int main(int count, char** arguments) {
    if (count != 5) {
        std::cerr << "monkey FIRST COUNT EVENTS FOLDER\n";
        return 2;
    }
    return ombrelia::monkey::playSeeds({std::stoull(arguments[1]), std::stoull(arguments[2]),
                                        std::stol(arguments[3]),
                                        std::filesystem::absolute(arguments[4])});
}
