// The headless way of a string of pointer events:
//   two_ways_model make SEED LINES SCALE    makes a string and plays it
//   two_ways_model play FILE                plays the lines of a file, those aside that make no
//   sense two_ways_model state FILE               the same, and prints the state at the end
// Each line that was played is printed behind a number for the state that it left.
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>

#include "chance_string.h"
#include "errors.h"
#include "state_text.h"

namespace ombrelia::two_ways {

namespace {

void playFile(scenario::Session& session, const char* path, bool tells) {
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        try {
            session.runLine(line);
        } catch (const scenario::LineError&) {
            continue;
        } catch (const scenario::ExpectFailed&) {
            continue;
        }
        if (tells) {
            std::cout << stateDigest(session) << ' ' << line << '\n';
        }
    }
}

int run(int count, char** words) {
    scenario::Session session;
    session.tellsFailures = true;
    session.passesOverErrors = true;
    session.pointer.keepsToWindow = true;
    const std::string what = count > 2 ? words[1] : "";
    try {
        if (what == "make" && count == 5) {
            playChanceString(session, std::strtoull(words[2], nullptr, 10), std::atoi(words[3]),
                             words[4], [&](const std::string& line) {
                                 std::cout << stateDigest(session) << ' ' << line << '\n';
                             });
        } else if (what == "play" || what == "state") {
            playFile(session, words[2], what == "play");
        } else {
            std::cerr << "two_ways_model make SEED LINES SCALE, play FILE, or state FILE\n";
            return 2;
        }
        if (what == "state") {
            for (const std::string& line : stateLines(session)) {
                std::cout << line << '\n';
            }
        }
    } catch (const HandlerFailed& failure) {
        std::cerr << "a handler failed: " << failure.sentence << '\n';
        return 3;
    }
    return 0;
}

}  // namespace

}  // namespace ombrelia::two_ways

int main(int count, char** words) {
    return ombrelia::two_ways::run(count, words);
}
