// The maze window on a platform without a screen, and a painter that notes what is painted.
#pragma once

#include <string>
#include <vector>

#include "core/windows/maze_window.h"
#include "editor_fixture.h"
#include "games/maze/maze_state.h"
#include "games/maze/maze_view.h"

namespace ombrelia::maze {

// A line of text for everything that is painted.
class NotingPainter : public MazePainter {
  public:
    std::vector<std::string> notes;
    MazePalette palette;

    void clear() override { notes.emplace_back("clear"); }
    void fill(std::span<const PixelPoint> corners, Color brush) override;
    void line(PixelPoint from, PixelPoint to, Color pen) override;
    void createPalette(const MazePalette& wanted) override;
    void selectPalette() override { notes.emplace_back("select"); }
    void restorePalette() override { notes.emplace_back("restore"); }
};

class MazeTest : public ProcessTest {
  protected:
    MazeTest();
    ~MazeTest() override { setMazePainter(nullptr); }

    // The window on show, its first maze not yet made.
    void open(MazeStyle style, int width = 440, int height = 320);
    void tick();
    // Ticks until the timer is off; how many.
    int finish();
    void key(int code);
    std::string text() const { return frm3DMaze.Text1.Caption; }
    // Puts the painter that notes in force.
    void note() { setMazePainter(&painter); }

    NotingPainter painter;
};

}  // namespace ombrelia::maze
