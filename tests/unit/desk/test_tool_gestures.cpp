// Whole gestures on MapView, with the mouse, against a second plain way to record and to work.
#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "core/button_numbers.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/progress.h"
#include "core/windows/form1.h"
#include "desk/tool_gestures.h"
#include "pixel_at.h"
#include "platform/dispatch.h"
#include "terrain/tool_test.h"

namespace ombrelia {

namespace {

constexpr int kTools[] = {button::kPencil, button::kLine,        button::kRaise,
                          button::kLower,  button::kMountain,    button::kCanyon,
                          button::kPlain,  button::kColorPicker, button::kWavy};

struct Spot {
    double x, y;  // pixels of MapView
};

class ToolGestures : public ToolTest {
  protected:
    static void choose(int tool) {
        for (const int i : kTools) {
            OptionStates(i).State = i == tool ? kOn : kUp;
        }
        GroupCurrent(group::kTools) = static_cast<std::int16_t>(tool);
    }

    // Every slider and option of the tools somewhere in its range.
    static void setOptions(Dice& dice) {
        for (const int slider : {1, 2, 3, 6, 7, 8, 11, 12, 13}) {
            SliderRecord& record = SliderValues(slider);
            record.Value = static_cast<std::int16_t>(dice(record.Min, record.Max));
        }
        const int mountain = dice(button::kMountainVertical, button::kMountainSmooth);
        const int canyon = dice(button::kCanyonVertical, button::kCanyonSmooth);
        for (int i = button::kMountainVertical; i <= button::kCanyonSmooth; ++i) {
            OptionStates(i).State = i == mountain || i == canyon ? kOn : kUp;
        }
        OptionStates(button::kRiverInMiddle).State = dice.coin() ? kOn : kUp;
        OptionStates(button::kOnlyLower).State = dice.coin() ? kOn : kUp;
        OptionStates(button::kAutoRefresh).State = dice(0, 5) == 0 ? kOn : kUp;
        DrawHeight = static_cast<std::int16_t>(dice(0, 255));
    }

    // A wandering drag; sometimes it leaves the map for one move.
    static std::vector<Spot> wander(Dice& dice) {
        std::vector<Spot> spots;
        Spot at{dice.place(0, 256), dice.place(0, 256)};
        const int moves = dice(0, 9);
        for (int n = 0; n < moves + 2; ++n) {
            spots.push_back(at);
            at.x = std::clamp(at.x + dice.place(-14, 14), 0.0, 256.0);
            at.y = std::clamp(at.y + dice.place(-14, 14), 0.0, 256.0);
            if (n > 0 && n < moves && n % 4 == 3 && dice(0, 2) == 0) {
                at.x = dice.coin() ? -3 : 262;
            }
        }
        return spots;
    }

    static void play(const std::vector<Spot>& spots) {
        const auto mouse = [](Event event, const Spot& spot) {
            deliverMouse(Form1.MapView, event, MouseButton::Left, spot.x, spot.y);
        };
        mouse(Event::MouseDown, spots.front());
        for (std::size_t n = 1; n + 1 < spots.size(); ++n) {
            mouse(Event::MouseMove, spots[n]);
        }
        mouse(Event::MouseUp, spots.back());
    }
};

// The same gesture a second time.
class SecondHand {
  public:
    SecondHand(slow::World& w, slow::Pictures& p, int t) : world(w), pictures(p), tool(t) {}

    void play(const std::vector<Spot>& spots) {
        press(cell(spots.front().x), cell(spots.front().y));
        for (std::size_t n = 1; n + 1 < spots.size(); ++n) {
            move(clamped(spots[n].x), clamped(spots[n].y));
        }
        release(clamped(spots.back().x), clamped(spots.back().y));
    }

  private:
    float scale() const { return 257.0F / static_cast<float>(world.mapSize); }
    float cell(double pixel) const { return static_cast<float>(pixel) / scale(); }
    float clamped(double pixel) const {
        return std::clamp(cell(pixel), 0.0F, static_cast<float>(world.mapSize));
    }
    void store(int n, float x, float y) {
        world.strokeX[static_cast<std::size_t>(n)] = static_cast<int>(std::nearbyint(x));
        world.strokeY[static_cast<std::size_t>(n)] = static_cast<int>(std::nearbyint(y));
    }

    void press(float x, float y) {
        if (tool == button::kPencil) {
            world.strokeCount = 1;
            store(1, x, y);
        } else if (tool == button::kCanyon) {
            world.strokeCount = 1;
        } else if (tool == button::kLine) {
            for (int n = 1; n <= 5; ++n) {
                store(n, x, y);
            }
            world.strokeCount = 6;
            world.line = {x * scale(), y * scale(), x * scale(), y * scale()};
            world.isLineShown = true;
        }
    }

    void move(float x, float y) {
        const auto last = static_cast<std::size_t>(std::max(world.strokeCount - 1, 0));
        if (tool == button::kPencil) {
            store(world.strokeCount++, x, y);
        } else if (tool == button::kCanyon) {
            if (x + y != static_cast<float>(world.strokeX[last] + world.strokeY[last])) {
                store(world.strokeCount++, x, y);
            }
        } else if (tool == button::kLine) {
            world.line[2] = x * scale();
            world.line[3] = y * scale();
        } else if (tool == button::kRaise) {
            slow::raiseTerrain(world, pictures, x, y, SliderValues(3).Value);
        } else if (tool == button::kLower) {
            slow::lowerTerrain(world, pictures, x, y, SliderValues(11).Value);
        }
    }

    static int onOf(int first, int last) {
        int found = 0;
        for (int i = first; i <= last; ++i) {
            found = OptionStates(i).State == kOn ? i : found;
        }
        return found;
    }

    void release(float x, float y) {
        const auto column = static_cast<int>(std::floor(x));
        const auto row = static_cast<int>(std::floor(y));
        switch (tool) {
            case button::kPencil:
                slow::drawStroke(world, 0);
                break;
            case button::kLine:
                store(6, x, y);
                world.isLineShown = false;
                slow::drawStroke(world, 1);
                break;
            case button::kMountain:
                slow::buildMountain(world, column, row,
                                    {SliderValues(6).Value, SliderValues(7).Value,
                                     onOf(button::kMountainVertical, button::kMountainSmooth),
                                     OptionStates(button::kOnlyLower).State == kOn});
                break;
            case button::kCanyon:
                slow::carveCanyon(world, {SliderValues(13).Value, SliderValues(12).Value,
                                          onOf(button::kCanyonVertical, button::kCanyonSmooth),
                                          OptionStates(button::kRiverInMiddle).State == kOn});
                break;
            case button::kPlain:
                slow::buildPlain(world, column, row, SliderValues(8).Value);
                break;
            default:
                break;
        }
    }

    slow::World& world;
    slow::Pictures& pictures;
    int tool;
};

TEST_F(ToolGestures, every_tool_agrees_with_the_second_way) {
    constexpr int kDrawingTools[] = {button::kPencil, button::kLine,     button::kRaise,
                                     button::kLower,  button::kMountain, button::kCanyon,
                                     button::kPlain,  button::kWavy};
    for (int round = 0; round < 1200; ++round) {
        Dice dice(static_cast<std::uint32_t>(20000 + round));
        if (round % 50 == 0) {
            openMap(sizeFor(round / 50));
        }
        const int tool = kDrawingTools[round % 8];
        choose(tool);
        setOptions(dice);
        layGround(dice);
        const std::vector<Spot> spots = wander(dice);
        slow::Pictures pictures{Form1.MapView.Canvas, Form1.Mapview2.Canvas};
        compare([&] { play(spots); },
                [&](slow::World& world) { SecondHand(world, pictures, tool).play(spots); });
        ASSERT_FALSE(HasFailure()) << "round " << round << " tool " << tool;
        ASSERT_EQ(MouseState, kGestureNone);
        Form1.Line1.Visible = false;
    }
}

TEST_F(ToolGestures, each_tool_has_its_gesture) {
    struct Row {
        int tool;
        int gesture;
    };
    for (const Row& row :
         {Row{button::kPencil, 5}, Row{button::kLine, 6}, Row{button::kRaise, 8},
          Row{button::kLower, 8}, Row{button::kMountain, 0}, Row{button::kCanyon, 1},
          Row{button::kPlain, 0}, Row{button::kColorPicker, 2}, Row{button::kWavy, 34}}) {
        openMap(65);
        choose(row.tool);
        deliverMouse(Form1.MapView, Event::MouseDown, MouseButton::Left, 20, 20);
        EXPECT_EQ(MouseState, row.gesture) << row.tool;
    }
}

TEST_F(ToolGestures, the_sum_of_a_canyons_point_is_single_precision) {
    openMap(257);
    choose(button::kCanyon);
    MouseState = kGestureCanyon;
    StrokeX(1) = 20;
    StrokeY(1) = 50;
    const float beside = std::nextafter(20.0F, 21.0F);
    StrokeCount = 2;
    EXPECT_TRUE(moveTools({beside, 50}));  // 70 as single, a little more as double
    EXPECT_EQ(StrokeCount, 2);
    EXPECT_TRUE(moveTools({20.001F, 50}));
    EXPECT_EQ(StrokeCount, 3);
}

TEST_F(ToolGestures, without_a_kind_of_motion_a_press_shapes) {
    choose(button::kMountain);
    for (const int i : {button::kRotate3D, button::kPan3D, button::kZoom3D}) {
        OptionStates(i).State = kUp;
    }
    deliverMouse(Form1.MapView, Event::MouseDown, MouseButton::Left, 20, 20);
    EXPECT_EQ(MouseState, 8);
}

TEST_F(ToolGestures, a_press_beside_a_panned_map_is_not_cut) {
    Form1.MapView.Canvas.ScaleLeft = -100;
    choose(button::kLine);
    deliverMouse(Form1.MapView, Event::MouseDown, MouseButton::Left, 0, 0);
    EXPECT_EQ(StrokeX(1), -25);
    EXPECT_EQ(Form1.Line1.X1, -100);
}

TEST_F(ToolGestures, dots_lie_in_the_scale_of_the_moment) {
    Surface& view = Form1.MapView.Canvas;
    view.ScaleWidth = view.ScaleHeight = 457;
    view.ScaleLeft = -60;
    view.ScaleTop = -100;
    choose(button::kCanyon);
    deliverMouse(Form1.MapView, Event::MouseDown, MouseButton::Left, 50, 70);
    deliverMouse(Form1.MapView, Event::MouseMove, MouseButton::Left, 90, 120);
    EXPECT_EQ(pixelAt(view, 90, 120), 0xFFFFFF);
}

// A path that is full ends the move before the map is shown; a point that the canyon passes over
// does not.
TEST_F(ToolGestures, a_move_with_a_full_path_shows_nothing) {
    int shown = 0;
    platform.OnRefresh = [&](const Control& control) { shown += &control == &Form1.MapView; };
    for (const int tool : {button::kPencil, button::kCanyon}) {
        choose(tool);
        deliverMouse(Form1.MapView, Event::MouseDown, MouseButton::Left, 20, 20);
        shown = 0;
        deliverMouse(Form1.MapView, Event::MouseMove, MouseButton::Left, 40, 40);
        EXPECT_EQ(shown, 1);
        StrokeCount = 600;
        deliverMouse(Form1.MapView, Event::MouseMove, MouseButton::Left, 80, 80);
        EXPECT_EQ(shown, 1);
        EXPECT_EQ(StrokeCount, 600);
    }
    StrokeX(599) = 10;
    StrokeY(599) = 20;
    Form1.MapView.Canvas.ScaleWidth = Form1.MapView.Canvas.ScaleHeight = 65;
    deliverMouse(Form1.MapView, Event::MouseMove, MouseButton::Left, 0, 257 * 30 / 65.0);
    EXPECT_EQ(shown, 2);
}

}  // namespace

}  // namespace ombrelia
