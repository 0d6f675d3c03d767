#include "shrink.h"

#include <algorithm>
#include <chrono>

#include "desk_check.h"

namespace ombrelia::monkey {

namespace {

constexpr unsigned kSecondsOfRun = 120;
constexpr std::chrono::seconds kMostTime{180};

Lines without(const Lines& lines, std::size_t first, std::size_t count) {
    Lines rest(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(first));
    const std::size_t behind = std::min(first + count, lines.size());
    rest.insert(rest.end(), lines.begin() + static_cast<std::ptrdiff_t>(behind), lines.end());
    return rest;
}

// Number of the lines in front of the last look.
std::size_t linesInFront(const Lines& lines) {
    const auto last = std::find(lines.rbegin(), lines.rend(), kLookBegins);
    const bool isFound = last != lines.rend();
    return isFound ? static_cast<std::size_t>(lines.rend() - last - 1) : lines.size();
}

}  // namespace

Outcome runLines(const Lines& lines) {
    return runApart(
        [&lines] {
            scenario::Session session;
            for (const std::string& line : lines) {
                session.runLine(line);
            }
        },
        kSecondsOfRun);
}

Lines shrink(Lines lines, const Outcome& wanted) {
    const std::size_t kept = lines.size() - linesInFront(lines);
    const auto end = std::chrono::steady_clock::now() + kMostTime;
    const auto isLate = [end] { return std::chrono::steady_clock::now() > end; };
    for (std::size_t size = (lines.size() - kept) / 2; size > 0 && !isLate();) {
        bool isShorter = false;
        for (std::size_t first = 0; first + kept < lines.size() && !isLate();) {
            const std::size_t left = lines.size() - kept - first;
            const Lines fewer = without(lines, first, std::min(size, left));
            if (runLines(fewer).isLike(wanted)) {
                lines = fewer;
                isShorter = true;
            } else {
                first += size;
            }
        }
        size = size > 1 ? (size + 1) / 2 : (isShorter ? 1 : 0);
    }
    return lines;
}

}  // namespace ombrelia::monkey
