#include <string>
#include <vector>

#include "editor_fixture.h"
#include "platform/dispatch.h"
#include "platform/window_life.h"

namespace ombrelia {

namespace {

using Log = std::vector<std::string>;

Log dispatched;
EventArgs dispatchedArgs;

void keepArgs(EventArgs& args) {
    dispatchedArgs = args;
    dispatched.push_back(args.Source->Name);
}

void put(Control& control, const char* name, Control& parent, Window& window, double left,
         double top, double width, double height) {
    control.Name = name;
    control.Parent = &parent;
    control.Owner = &window;
    control.Left = left;
    control.Top = top;
    control.Width = width;
    control.Height = height;
    control.On[static_cast<std::size_t>(Event::MouseDown)] = keepArgs;
    window.Controls.push_back(&control);
}

// A window of 100 x 80: a frame with a border of 2 at (10, 20) that holds a surface, an image that
// reaches beyond the frame's edge, and a label over the image.
class Dispatch : public ProcessTest {
  protected:
    Dispatch() {
        dispatched.clear();
        dispatchedArgs = {};
        window.Name = "Probe";
        window.Owner = &window;
        window.Width = 100;
        window.Height = 80;
        window.On[static_cast<std::size_t>(Event::MouseDown)] = keepArgs;
        put(frame, "frame", window, window, 10, 20, 50, 40);
        frame.Border = 2;
        put(surface, "surface", frame, window, 5, 5, 10, 10);
        surface.makeCanvas();
        put(image, "image", frame, window, 30, 5, 40, 20);
        put(label, "label", frame, window, 32, 7, 8, 8);
        put(line, "line", window, window, 0, 0, 100, 80);
    }

    std::string nameAt(double x, double y) { return controlAt(window, x, y).Name; }

    void press(Control& control, double x, double y) {
        deliverMouse(control, Event::MouseDown, MouseButton::Left, x, y);
    }

    Window window;
    PictureBox frame;
    PictureBox surface;
    Image image;
    Label label;
    Line line;
};

TEST_F(Dispatch, corners_count_the_borders_of_all_that_contains_a_part) {
    EXPECT_EQ(cornerInWindow(window).x, 0);
    EXPECT_EQ(cornerInWindow(frame).x, 12);
    EXPECT_EQ(cornerInWindow(frame).y, 22);
    EXPECT_EQ(cornerInWindow(surface).x, 17);
    EXPECT_EQ(cornerInWindow(label).x, 44);
    EXPECT_EQ(cornerInWindow(label).y, 29);
}

TEST_F(Dispatch, the_topmost_part_is_found_edge_for_edge) {
    EXPECT_EQ(nameAt(0, 0), "Probe");
    EXPECT_EQ(nameAt(9.9, 30), "Probe");
    EXPECT_EQ(nameAt(10, 20), "frame");  // on its border
    EXPECT_EQ(nameAt(59.9, 59.9), "frame");
    EXPECT_EQ(nameAt(60, 30), "Probe");
    EXPECT_EQ(nameAt(17, 27), "surface");
    EXPECT_EQ(nameAt(26.9, 36.9), "surface");
    EXPECT_EQ(nameAt(27, 36.9), "frame");
    EXPECT_EQ(nameAt(43, 30), "image");
    EXPECT_EQ(nameAt(44, 29), "label");
    EXPECT_EQ(nameAt(52, 30), "image");
}

TEST_F(Dispatch, a_part_is_cut_off_by_what_contains_it) {
    EXPECT_EQ(nameAt(58, 40), "image");
    EXPECT_EQ(nameAt(65, 40), "Probe");
}

TEST_F(Dispatch, what_cannot_be_seen_is_not_found) {
    label.Visible = false;
    EXPECT_EQ(nameAt(44, 29), "image");
    EXPECT_FALSE(isShown(label));
    frame.Visible = false;
    EXPECT_EQ(nameAt(44, 29), "Probe");
    EXPECT_FALSE(isShown(surface));
    label.Visible = true;
    EXPECT_FALSE(isShown(label));
    window.Visible = true;
    frame.Visible = true;
    EXPECT_TRUE(isShown(label));
}

TEST_F(Dispatch, a_disabled_part_is_found_and_gets_nothing) {
    image.Enabled = false;
    EXPECT_EQ(nameAt(43, 30), "image");
    press(image, 1, 1);
    EXPECT_TRUE(dispatched.empty());
}

TEST_F(Dispatch, what_a_disabled_part_contains_gets_nothing) {
    frame.Enabled = false;
    press(label, 1, 1);
    EXPECT_TRUE(dispatched.empty());
    EXPECT_FALSE(isEnabled(label));
    frame.Enabled = true;
    press(label, 1, 1);
    EXPECT_EQ(dispatched, Log{"label"});
}

TEST_F(Dispatch, the_pointer_is_known_even_to_a_disabled_part) {
    image.Enabled = false;
    press(image, 3.5, 4);
    EXPECT_EQ(window.PointerX, 12 + 30 + 3.5);
    EXPECT_EQ(window.PointerY, 22 + 5 + 4);
}

TEST_F(Dispatch, images_and_labels_get_twips) {
    press(image, 2, 3.5);
    EXPECT_EQ(dispatchedArgs.X, 30);
    EXPECT_EQ(dispatchedArgs.Y, 52.5F);
    EXPECT_EQ(dispatchedArgs.Button, MouseButton::Left);
    EXPECT_EQ(dispatchedArgs.Source, &image);
    press(label, -1, 0);
    EXPECT_EQ(dispatchedArgs.X, -15);
}

TEST_F(Dispatch, surfaces_get_their_scale_and_windows_pixels) {
    surface.Canvas.ScaleLeft = -4;
    surface.Canvas.ScaleTop = 100;
    surface.Canvas.ScaleWidth = 20;
    surface.Canvas.ScaleHeight = 5;
    press(surface, 3, 4);
    EXPECT_EQ(dispatchedArgs.X, 2);    // 3 * 20 / 10 - 4
    EXPECT_EQ(dispatchedArgs.Y, 102);  // 4 * 5 / 10 + 100
    press(frame, 6, 7);                // nothing to draw on: one unit a pixel
    EXPECT_EQ(dispatchedArgs.X, 6);
    press(window, 8, 9);
    EXPECT_EQ(dispatchedArgs.X, 8);
    EXPECT_EQ(dispatchedArgs.Y, 9);
}

TEST_F(Dispatch, a_part_without_a_handler_is_left_alone) {
    deliverMouse(image, Event::MouseUp, MouseButton::Left, 1, 1);
    deliver(image, Event::Click);
    raise(image, Event::Click);
    EXPECT_TRUE(dispatched.empty());
    EXPECT_TRUE(platform.Failures.empty());
}

TEST_F(Dispatch, the_handler_is_told_the_subscript) {
    image.Index = 17;
    press(image, 0, 0);
    EXPECT_EQ(dispatchedArgs.Index, 17);
}

TEST_F(Dispatch, a_handler_is_known_to_run_until_it_returns) {
    EXPECT_FALSE(isHandling());
    bool wasHandling = false;
    runHandler([&] { wasHandling = isHandling(); });
    EXPECT_TRUE(wasHandling);
    EXPECT_FALSE(isHandling());
}

TEST_F(Dispatch, a_failure_ends_its_handler_only) {
    runHandler([] {
        dispatched.push_back("before");
        throw SubscriptFailure(9, 0, 5);
    });
    runHandler([] { dispatched.push_back("next"); });
    EXPECT_EQ(dispatched, (Log{"before", "next"}));
    ASSERT_EQ(platform.Failures.size(), 1U);
    EXPECT_EQ(platform.Failures[0], SubscriptFailure(9, 0, 5).what());
    EXPECT_FALSE(isNested());
}

TEST_F(Dispatch, a_failure_inside_a_yield_leaves_the_outer_handler_running) {
    platform.OnYield = [] { runHandler([] { throw OverflowFailure(1, 16); }); };
    runHandler([] {
        yieldToEvents();
        dispatched.push_back("outer goes on");
    });
    EXPECT_EQ(dispatched, Log{"outer goes on"});
    EXPECT_EQ(platform.Failures.size(), 1U);
}

TEST_F(Dispatch, a_raised_events_failure_reaches_the_caller) {
    image.On[static_cast<std::size_t>(Event::Click)] = [](EventArgs&) {
        throw MissingPartFailure("probe", 1);
    };
    EXPECT_THROW(raise(image, Event::Click), MissingPartFailure);
    deliver(image, Event::Click);
    EXPECT_EQ(platform.Failures.size(), 1U);
}

TEST_F(Dispatch, the_end_of_the_process_passes_through) {
    EXPECT_THROW(runHandler([] { endProcess(); }), ProcessEnd);
    EXPECT_FALSE(isNested());
    runHandler([] { dispatched.push_back(isNested() ? "nested" : "not nested"); });
    EXPECT_EQ(dispatched, Log{"not nested"});
}

TEST_F(Dispatch, handlers_inside_a_yield_are_nested) {
    platform.OnYield = [] {
        runHandler([] { dispatched.push_back(isNested() ? "nested" : "not nested"); });
    };
    runHandler([] {
        dispatched.push_back(isNested() ? "nested" : "not nested");
        yieldToEvents();
        dispatched.push_back(isNested() ? "nested" : "not nested");
    });
    EXPECT_EQ(dispatched, (Log{"not nested", "nested", "not nested"}));
}

// A real platform wraps an event once more.
TEST_F(Dispatch, a_handler_inside_a_handler_is_not_nested_without_a_yield) {
    runHandler(
        [] { runHandler([] { dispatched.push_back(isNested() ? "nested" : "not nested"); }); });
    EXPECT_EQ(dispatched, Log{"not nested"});
}

TEST_F(Dispatch, yields_are_counted) {
    EXPECT_EQ(yieldCount(), 0);
    yieldToEvents();
    yieldToEvents();
    EXPECT_EQ(yieldCount(), 2);
    resetDispatch();
    EXPECT_EQ(yieldCount(), 0);
}

TEST_F(Dispatch, what_is_put_off_runs_by_kind_when_the_outermost_handler_has_returned) {
    platform.OnYield = [] {
        runHandler([] {
            putOff(5, [] { dispatched.push_back("five"); });
            putOff(2, [] { dispatched.push_back("two, first"); });
            putOff(2, [] { dispatched.push_back("two, last"); });
        });
        dispatched.push_back("inner returned");
    };
    runHandler([] {
        yieldToEvents();
        dispatched.push_back("outer returned");
    });
    EXPECT_EQ(dispatched, (Log{"inner returned", "outer returned", "two, last", "five"}));
}

TEST_F(Dispatch, what_is_put_off_can_put_off_more_and_can_fail) {
    runHandler([] {
        putOff(1, [] {
            dispatched.push_back("one");
            putOff(0, [] { dispatched.push_back("zero"); });
            throw OverflowFailure(1, 16);
        });
        putOff(3, [] { dispatched.push_back("three"); });
    });
    EXPECT_EQ(dispatched, (Log{"one", "zero", "three"}));
    EXPECT_EQ(platform.Failures.size(), 1U);
}

TEST_F(Dispatch, a_failed_handler_still_lets_what_was_put_off_run) {
    runHandler([] {
        putOff(1, [] { dispatched.push_back("one"); });
        throw OverflowFailure(1, 16);
    });
    EXPECT_EQ(dispatched, Log{"one"});
}

TEST_F(Dispatch, putting_off_asks_the_running_operation_to_stop) {
    setStopRequest([] { dispatched.push_back("stop asked for"); });
    runHandler([] { putOff(1, [] { dispatched.push_back("done"); }); });
    EXPECT_EQ(dispatched, (Log{"stop asked for", "done"}));
}

TEST_F(Dispatch, a_window_closed_inside_a_yield_goes_when_the_handler_has_returned) {
    loadWindow(window);
    platform.OnYield = [this] { deliverClose(window); };
    runHandler([this] {
        yieldToEvents();
        dispatched.push_back(window.Loaded ? "still loaded" : "gone");
    });
    EXPECT_EQ(dispatched, Log{"still loaded"});
    EXPECT_FALSE(window.Loaded);
}

TEST_F(Dispatch, windows_that_stand_alone_close_later_too_and_stop_nothing) {
    Window other;
    setStopRequest([] { dispatched.push_back("stop asked for"); });
    window.StandsAlone = true;
    other.StandsAlone = true;
    loadWindow(window);
    loadWindow(other);
    runHandler([&] {
        EXPECT_FALSE(hasPutOff());
        deliverClose(window);
        deliverClose(other);
        deliverClose(window);
        EXPECT_TRUE(hasPutOff());
        dispatched.push_back(window.Loaded && other.Loaded ? "still loaded" : "gone");
    });
    EXPECT_EQ(dispatched, Log{"still loaded"});
    EXPECT_FALSE(window.Loaded);
    EXPECT_FALSE(other.Loaded);
    EXPECT_FALSE(hasPutOff());
}

TEST_F(Dispatch, a_window_closed_at_rest_goes_at_once) {
    loadWindow(window);
    deliverClose(window);
    EXPECT_FALSE(window.Loaded);
    EXPECT_EQ(platform.Calls, Log{"unload Probe"});
}

}  // namespace

}  // namespace ombrelia
