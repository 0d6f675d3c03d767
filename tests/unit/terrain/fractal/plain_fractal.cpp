#include "terrain/fractal/plain_fractal.h"

#include <cmath>
#include <set>

namespace ombrelia::plain {

namespace {

constexpr int kByteCount = 203163;

// Nearest whole number, ties to even, without the library's rounding mode.
int nearest(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    const int whole = static_cast<int>(below);
    if (rest > 0.5 || (rest == 0.5 && whole % 2 != 0)) {
        return whole + 1;
    }
    return whole;
}

class Generator {
  public:
    explicit Generator(const FractalInput& input) : in(input) {
        out.heights = input.heights;
        out.done = input.done;
    }

    FractalOutcome run() {
        cells = 1;
        for (int n = 0; n < in.detail; ++n) {
            cells *= 2;
        }
        size = cells + 1;
        out.values.assign(static_cast<std::size_t>(size * size + 1), 0.0);
        out.bytes.assign(kByteCount, 0);
        fillValues();
        out.pointsVisited = static_cast<long>(visited.size());
        if (out.stopFlag == 1) {
            out.stopFlag = 2;
            return out;
        }
        valuesToBytes();
        if (!bytesToHeights()) {
            return out;
        }
        if (cells != 256 && !interpolate()) {
            return out;
        }
        out.progressState = 2;
        return out;
    }

  private:
    double& value(int index) { return out.values.at(static_cast<std::size_t>(index)); }
    int& byte(int index) { return out.bytes.at(static_cast<std::size_t>(index)); }
    int& height(int x, int y) { return out.heights.at(static_cast<std::size_t>(x + kSide * y)); }

    void announce(int part, int total) {
        out.text =
            "Generating Fractal Part " + std::to_string(part) + "/" + std::to_string(out.parts + 3);
        out.progressState = 1;
        out.total = total;
    }

    void yield() {
        out.yields.push_back({out.text, out.total, out.done, out.progressState, out.draws});
        if (static_cast<long>(out.yields.size()) == in.stopAtYield) {
            out.stopFlag = 1;
        }
    }

    double noise() {
        ++out.draws;
        const double r = in.draw();
        return r * (0.5 - -0.5) + -0.5;
    }

    double squareAverage(int i, int j, int s) {
        const double upperLeft = value(j - s + size * (i - s));
        const double upperRight = value(j + s + size * (i - s));
        const double lowerLeft = value(j - s + size * (i + s));
        return (upperLeft + upperRight + lowerLeft + lowerLeft) * 0.25;
    }

    double diamondAverage(int i, int j, int s) {
        const int rowBase = 2 * nearest((i / 2.0) * size);
        if (i == 0) {
            return value(j + s) + value(j - s) + value(j + size * (cells - s)) +
                   0.25 * value(j + size * (i + s));
        }
        if (j == 0) {
            return value(j + size * (i + s)) + value(j + size * (i - s)) + value(j + s + rowBase) +
                   0.25 * value(rowBase);
        }
        if (j == size - 1) {
            return value(j + size * (i + s)) + value(j + size * (i - s)) + value(j - s + rowBase) +
                   0.25 * value(s + rowBase);
        }
        return (value(j + size * (i + s)) + value(j + s + rowBase) + value(j - s + rowBase)) * 0.25;
    }

    bool squarePass(int stride, double scale) {
        for (int i = stride; i <= cells - 1; i += 2 * stride) {
            for (int j = stride; j <= cells - 1; j += 2 * stride) {
                visited.insert(j + size * i);
                const double random = noise();
                value(j + size * i) = scale * random + squareAverage(i, j, stride);
            }
            yield();
            if (out.stopFlag == 1) {
                return false;
            }
            out.done = i;
        }
        return true;
    }

    bool diamondPass(int stride, double scale) {
        bool oddLine = false;
        for (int i = 0; i <= cells - 1; i += stride) {
            oddLine = !oddLine;
            for (int j = 0; j <= cells - 1; j += stride) {
                if (oddLine) {
                    j += stride;
                }
                visited.insert(j + size * i);
                const double random = noise();
                const double fresh = scale * random + diamondAverage(i, j, stride);
                value(j + size * i) = fresh;
                if (i == 0) {
                    value(j + size * cells) = fresh;
                }
                if (j == 0) {
                    value(cells + size * i) = fresh;
                }
                j += stride;
            }
            yield();
            if (out.stopFlag == 1) {
                return false;
            }
            out.done = i;
        }
        return true;
    }

    void fillValues() {
        const double ratio = std::pow(2.0, -(in.smoothness / 10.0));
        double scale = ratio;
        out.part = 0;
        out.parts = 2 * in.detail - 1;
        for (int stride = cells / 2; stride >= 1; stride /= 2) {
            announce(out.part, cells - 1);
            if (!squarePass(stride, scale)) {
                return;
            }
            ++out.part;
            announce(out.part, cells - 1);
            if (!diamondPass(stride, scale)) {
                return;
            }
            scale = ratio * scale;
            ++out.part;
        }
    }

    double meanValue() {
        double sum = 0;
        for (int n = 0; n <= size * size - 1; ++n) {
            sum += value(n);
        }
        return sum / (size * size);
    }

    void valuesToBytes() {
        const double mean = meanValue();
        announce(out.part, cells - 1);
        int k = 0;
        for (int i = 0; i <= cells - 1; ++i) {
            for (int j = 0; j <= cells - 1; ++j) {
                const double x = value(j + size * i);
                double d = x - mean;
                if (x < mean - 0.2) {
                    d = -0.2;
                } else if (x > mean + 0.2) {
                    d = 0.2;
                }
                d = (0.5 / (2 * 0.2)) * (d + 0.2);
                byte(k) = nearest(255 * (d + 0.4));
                byte(k + 1) = nearest(255 * (d + 0.4));
                byte(k + 2) = 230;
                k += 3;
            }
            if (out.stopFlag == 1) {
                return;
            }
            yield();
            out.done = i;
        }
    }

    bool bytesToHeights() {
        announce(out.part + 1, 256);
        const int step = 256 / cells;
        int k = 0;
        for (int x = 0; x <= 256; x += step) {
            for (int y = 1; y <= 256; y += step) {
                const double b = (byte(k) + byte(k + 1) + byte(k + 2)) / 3.0;
                k += 3;
                if (x > in.mapSize || y > in.mapSize) {
                    continue;
                }
                const double t = in.height + (b - 150);
                int made = nearest(t);
                if (t < 0) {
                    made = 0;
                }
                if (t > 255) {
                    made = 255;
                }
                height(x, y) = made == 0 ? 1 : made;
            }
            out.done = x;
            yield();
            if (out.stopFlag == 1) {
                out.stopFlag = 2;
                return false;
            }
        }
        return true;
    }

    void blendBlock(int x, int y, int step) {
        const int a = height(x, y);
        int b = height(x + step <= 257 ? x + step : x, x + step <= 257 ? y : step);
        int c = y + step <= 257 ? height(x, y + step) : height(x, step);
        int e = x + step <= 257 && y + step <= 257 ? height(x + step, y + step) : height(x, step);
        b = b == 0 ? a : b;
        c = c == 0 ? a : c;
        e = e == 0 ? a : e;
        const double degree = 3.14159 / 180;
        for (int p = x; p <= x + step - 1; ++p) {
            for (int q = y; q <= y + step - 1; ++q) {
                const double fx = static_cast<double>(p - x) / step;
                const double fy = static_cast<double>(q - y) / step;
                const double wx = (std::sin((fx * 180 - 90) * degree) + 1) / 2;
                const double wy = (std::sin((fy * 180 - 90) * degree) + 1) / 2;
                const double top = (1 - wx) * a + wx * b;
                const double bottom = (1 - wx) * c + wx * e;
                const double v = (1 - wy) * top + wy * bottom;
                if (p <= 257 && q <= 257) {
                    height(p, q - 1) = nearest(v);
                }
            }
        }
    }

    bool interpolate() {
        announce(out.part + 2, 256);
        const int step = 256 / cells;
        for (int x = 0; x <= 257; x += step) {
            for (int y = 1; y <= 257; y += step) {
                blendBlock(x, y, step);
                out.done = x;
                yield();
            }
            if (out.stopFlag == 1) {
                out.stopFlag = 2;
                return false;
            }
        }
        return true;
    }

    const FractalInput& in;
    FractalOutcome out;
    std::set<int> visited;
    int cells = 0;
    int size = 0;
};

}  // namespace

FractalOutcome generateFractal(const FractalInput& input) {
    return Generator(input).run();
}

}  // namespace ombrelia::plain
