#include "games/maze/maze_test.h"

#include <sstream>

#include "platform/dispatch.h"
#include "platform/window_life.h"

namespace ombrelia::maze {

void NotingPainter::fill(std::span<const PixelPoint> corners, Color brush) {
    std::ostringstream text;
    text << std::hex << brush << std::dec;
    for (const PixelPoint& corner : corners) {
        text << ' ' << corner.x << ',' << corner.y;
    }
    notes.push_back(text.str());
}

void NotingPainter::line(PixelPoint from, PixelPoint to, Color pen) {
    std::ostringstream text;
    text << "line " << std::hex << pen << std::dec << ' ' << from.x << ',' << from.y << ' ' << to.x
         << ',' << to.y;
    notes.push_back(text.str());
}

void NotingPainter::createPalette(const MazePalette& wanted) {
    palette = wanted;
    notes.emplace_back("create");
}

MazeTest::MazeTest() {
    platform.SecondsPerReading = 0.125;
}

void MazeTest::open(MazeStyle style, int width, int height) {
    runHandler([] { showWindow(frm3DMaze); });
    if (width != frm3DMaze.Width || height != frm3DMaze.Height) {
        deliverResize(frm3DMaze, width, height);
    }
    if (style == MazeStyle::Hexagonal) {
        deliver(frm3DMaze.mnuStyleItem(0), Event::Click);
    }
}

void MazeTest::tick() {
    ASSERT_TRUE(frm3DMaze.Timer1.Enabled);
    deliver(frm3DMaze.Timer1, Event::Timer);
}

int MazeTest::finish() {
    int ticks = 0;
    for (; frm3DMaze.Timer1.Enabled && ticks < 10000; ++ticks) {
        tick();
    }
    return ticks;
}

void MazeTest::key(int code) {
    EventArgs args;
    args.KeyCode = code;
    deliver(frm3DMaze, Event::KeyDown, args);
}

}  // namespace ombrelia::maze
