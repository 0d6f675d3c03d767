// The screen's way of strings of pointer events, held against the headless one: real windows, real
// events of an X server, the same lines; after each line the state must be the same.
//   two_ways_screen MODEL SECONDS FIRST_SEED FOLDER SCALE ...
// MODEL is the program of the headless way. A string that differs is cut down and left in FOLDER as
// a scenario. Status 1 at a difference.
#include <QApplication>
#include <QElapsedTimer>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <sstream>

#include "replay.h"
#include "state_text.h"

namespace ombrelia::two_ways {

namespace {

constexpr int kLinesOfAString = 120;

struct Played {
    std::string digest, line;
};

std::string firstWordOff(std::string& line) {
    const std::size_t blank = line.find(' ');
    std::string word = line.substr(0, blank);
    line.erase(0, blank + 1);
    return word;
}

std::vector<std::string> outputOf(const std::string& command) {
    std::vector<std::string> lines;
    FILE* pipe = popen(command.c_str(), "r");
    std::string line;
    for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe)) {
        if (c == '\n') {
            lines.push_back(std::move(line));
            line.clear();
        } else {
            line += static_cast<char>(c);
        }
    }
    pclose(pipe);
    return lines;
}

std::vector<Played> playedBy(const std::string& command) {
    std::vector<Played> played;
    for (std::string& line : outputOf(command)) {
        std::string digest = firstWordOff(line);
        played.push_back({std::move(digest), std::move(line)});
    }
    return played;
}

class Comparison {
  public:
    Comparison(Replay& replay, std::string model, std::string folder)
        : replay_(replay), model_(std::move(model)), folder_(std::move(folder)) {}

    // True if the string leaves the same state both ways.
    bool compare(const std::string& scale, long seed) {
        const std::vector<Played> expected =
            playedBy(model_ + " make " + std::to_string(seed) + " " +
                     std::to_string(kLinesOfAString) + " " + scale);
        lines_ += static_cast<long>(expected.size());
        const std::size_t differs = firstDifference(expected);
        if (differs == expected.size()) {
            return true;
        }
        std::vector<std::string> lines;
        for (std::size_t i = 0; i <= differs; ++i) {
            lines.push_back(expected[i].line);
        }
        report(shortened(std::move(lines)), seed, scale);
        return false;
    }

    long lines() const { return lines_; }

  private:
    // The place of the first line after which the two ways differ; the size if they never do.
    std::size_t firstDifference(const std::vector<Played>& expected) {
        replay_.begin();
        for (std::size_t i = 0; i < expected.size(); ++i) {
            if (!replay_.run(expected[i].line) ||
                stateDigest(replay_.session()) != expected[i].digest) {
                return i;
            }
        }
        return expected.size();
    }

    std::string write(const std::vector<std::string>& lines, const std::string& name) {
        const std::string path = folder_ + "/" + name;
        std::ofstream file(path);
        for (const std::string& line : lines) {
            file << line << '\n';
        }
        return path;
    }

    bool stillDiffers(const std::vector<std::string>& lines) {
        const auto expected = playedBy(model_ + " play " + write(lines, "try.txt"));
        return firstDifference(expected) < expected.size();
    }

    // Leaves out what the difference does not need; the first lines start the process.
    std::vector<std::string> shortened(std::vector<std::string> lines) {
        constexpr std::size_t kStart = 4;
        QElapsedTimer time;
        time.start();
        for (std::size_t size = lines.size() / 2; size > 0; size /= 2) {
            for (std::size_t at = kStart; at + size < lines.size() && !time.hasExpired(120000);) {
                std::vector<std::string> fewer = lines;
                const auto from = fewer.begin() + static_cast<std::ptrdiff_t>(at);
                fewer.erase(from, from + static_cast<std::ptrdiff_t>(size));
                if (stillDiffers(fewer)) {
                    lines = std::move(fewer);
                } else {
                    at += size;
                }
            }
        }
        return lines;
    }

    void report(const std::vector<std::string>& lines, long seed, const std::string& scale) {
        const std::string path =
            write(lines, "differs_" + std::to_string(seed) + "_" + scale + ".txt");
        const std::vector<std::string> expected = outputOf(model_ + " state " + path);
        replay_.begin();
        for (const std::string& line : lines) {
            replay_.run(line);
        }
        const std::vector<std::string> found = stateLines(replay_.session());
        std::cout << "seed " << seed << " differs at scale " << scale << "; left in " << path
                  << (replay_.lost().empty() ? "" : "; lost: " + replay_.lost()) << '\n';
        for (std::size_t i = 0; i < std::max(expected.size(), found.size()); ++i) {
            const std::string wanted = i < expected.size() ? expected[i] : "nothing";
            const std::string got = i < found.size() ? found[i] : "nothing";
            if (wanted != got) {
                std::cout << "  headless: " << wanted << "\n  screen:   " << got << std::endl;
            }
        }
    }

    Replay& replay_;
    std::string model_;
    std::string folder_;
    long lines_ = 0;
};

int run(int count, char** words) {
    if (count < 6) {
        std::cerr << "two_ways_screen MODEL SECONDS FIRST_SEED FOLDER SCALE ...\n";
        return 2;
    }
    const std::vector<std::string> scales(words + 5, words + count);
    const qint64 milliseconds = std::atoll(words[2]) * 1000;
    Replay replay;
    Comparison comparison(replay, words[1], words[4]);
    QElapsedTimer time;
    time.start();
    long seed = std::atol(words[3]);
    long strings = 0;
    long differing = 0;
    for (; time.elapsed() < milliseconds; ++seed) {
        const std::string& scale = scales[static_cast<std::size_t>(strings) % scales.size()];
        replay.takeScale(std::stod(scale));
        differing += comparison.compare(scale, seed) ? 0 : 1;
        ++strings;
    }
    std::cout << comparison.lines() << " lines in " << strings << " strings, " << differing
              << " differ" << std::endl;
    return differing == 0 && strings > 0 ? 0 : 1;
}

}  // namespace

}  // namespace ombrelia::two_ways

int main(int count, char** words) {
    QApplication application(count, words);
    QApplication::setQuitOnLastWindowClosed(false);
    return ombrelia::two_ways::run(count, words);
}
