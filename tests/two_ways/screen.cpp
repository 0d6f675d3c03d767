// The screen's way of strings of pointer events, held against the headless one: real windows, real
// events of an X server, the same lines; after each line the state must be the same.
//   two_ways_screen MODEL FOLDER play FILE ...                  scenarios, at scale 1
//   two_ways_screen MODEL FOLDER chance SECONDS SEED SCALE ...  strings by chance
// MODEL is the program of the headless way. A string that differs is cut down and left in FOLDER as
// a scenario. Status 1 at a difference.
#include <QApplication>
#include <QElapsedTimer>
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

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

    // True if the string of this seed leaves the same state both ways.
    bool compareChance(const std::string& scale, long seed) {
        replay_.takeScale(std::stod(scale));
        const std::string number = std::to_string(seed);
        return compare(playedBy(model_ + " make " + number + " " + std::to_string(kLinesOfAString) +
                                " " + scale),
                       "seed_" + number + "_scale_" + scale);
    }

    bool compareFile(const std::string& path) {
        return compare(playedBy(model_ + " play " + path), path.substr(path.find_last_of('/') + 1));
    }

    long lines() const { return lines_; }
    long strings() const { return strings_; }

  private:
    bool compare(const std::vector<Played>& expected, const std::string& name) {
        lines_ += static_cast<long>(expected.size());
        ++strings_;
        const std::size_t differs = firstDifference(expected);
        if (differs == expected.size()) {
            return differs > 0;
        }
        std::vector<std::string> lines;
        for (std::size_t i = 0; i <= differs; ++i) {
            lines.push_back(expected[i].line);
        }
        const std::string path = write(lines, "differs_" + name + ".txt");
        std::cout << name << " differs at \"" << lines.back() << "\"; lost: " << replay_.lost()
                  << "; is left, cut down, in " << path << std::endl;
        tellDifference(path);
        lines = shortened(std::move(lines));
        write(lines, "differs_" + name + ".txt");
        for (const std::string& line : lines) {
            std::cout << "  " << line << '\n';
        }
        return false;
    }

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
        std::string path = folder_ + "/" + name;
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

    // The state as it is now on the screen, beside the one that the lines of a file leave.
    void tellDifference(const std::string& path) {
        const std::vector<std::string> found = stateLines(replay_.session());
        const std::vector<std::string> expected = outputOf(model_ + " state " + path);
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
    long strings_ = 0;
};

// How many of the strings differ.
long playFiles(Comparison& comparison, const std::vector<std::string>& files) {
    return std::count_if(files.begin(), files.end(),
                         [&](const std::string& file) { return !comparison.compareFile(file); });
}

long playChance(Comparison& comparison, const std::vector<std::string>& words) {
    const qint64 milliseconds = std::stoll(words[0]) * 1000;
    const long first = std::stol(words[1]);
    const std::size_t scales = words.size() - 2;
    long differing = 0;
    QElapsedTimer time;
    time.start();
    for (std::size_t n = 0; !time.hasExpired(milliseconds); ++n) {
        const std::string& scale = words[2 + n % scales];
        differing += comparison.compareChance(scale, first + static_cast<long>(n)) ? 0 : 1;
    }
    return differing;
}

int run(const std::vector<std::string>& words) {
    const bool isChance = words.size() > 5 && words[2] == "chance";
    if (!isChance && (words.size() < 4 || words[2] != "play")) {
        std::cerr
            << "two_ways_screen MODEL FOLDER play FILE ..., or chance SECONDS SEED SCALE ...\n";
        return 2;
    }
    Replay replay;
    Comparison comparison(replay, words[0], words[1]);
    const std::vector<std::string> behind(words.begin() + 3, words.end());
    const long differing =
        isChance ? playChance(comparison, behind) : playFiles(comparison, behind);
    std::cout << comparison.lines() << " lines in " << comparison.strings() << " strings, "
              << differing << " differ" << std::endl;
    return differing == 0 && comparison.lines() > 0 ? 0 : 1;
}

}  // namespace

}  // namespace ombrelia::two_ways

int main(int count, char** words) {
    QApplication application(count, words);
    QApplication::setQuitOnLastWindowClosed(false);
    return ombrelia::two_ways::run({words + 1, words + count});
}
