// The fractal generator a second time, slow and plain: one value after the other, every point
// through a function call, nothing kept from before. It shares no code with the product.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace ombrelia::plain {

inline constexpr int kSide = 258;  // cells on a side of a height field

struct FractalInput {
    int detail = 5;        // 1..8
    int smoothness = 1;    // 1..20
    int height = 60;       // 20..200
    int mapSize = 65;      // points on a side
    int done = 0;          // position of the progress bar before the run
    long stopAtYield = 0;  // the yield (from 1) in which the stop is asked for; 0 never
    std::vector<int> heights = std::vector<int>(kSide * kSide, 40);  // (x, y) at x + 258 * y
    std::function<float()> draw;                                     // uniform in [0, 1)
};

// What a yield can see.
struct YieldView {
    std::string text;
    int total = 0;
    int done = 0;
    int state = 0;
    long draws = 0;

    bool operator==(const YieldView&) const = default;
};

struct FractalOutcome {
    std::vector<int> heights;
    std::vector<double> values;
    std::vector<int> bytes;
    std::vector<YieldView> yields;
    std::string text;
    int part = 0;
    int parts = 0;
    int total = 0;
    int done = 0;
    int progressState = 0;
    int stopFlag = 0;
    long draws = 0;
    long pointsVisited = 0;  // of the lattice, each counted once, copies left out
};

FractalOutcome generateFractal(const FractalInput& input);

}  // namespace ombrelia::plain
