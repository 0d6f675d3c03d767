#include "journal.h"

#include <algorithm>
#include <set>

#include "errors.h"

namespace ombrelia::monkey {

namespace {

// What begins a note that a line was taken back; its number follows.
constexpr const char* kTakenBack = "# back ";

}  // namespace

Journal::Journal(scenario::Session& session, const std::string& path)
    : session_(session), file_(path) {
    session_.passesOverErrors = true;
}

void Journal::run(const std::string& line) {
    file_ << line << std::endl;  // flushed: the line may be the last one of the process
    ++lines_;
    session_.runLine(line);
}

void Journal::takeBack(int line) {
    file_ << kTakenBack << line << std::endl;
}

bool Journal::play(const std::string& line, long events) {
    bool isPlayed = true;
    try {
        run(line);
        events_ += events;
    } catch (const scenario::LineError&) {
        takeBack(lines_);
        isPlayed = false;
    }
    settleReady();
    return isPlayed;
}

void Journal::insist(const std::string& line, long events) {
    run(line);
    events_ += events;
    settleReady();
}

int Journal::layReady(long yield, const std::string& command, long events) {
    if (isSettled_) {
        ready_.clear();
        isSettled_ = false;
    }
    run("on-yield " + std::to_string(yield) + " " + command);
    ready_.push_back({lines_, events, true});
    return lines_;
}

bool Journal::hasRun(int number) const {
    return std::any_of(ready_.begin(), ready_.end(),
                       [number](const Ready& r) { return r.line == number && r.hasRun; });
}

void Journal::settleReady() {
    std::vector<int> idle = session_.takeWaitingLines();
    idle.insert(idle.end(), session_.passedOver.begin(), session_.passedOver.end());
    session_.passedOver.clear();
    for (const int line : idle) {
        takeBack(line);
    }
    for (Ready& command : ready_) {
        if (!isSettled_) {
            command.hasRun = std::find(idle.begin(), idle.end(), command.line) == idle.end();
            events_ += command.hasRun ? command.events : 0;
        }
    }
    isSettled_ = true;
}

Lines readJournal(const std::string& path) {
    std::ifstream file(path);
    Lines all;
    std::set<std::size_t> back;
    const std::string note = kTakenBack;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with(note)) {
            back.insert(std::stoul(line.substr(note.size())));
        } else {
            all.push_back(line);
        }
    }
    Lines kept;
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (!back.contains(i + 1)) {
            kept.push_back(all[i]);
        }
    }
    return kept;
}

}  // namespace ombrelia::monkey
