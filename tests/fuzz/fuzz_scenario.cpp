// Bytes as the lines of a scenario: each is understood and run, or refused by its own error. What
// writes or reads files, sets values past their ranges or takes long for large numbers is split
// into fields and names alone.
#include <algorithm>
#include <iterator>
#include <optional>
#include <sstream>
#include <string>

#include "command.h"
#include "errors.h"
#include "names.h"
#include "session.h"

namespace ombrelia {

namespace {

using namespace scenario;

constexpr const char* kHarmless[] = {
    "start",   "restart", "press",  "move",  "release", "click",      "doubleclick", "drag",
    "key",     "fire",    "choose", "state", "close",   "menu",       "scroll",      "run",
    "setting", "ticks",   "expect", "file",  "random",  "random-lcg", "failures",
};
constexpr const char* kOfSmallNumbers[] = {"tick", "resize", "on-yield"};
constexpr std::size_t kMostLines = 60;
constexpr std::size_t kMostDigits = 3;

template <std::size_t N>
bool isOneOf(const std::string& word, const char* const (&words)[N]) {
    return std::find(std::begin(words), std::end(words), word) != std::end(words);
}

bool isRunnable(const Fields& fields) {
    if (fields[0] == "on-yield") {
        return fields.size() > 2 && fields[2] != "on-yield" && fields[1].size() <= kMostDigits &&
               isRunnable(Fields(fields.begin() + 2, fields.end()));
    }
    const bool isSmall = std::all_of(fields.begin() + 1, fields.end(), [](const std::string& f) {
        return f.size() <= kMostDigits || f.find_first_of("0123456789") > 0;
    });
    return isOneOf(fields[0], kHarmless) || (isSmall && isOneOf(fields[0], kOfSmallNumbers));
}

void readNames(const Fields& fields) {
    for (const std::string& field : fields) {
        parseName(field);
        controlNamed(field);
    }
}

// The session is made for the first line that runs: it takes long.
struct Desk {
    std::optional<Session> session;

    void run(const std::string& line) {
        if (!session) {
            session.emplace();
            session->runLine("clock-step 0.5");
            session->runLine("answer message yes");
        }
        session->runLine(line);
    }
};

void runLine(Desk& desk, const std::string& line) {
    try {
        const Fields fields = splitFields(line);
        if (fields.empty()) {
            return;
        }
        checkCommandWord(fields[0]);
        if (isRunnable(fields)) {
            desk.run(line);
        } else {
            readNames(fields);
        }
    } catch (const LineError&) {  // a refused line is passed over
    } catch (const ExpectFailed&) {
    }
}

void runLines(const std::string& text) {
    Desk desk;
    std::istringstream lines(text);
    try {
        std::string line;
        for (std::size_t n = 0; n < kMostLines && std::getline(lines, line); ++n) {
            runLine(desk, line);
        }
    } catch (const HandlerFailed&) {  // ends a scenario, as it should
    } catch (const NoDrawLeft&) {
    }
}

}  // namespace

}  // namespace ombrelia

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ombrelia::runLines({reinterpret_cast<const char*>(data), size});
    return 0;
}
