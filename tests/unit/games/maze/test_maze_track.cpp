// The track as a new picture shows it.
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "games/maze/maze_play_test.h"
#include "platform/window_life.h"

namespace ombrelia::maze {

namespace {

struct Stroke {
    unsigned pen = 0;
    PixelPoint from, to;
};

bool isNear(PixelPoint a, PixelPoint b) {
    return std::abs(a.x - b.x) <= 1 && std::abs(a.y - b.y) <= 1;
}

class MazeTrack : public MazePlay {
  protected:
    std::vector<Stroke> strokes() const {
        std::vector<Stroke> found;
        for (const std::string& note : painter.notes) {
            Stroke s;
            if (std::sscanf(note.c_str(), "line %x %d,%d %d,%d", &s.pen, &s.from.x, &s.from.y,
                            &s.to.x, &s.to.y) == 5) {
                found.push_back(s);
            }
        }
        return found;
    }

    std::vector<Stroke> repainted() {
        painter.notes.clear();
        deliver(frm3DMaze, Event::Paint);
        finish();
        return strokes();
    }
};

// Each step of the walk is painted again as two halves, from both its rooms to the same middle.
TEST_F(MazeTrack, a_walk_is_painted_again_by_halves) {
    for (const MazeStyle style : kStyles) {
        open(style);
        finish();
        note();
        painter.notes.clear();
        walkOut(style, false);
        const std::vector<Stroke> walked = strokes();
        const std::vector<Stroke> again = repainted();
        // The last step leaves the maze; the entrance has a stroke of its own.
        ASSERT_EQ(again.size(), 2 * (walked.size() - 1) + 2);
        for (std::size_t n = 0; n + 1 < walked.size(); ++n) {
            const auto halfFrom = [&](PixelPoint room, PixelPoint other) {
                const PixelPoint middle = {(room.x + other.x) / 2, (room.y + other.y) / 2};
                return std::count_if(again.begin(), again.end(), [&](const Stroke& s) {
                    return isNear(s.from, room) && std::abs(s.to.x - middle.x) <= 4 &&
                           std::abs(s.to.y - middle.y) <= 4;
                });
            };
            EXPECT_EQ(halfFrom(walked[n].from, walked[n].to), 1) << n;
            EXPECT_EQ(halfFrom(walked[n].to, walked[n].from), 1) << n;
        }
        EXPECT_TRUE(std::all_of(again.begin(), again.end(),
                                [](const Stroke& s) { return s.pen == 0xFF00U; }));
        setMazePainter(nullptr);
        choose(frm3DMaze.mnuStyleItem(1));
    }
}

TEST_F(MazeTrack, a_way_gone_back_is_painted_again_in_yellow) {
    for (const MazeStyle style : kStyles) {
        open(style);
        finish();
        const int d = directionWhere(style, true);
        key(keysOf(style)[d].code);
        key(keysOf(style)[opposite(style, d)].code);
        note();
        const std::vector<Stroke> again = repainted();
        ASSERT_EQ(again.size(), 3U);
        EXPECT_EQ(std::count_if(again.begin(), again.end(),
                                [](const Stroke& s) { return s.pen == 0xFFFFU; }),
                  2);
        setMazePainter(nullptr);
        choose(frm3DMaze.mnuStyleItem(1));
    }
}

TEST_F(MazeTrack, a_closed_window_ticks_no_more_and_opens_with_squares) {
    open(MazeStyle::Hexagonal);
    tick();
    EXPECT_TRUE(frm3DMaze.Timer1.Enabled);
    unloadWindow(frm3DMaze);
    EXPECT_FALSE(frm3DMaze.Timer1.Enabled);
    showWindow(frm3DMaze);
    EXPECT_FALSE(frm3DMaze.mnuStyleItem(0).Checked);
    EXPECT_TRUE(frm3DMaze.mnuStyleItem(1).Checked);
}

// The clock is read once before the search and once after each candidate.
TEST_F(MazeTrack, the_window_searches_for_a_quarter_of_a_second) {
    const struct {
        double step;
        int candidates;
    } rows[] = {{0.125, 2}, {0.2421875, 2}, {0.25, 1}, {0.2578125, 1}};
    for (const auto& row : rows) {
        open(MazeStyle::Square);
        platform.SecondsPerReading = row.step;
        platform.Seconds = 43200;
        tick();
        EXPECT_EQ((platform.Seconds - 43200) / row.step, row.candidates + 1) << row.step;
        choose(frm3DMaze.mnuActionItem(0));
    }
}

// Rooms of 360 twips, 15 twips a pixel; the rows follow the shape of what the bars leave.
TEST_F(MazeTrack, the_window_sets_the_number_of_rooms) {
    open(MazeStyle::Square, 640, 300);
    tick();
    const double width = 640 - frm3DMaze.VScroll1.Width;
    const double height = frm3DMaze.Height - frm3DMaze.Text1.Height;
    EXPECT_GT(NumColumns, NumRows);
    EXPECT_EQ(NumRows, static_cast<int>(NumColumns * height / width));
}

}  // namespace

}  // namespace ombrelia::maze
