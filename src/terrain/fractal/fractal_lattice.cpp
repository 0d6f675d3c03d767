#include "terrain/fractal/fractal_lattice.h"

#include <array>
#include <cmath>
#include <span>
#include <string>

#include "core/progress.h"
#include "platform/numeric.h"
#include "platform/services.h"
#include "terrain/fractal/fractal_state.h"

namespace ombrelia {

namespace {

constexpr double kNoise = 0.5;     // noise lies in -kNoise..kNoise
constexpr double kHalfBand = 0.2;  // of the values around the mean that are told apart

// Uniform draws of one row, made at once; taken in the order of the points.
class RowNoise {
  public:
    void draw(int count) {
        services().random->draw(std::span(draws_.data(), static_cast<std::size_t>(count)));
        next_ = draws_.data();
    }

    // RandomBetween(-kNoise, kNoise).
    double next() { return static_cast<double>(*next_++) * (kNoise - -kNoise) + -kNoise; }

  private:
    std::array<float, 257> draws_{};
    const float* next_ = draws_.data();
};

// What the passes of one level share.
struct Level {
    double* v;
    int cells;  // E
    int size;   // S
    int stride;
    double scale;
    RowNoise& noise;
};

// False when the run was stopped.
bool endRow(int i) {
    LongRun::yield();
    if (LongRun::isAskedToStop()) {
        return false;
    }
    LongRun::moveTo(i);
    return true;
}

bool squarePass(const Level& level) {
    const int s = level.stride;
    const int perRow = (level.cells / s) / 2;
    for (int i = s; i <= level.cells - 1; i += 2 * s) {
        level.noise.draw(perRow);
        double* row = level.v + level.size * i;
        const double* above = row - level.size * s;
        const double* below = row + level.size * s;
        for (int j = s; j <= level.cells - 1; j += 2 * s) {
            const double noise = level.scale * level.noise.next();
            // Required: the lower left corner counts twice (square_average_is_uneven).
            row[j] = noise + (above[j - s] + above[j + s] + below[j - s] + below[j - s]) * 0.25;
        }
        if (!endRow(i)) {
            return false;
        }
    }
    return true;
}

void setDiamondPoint(const Level& level, int i, int j) {
    const double noise = level.scale * level.noise.next();
    const double value =
        noise + AverageDiamondNeighbours(i, j, level.stride, level.size, level.cells, level.v);
    level.v[j + level.size * i] = value;
    if (i == 0) {
        level.v[j + level.size * level.cells] = value;
    }
    if (j == 0) {
        level.v[level.cells + level.size * i] = value;
    }
}

// The points of a row strictly between its first and last subscript, with the general average.
void setInnerDiamonds(const Level& level, int i, int firstJ, int stepJ) {
    const int s = level.stride;
    const int S = level.size;
    const std::int64_t rowBase = 2 * roundToEven((i / 2.0) * S);
    double* row = level.v + S * i;
    const double* below = row + S * s;
    const double* base = level.v + rowBase;
    for (int j = firstJ; j <= level.cells - 1; j += stepJ) {
        const double noise = level.scale * level.noise.next();
        row[j] = noise + (below[j] + base[j + s] + base[j - s]) * 0.25;
    }
}

// Required: on odd lines each third point is visited, from the first on, and the last column where
// the walk meets it (odd_lines_visit_each_third_point).
void oddLine(const Level& level, int i) {
    const int s = level.stride;
    const int points = (level.cells - 1) / (3 * s) + 1;
    level.noise.draw(points);
    const int lastJ = s + 3 * s * (points - 1);
    if (i == 0) {
        for (int j = s; j <= lastJ; j += 3 * s) {
            setDiamondPoint(level, i, j);
        }
        return;
    }
    setInnerDiamonds(level, i, s, 3 * s);
    if (lastJ == level.cells) {
        setDiamondPoint(level, i, lastJ);
    }
}

void evenLine(const Level& level, int i) {
    const int s = level.stride;
    level.noise.draw((level.cells - 1) / (2 * s) + 1);
    setDiamondPoint(level, i, 0);
    setInnerDiamonds(level, i, 2 * s, 2 * s);
}

bool diamondPass(const Level& level) {
    bool isOddLine = false;
    for (int i = 0; i <= level.cells - 1; i += level.stride) {
        isOddLine = !isOddLine;
        if (isOddLine) {
            oddLine(level, i);
        } else {
            evenLine(level, i);
        }
        if (!endRow(i)) {
            return false;
        }
    }
    return true;
}

std::int16_t countParts(double stride) {
    int levels = 0;
    for (double t = stride; t != 0; ++levels) {
        t /= 2;
        if (t < 1) {
            t = 0;
        }
    }
    return narrowTo<std::int16_t>(2 * levels - 1);
}

// Bytes of one row, 102..230; without branches, which the noise would mislead at every second
// point.
void bytesOfRow(const double* row, int count, double mean, std::uint8_t* bytes) {
    const double low = mean - kHalfBand;
    const double high = mean + kHalfBand;
    for (int j = 0; j < count; ++j) {
        const double x = row[j];
        double d = x > high ? kHalfBand : x - mean;
        d = x < low ? -kHalfBand : d;
        d = (0.5 / (2 * kHalfBand)) * (d + kHalfBand);
        bytes[j] = static_cast<std::uint8_t>(roundSmallToEven(255 * (d + 0.4)));
    }
}

double meanOf(const std::vector<double>& values, int points) {
    double sum = 0;
    for (int k = 0; k < points; ++k) {
        sum += values[static_cast<std::size_t>(k)];
    }
    return sum / points;
}

}  // namespace

double AverageDiamondNeighbours(int i, int j, int s, int S, int E, const double* v) {
    const auto rowBase = static_cast<int>(2 * roundToEven((i / 2.0) * S));
    // Required: the edges weigh only their last term (edge_averages_are_three_times_too_high).
    if (i == 0) {
        return v[j + s] + v[j - s] + v[j + S * (E - s)] + 0.25 * v[j + S * (i + s)];
    }
    if (i == S - 1) {
        return (v[j + s + i * S] + v[j - s + i * S] + v[j + S * (i - s)] + v[j + S * s]) * 0.25;
    }
    if (j == 0) {
        return v[j + S * (i + s)] + v[j + S * (i - s)] + v[j + s + rowBase] + 0.25 * v[rowBase];
    }
    if (j == S - 1) {
        return v[j + S * (i + s)] + v[j + S * (i - s)] + v[j - s + rowBase] + 0.25 * v[s + rowBase];
    }
    return (v[j + S * (i + s)] + v[j + s + rowBase] + v[j - s + rowBase]) * 0.25;
}

void announceFractalPart(int part, std::int32_t total) {
    LongRun::announce(
        "Generating Fractal Part " + std::to_string(part) + "/" + std::to_string(FractalParts + 3),
        total);
}

void FillFractalValues(std::vector<double>& values, std::int16_t cells, std::int32_t /*seed*/,
                       double heightScale, double h) {
    const int size = cells + 1;
    const double ratio = std::pow(2.0, -h);
    RowNoise noise;
    Level level{values.data(), cells, size, cells / 2, ratio * heightScale, noise};
    FractalPart = 0;
    FractalParts = countParts(level.stride);
    while (level.stride != 0) {
        announceFractalPart(FractalPart, cells - 1);
        if (!squarePass(level)) {
            return;
        }
        ++FractalPart;
        announceFractalPart(FractalPart, cells - 1);
        if (!diamondPass(level)) {
            return;
        }
        level.scale = ratio * level.scale;
        level.stride /= 2;
        ++FractalPart;
    }
}

bool FractalValuesToBytes(const std::vector<double>& values, std::int16_t cells,
                          std::vector<std::uint8_t>& bytes) {
    const int size = cells + 1;
    const double mean = meanOf(values, size * size);
    announceFractalPart(FractalPart, cells - 1);
    std::array<std::uint8_t, 256> firsts{};
    std::uint8_t* out = bytes.data();
    for (int i = 0; i <= cells - 1; ++i) {
        bytesOfRow(values.data() + size * i, cells, mean, firsts.data());
        for (int j = 0; j <= cells - 1; ++j, out += 3) {
            out[0] = firsts[static_cast<std::size_t>(j)];
            out[1] = firsts[static_cast<std::size_t>(j)];
            out[2] = kThirdLatticeByte;
        }
        if (LongRun::isAskedToStop()) {
            return false;
        }
        LongRun::yield();
        LongRun::moveTo(i);
    }
    return true;
}

}  // namespace ombrelia
