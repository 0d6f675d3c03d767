#include "terrain/tool_test.h"

#include <algorithm>

#include "core/button_numbers.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/progress.h"
#include "core/windows/form1.h"

namespace ombrelia {

namespace {

constexpr int kPencilThickness = 1;
constexpr int kLineThickness = 2;

std::array<double, 4> lineNow() {
    return {Form1.Line1.X1, Form1.Line1.Y1, Form1.Line1.X2, Form1.Line1.Y2};
}

std::int16_t small(int value) {
    return static_cast<std::int16_t>(value);
}

}  // namespace

ToolTest::ToolTest() {
    openMap(65);
}

int ToolTest::sizeFor(int round) {
    constexpr int kSizes[] = {65, 257, 129, 193};
    return kSizes[round % 4];
}

void ToolTest::openMap(int mapSize) {
    openEditor(mapSize);
    OptionStates(button::kAutoRefresh).State = kUp;
}

void ToolTest::layFlat(int height) {
    HeightMap.fill(small(height));
}

void ToolTest::layGround(Dice& dice) {
    const int kind = dice(0, 4);
    const int base = dice(0, 255);
    for (int y = 0; y <= 257; ++y) {
        for (int x = 0; x <= 257; ++x) {
            int height = base;
            if (kind == 1) {
                height = (base + x + y) % 256;
            } else if (kind == 2) {
                height = dice(0, 255);
            } else if (kind == 3) {
                height = std::clamp(base + dice(-20, 20), 0, 255);
            } else if (kind == 4) {
                height = dice(0, 3) == 0 ? 255 : dice(0, 60);
            }
            HeightMap(x, y) = small(height);
        }
    }
}

void ToolTest::recordPath(Dice& dice, int points, int stride) {
    StrokeCount = small(points + 1);
    const int beyond = dice(0, 3) == 0 ? 30 : 0;
    int x = dice(-beyond, MapSize + beyond);
    int y = dice(-beyond, MapSize + beyond);
    const int edge = dice(0, 5);
    x = edge == 0 ? 0 : (edge == 1 ? MapSize : x);
    y = edge == 1 || edge == 2 ? MapSize : (edge == 3 ? 0 : y);
    for (int n = 1; n <= points; ++n) {
        StrokeX(n) = small(x);
        StrokeY(n) = small(y);
        x = std::clamp(x + dice(-stride, stride), -beyond, MapSize + beyond);
        y = std::clamp(y + dice(-stride, stride), -beyond, MapSize + beyond);
    }
}

void ToolTest::recordLine(int x1, int y1, int x2, int y2) {
    for (int n = 1; n <= 5; ++n) {
        StrokeX(n) = small(x1);
        StrokeY(n) = small(y1);
    }
    StrokeX(6) = small(x2);
    StrokeY(6) = small(y2);
    StrokeCount = 6;
}

slow::World ToolTest::worldNow() {
    slow::World world;
    world.mapSize = MapSize;
    world.heights.assign(HeightMap.data(), HeightMap.data() + HeightGrid::size());
    world.shadow.assign(ShadowMap.data(), ShadowMap.data() + HeightGrid::size());
    world.refreshes = OptionStates(button::kAutoRefresh).State == kOn;
    std::copy_n(StrokeX.data(), 601, world.strokeX.begin());
    std::copy_n(StrokeY.data(), 601, world.strokeY.begin());
    world.strokeCount = StrokeCount;
    world.drawHeight = DrawHeight;
    world.pencilThickness = SliderValues(kPencilThickness).Value;
    world.lineThickness = SliderValues(kLineThickness).Value;
    world.scaleWidth = Form1.MapView.Canvas.ScaleWidth;
    world.isLineShown = Form1.Line1.Visible;
    world.line = lineNow();
    world.stopFlag = StopFlag;
    world.state = ProgressState;
    world.total = ProgressTotal;
    world.done = ProgressDone;
    world.text = Form1.WorkWhat.Caption;
    world.percent = Form1.PercDone.Caption;
    world.toolsEnabled = Form1.MapView.Enabled;
    return world;
}

void ToolTest::runProduct(const std::function<void()>& product, const Meddling& meddling) {
    seen_.clear();
    platform.OnYield = [this, &meddling] {
        seen_.push_back({Form1.WorkWhat.Caption, ProgressTotal, ProgressDone, ProgressState,
                         Form1.Line1.Visible, lineNow()});
        const auto n = static_cast<int>(seen_.size());
        if (n == meddling.stopAt) {
            StopFlag = 1;
        }
        if (n == meddling.newThicknessAt) {
            SliderValues(kPencilThickness).Value = small(meddling.newThickness);
            SliderValues(kLineThickness).Value = small(meddling.newThickness);
        }
        if (n == meddling.newHeightAt) {
            DrawHeight = small(meddling.newHeight);
        }
    };
    product();
    platform.OnYield = nullptr;
    yieldsOfLastRun = static_cast<long>(seen_.size());
}

void ToolTest::compare(const std::function<void()>& product,
                       const std::function<void(slow::World&)>& second, const Meddling& meddling) {
    slow::World world = worldNow();
    std::vector<slow::YieldView> expected;
    world.onYield = [&](slow::World& w) {
        expected.push_back({w.text, w.total, w.done, w.state, w.isLineShown, w.line});
        if (w.yields == meddling.stopAt) {
            w.stopFlag = 1;
        }
        if (w.yields == meddling.newThicknessAt) {
            w.pencilThickness = meddling.newThickness;
            w.lineThickness = meddling.newThickness;
        }
        if (w.yields == meddling.newHeightAt) {
            w.drawHeight = meddling.newHeight;
        }
    };
    second(world);
    runProduct(product, meddling);
    ASSERT_EQ(seen_.size(), expected.size());
    for (std::size_t n = 0; n < seen_.size(); ++n) {
        ASSERT_TRUE(seen_[n] == expected[n])
            << "yield " << n + 1 << ": " << seen_[n].text << ' ' << seen_[n].done << '/'
            << seen_[n].total << " against " << expected[n].text << ' ' << expected[n].done << '/'
            << expected[n].total;
    }
    expectSame(world);
}

void ToolTest::expectSame(const slow::World& world) const {
    for (int y = 0; y <= 257; ++y) {
        for (int x = 0; x <= 257; ++x) {
            const auto cell = static_cast<std::size_t>(x + slow::kSide * y);
            ASSERT_EQ(HeightMap(x, y), world.heights[cell]) << "at " << x << ' ' << y;
            ASSERT_EQ(ShadowMap(x, y), world.shadow[cell]) << "shadow at " << x << ' ' << y;
        }
    }
    EXPECT_TRUE(std::equal(world.strokeX.begin(), world.strokeX.end(), StrokeX.data()));
    EXPECT_TRUE(std::equal(world.strokeY.begin(), world.strokeY.end(), StrokeY.data()));
    EXPECT_EQ(StrokeCount, world.strokeCount);
    EXPECT_EQ(StopFlag, world.stopFlag);
    EXPECT_EQ(ProgressState, world.state);
    EXPECT_EQ(ProgressTotal, world.total);
    EXPECT_EQ(ProgressDone, world.done);
    EXPECT_EQ(Form1.WorkWhat.Caption, world.text);
    EXPECT_EQ(Form1.PercDone.Caption, world.percent);
    EXPECT_EQ(Form1.MapView.Enabled, world.toolsEnabled);
    EXPECT_EQ(Form1.Line1.Visible, world.isLineShown);
    EXPECT_EQ(lineNow(), world.line);
}

}  // namespace ombrelia
