// What the tests of the terrain tools stand on: the same work by the product and by the slow second
// way, over the same map, and a comparison of everything that either leaves behind.
#pragma once

#include <functional>
#include <vector>

#include "editor_fixture.h"
#include "terrain/slow_world.h"

namespace ombrelia {

// Whole numbers of a seeded sequence.
class Dice {
  public:
    explicit Dice(std::uint32_t seed) : draws_(seed) {}
    // low..high, both included.
    int operator()(int low, int high) {
        return low + static_cast<int>(draws_() * static_cast<float>(high - low + 1));
    }
    // A place in low..high.
    float place(float low, float high) { return low + draws_() * (high - low); }
    bool coin() { return (*this)(0, 1) == 1; }

  private:
    PlainDraws draws_;
};

class ToolTest : public EditorTest {
  protected:
    ToolTest();

    // The four sizes, in turn.
    static int sizeFor(int round);

    // Editor of this size without the refresh after an edit.
    void openMap(int mapSize);

    // Ground of one of several kinds over the whole array: flat, sloping, rough, extreme.
    static void layGround(Dice& dice);
    static void layFlat(int height);

    // A path of points that wanders from anywhere, edges, corners and beyond the border included.
    static void recordPath(Dice& dice, int points, int stride);

    // A line as the press and the release record it.
    static void recordLine(int x1, int y1, int x2, int y2);

    // What a yield does beside being counted; n from 1. Applied to both ways.
    struct Meddling {
        int stopAt = 0;
        int newThicknessAt = 0;
        int newThickness = 1;
        int newHeightAt = 0;
        int newHeight = 0;
    };

    // The state of the product as the second way takes it up.
    static slow::World worldNow();

    // Runs both ways over the map as it stands and expects the same of them.
    void compare(const std::function<void()>& product,
                 const std::function<void(slow::World&)>& second, const Meddling& meddling);
    void compare(const std::function<void()>& product,
                 const std::function<void(slow::World&)>& second) {
        compare(product, second, Meddling());
    }

    long yieldsOfLastRun = 0;

  private:
    void runProduct(const std::function<void()>& product, const Meddling& meddling);
    void expectSame(const slow::World& world) const;

    std::vector<slow::YieldView> seen_;
};

}  // namespace ombrelia
