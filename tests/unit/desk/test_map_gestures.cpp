#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/color_ramp.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "desk/map_gestures.h"
#include "editor_fixture.h"
#include "pixel_at.h"
#include "platform/dispatch.h"
#include "views/map2d/map_transform.h"

namespace ombrelia {

namespace {

class MapGestures : public EditorTest {
  protected:
    static void press(double x, double y, MouseButton button = MouseButton::Left) {
        deliverMouse(Form1.MapView, Event::MouseDown, button, x, y);
    }
    static void move(double x, double y, MouseButton button = MouseButton::Left) {
        deliverMouse(Form1.MapView, Event::MouseMove, button, x, y);
    }
    static void release(double x, double y) {
        deliverMouse(Form1.MapView, Event::MouseUp, MouseButton::Left, x, y);
    }

    static void selectTool(int i) {
        OptionStates(GroupCurrent(1)).State = 0;
        OptionStates(i).State = 2;
        GroupCurrent(1) = static_cast<std::int16_t>(i);
    }

    // Pixel of the middle of a cell on a map of 65 without zoom.
    static double pixel(double cell) { return cell * 257 / 65; }
};

struct Clamped {
    float x, y;
    int result, zone;
    bool operator==(const Clamped&) const = default;
};

Clamped clampedFrom(int zoneBefore, float x, float y) {
    LastEdgeZone = static_cast<std::int16_t>(zoneBefore);
    std::int16_t result = 77;
    ClampToMap(x, y, result);
    return {x, y, result, LastEdgeZone};
}

TEST_F(MapGestures, places_are_cut_to_the_map_zone_by_zone) {
    const struct {
        float x, y, cutX, cutY;
        int zone;
    } rows[] = {{0, 0, 0, 0, 0},     {65, 65, 65, 65, 0}, {65.1F, 20, 65, 20, 1},
                {20, 70, 20, 65, 2}, {70, 70, 65, 65, 3}, {-0.1F, 20, 0, 20, 4},
                {20, -1, 20, 0, 5},  {-1, -1, 0, 0, 6},   {70, -1, 65, 0, 7},
                {-1, 70, 0, 65, 8}};
    for (const auto& row : rows) {
        const int other = row.zone == 1 ? 2 : 1;
        EXPECT_EQ(clampedFrom(other, row.x, row.y), (Clamped{row.cutX, row.cutY, 0, row.zone}))
            << row.zone;
        EXPECT_EQ(clampedFrom(row.zone, row.x, row.y),
                  (Clamped{row.cutX, row.cutY, row.zone == 0 ? 0 : 1, row.zone}))
            << row.zone;
    }
}

TEST_F(MapGestures, the_picker_takes_the_height_under_the_pointer) {
    HeightMap(10, 20) = 99;
    HeightMap(11, 20) = 100;
    press(pixel(10), pixel(20));
    EXPECT_EQ(DrawHeight, 99);
    EXPECT_EQ(MouseState, 2);
    EXPECT_EQ(Form1.Label19.Caption, metresText(99));
    EXPECT_FLOAT_EQ(DownX, 10);
    EXPECT_FLOAT_EQ(DownY, 20);
    move(pixel(11), pixel(20));
    EXPECT_EQ(DrawHeight, 100);
    move(pixel(30), pixel(20), MouseButton::Left);
    EXPECT_EQ(DrawHeight, 40);
    release(pixel(10), pixel(20));
    EXPECT_EQ(DrawHeight, 99);
    EXPECT_EQ(MouseState, 0);
    move(pixel(11), pixel(20), MouseButton::None);
    EXPECT_EQ(DrawHeight, 99);
}

TEST_F(MapGestures, a_press_outside_the_map_picks_nothing) {
    DrawHeight = 77;
    press(-5, 10);
    EXPECT_EQ(DrawHeight, 77);
    EXPECT_EQ(MouseState, 2);
}

TEST_F(MapGestures, a_drag_ends_at_the_second_move_beyond_the_same_edge) {
    HeightMap(65, 20) = 120;
    press(pixel(10), pixel(20));
    move(300, pixel(20));
    EXPECT_EQ(MouseState, 2);
    EXPECT_EQ(DrawHeight, 120);
    DrawHeight = 1;
    move(310, pixel(20));
    EXPECT_EQ(MouseState, 0);
    EXPECT_EQ(DrawHeight, 120);  // the release picks at the cut place
}

TEST_F(MapGestures, a_drag_that_ends_beyond_an_edge_keeps_its_place_along_it) {
    const struct {
        int x, y;
        double pixelX, pixelY;
    } rows[] = {{20, 65, pixel(20), 300},
                {20, 0, pixel(20), -30},
                {65, 20, 300, pixel(20)},
                {0, 20, -30, pixel(20)}};
    for (const auto& row : rows) {
        HeightMap(row.x, row.y) = 120;
        press(pixel(10), pixel(10));
        move(row.pixelX, row.pixelY);
        DrawHeight = 1;
        move(row.pixelX, row.pixelY);
        EXPECT_EQ(MouseState, 0);
        EXPECT_EQ(DrawHeight, 120) << row.x << ' ' << row.y;
    }
}

TEST_F(MapGestures, the_outermost_cells_can_be_picked_and_no_others) {
    for (const auto& [x, y] : {std::pair{0, 20}, {20, 0}, {65, 20}, {20, 65}, {0, 0}, {65, 65}}) {
        HeightMap(x, y) = 99;
        DrawHeight = 1;
        press(pixel(x), pixel(y));
        EXPECT_EQ(DrawHeight, 99) << x << ' ' << y;
        release(pixel(x), pixel(y));
    }
    for (const auto& [x, y] : {std::pair{-1, 20}, {20, -1}, {66, 20}, {20, 66}}) {
        DrawHeight = 1;
        press(pixel(x), pixel(y));
        EXPECT_EQ(DrawHeight, 1) << x << ' ' << y;
    }
}

TEST_F(MapGestures, another_edge_gives_another_move) {
    press(pixel(10), pixel(20));
    move(300, pixel(20));
    move(300, 300);
    EXPECT_EQ(MouseState, 2);
    move(pixel(20), 300);
    EXPECT_EQ(MouseState, 2);
    move(pixel(20), pixel(20));
    move(300, pixel(20));
    EXPECT_EQ(MouseState, 2);
    move(300, pixel(21));
    EXPECT_EQ(MouseState, 0);
}

TEST_F(MapGestures, every_move_shows_height_and_magnifier) {
    HeightMap(10, 20) = 99;
    move(pixel(10), pixel(20), MouseButton::None);
    EXPECT_EQ(Form1.Label22.Caption, metresText(99));
    std::int16_t h = 99;
    EXPECT_EQ(pixelAt(Form1.ZoomView.Canvas, 12, 12), static_cast<std::int32_t>(HeightToColor(h)));
}

TEST_F(MapGestures, every_move_puts_out_a_hovered_button) {
    HoverTool = 16;
    OptionStates(16).State = 1;
    move(10, 10, MouseButton::None);
    EXPECT_EQ(OptionStates(16).State, 0);
}

TEST_F(MapGestures, a_zoom_drag_to_the_right_lowers_the_zoom) {
    selectTool(button::kZoom2D);
    press(100, 100);
    EXPECT_EQ(MouseState, 56);
    EXPECT_EQ(DragPixelX, 100 + 8);  // client pixels: the view stands at 8
    move(110.7, 90);
    EXPECT_EQ(MapZoom, -10);
    EXPECT_EQ(DragPixelX, 118);
    EXPECT_EQ(Form1.MapView.Canvas.ScaleWidth, 277);
    move(105, 90);
    EXPECT_EQ(MapZoom, -5);
    MouseState = 56;
    move(1000, 90);
    EXPECT_EQ(MapZoom, -345);
}

TEST_F(MapGestures, a_pan_drag_moves_both_ways) {
    MapZoom = -50;
    ApplyMapTransform();
    selectTool(button::kPan2D);
    press(100, 100);
    EXPECT_EQ(MouseState, 57);
    EXPECT_EQ(DragPixelY, 188);
    move(110, 95);
    EXPECT_EQ(MapPanX, 10);
    EXPECT_EQ(MapPanY, -5);
    EXPECT_EQ(Form1.MapView.Canvas.ScaleLeft, -40);
    EXPECT_EQ(Form1.MapView.Canvas.ScaleTop, -55);
}

TEST_F(MapGestures, a_pan_press_shows_the_whole_map_and_its_moves_copy_nothing) {
    selectTool(button::kPan2D);
    Surface& view = Form1.MapView.Canvas;
    view.clear();
    press(100, 100);
    EXPECT_EQ(pixelAt(view, 5, 5), pixelAt(Form1.Mapview2.Canvas, 1, 1));
    EXPECT_NE(pixelAt(view, 5, 5), 0);
    view.clear();
    move(110, 95);
    EXPECT_EQ(pixelAt(view, 5, 5), 0);
}

TEST_F(MapGestures, a_right_press_swaps_pan_and_zoom) {
    selectTool(button::kZoom2D);
    press(100, 100, MouseButton::Right);
    EXPECT_EQ(GroupCurrent(1), 43);
    EXPECT_TRUE(isOn(43));
    EXPECT_FALSE(isOn(44));
    EXPECT_EQ(MouseState, 57);
    press(100, 100, MouseButton::Right);
    EXPECT_EQ(GroupCurrent(1), 44);
    EXPECT_EQ(MouseState, 56);
}

TEST_F(MapGestures, a_right_press_with_another_tool_swaps_nothing) {
    press(100, 100, MouseButton::Right);
    EXPECT_EQ(GroupCurrent(1), 7);
    EXPECT_EQ(MouseState, 2);
}

TEST_F(MapGestures, the_wavy_tool_changes_no_terrain) {
    selectTool(button::kWavy);
    const HeightGrid before = HeightMap;
    press(100, 100);
    move(120, 120);
    release(120, 120);
    EXPECT_TRUE(HeightMap == before);
    EXPECT_EQ(MouseState, 0);
}

TEST_F(MapGestures, the_ground_of_the_window_ends_a_drag) {
    press(100, 100);
    deliverMouse(Form1, Event::MouseMove, MouseButton::Left, 1, 60);
    EXPECT_EQ(MouseState, 0);
}

class PickerStrip : public MapGestures {
  protected:
    static void strip(Event event, double y) {
        deliverMouse(Form1.Picker, event, MouseButton::Left, 5, y);
    }
};

TEST_F(PickerStrip, a_press_picks_from_255_down) {
    strip(Event::MouseDown, 0);
    EXPECT_EQ(DrawHeight, 255);
    EXPECT_EQ(MouseState, 4);
    strip(Event::MouseMove, 100.5);
    EXPECT_EQ(DrawHeight, 154);  // 154.5 to even
    strip(Event::MouseMove, 99.5);
    EXPECT_EQ(DrawHeight, 156);  // 155.5 to even
    EXPECT_EQ(Form1.Label19.Caption, metresText(156));
}

TEST_F(PickerStrip, the_picker_drag_ends_at_253) {
    strip(Event::MouseDown, 100);
    strip(Event::MouseMove, 252);
    EXPECT_EQ(DrawHeight, 3);
    strip(Event::MouseMove, 253);
    EXPECT_EQ(DrawHeight, 3);
    EXPECT_EQ(MouseState, 0);
    strip(Event::MouseMove, 100);
    EXPECT_EQ(DrawHeight, 3);
    // A release reaches two further.
    strip(Event::MouseDown, 100);
    strip(Event::MouseUp, 254);
    EXPECT_EQ(DrawHeight, 1);
    EXPECT_EQ(MouseState, 0);
    strip(Event::MouseDown, 100);
    strip(Event::MouseUp, 255);
    EXPECT_EQ(DrawHeight, 155);
    EXPECT_EQ(MouseState, 0);
}

TEST_F(PickerStrip, a_drag_ends_above_the_strip) {
    strip(Event::MouseDown, 100);
    strip(Event::MouseMove, -1);
    EXPECT_EQ(DrawHeight, 155);
    EXPECT_EQ(MouseState, 0);
}

TEST_F(PickerStrip, a_release_at_the_very_top_picks_255) {
    strip(Event::MouseDown, 100);
    strip(Event::MouseUp, 0);
    EXPECT_EQ(DrawHeight, 255);
    strip(Event::MouseDown, 100);
    strip(Event::MouseUp, -1);
    EXPECT_EQ(DrawHeight, 155);
}

TEST_F(PickerStrip, a_move_without_a_press_picks_nothing) {
    strip(Event::MouseMove, 10);
    EXPECT_EQ(DrawHeight, 40);
}

}  // namespace

}  // namespace ombrelia
