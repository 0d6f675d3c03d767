// The worm game open on a platform without a screen.
#pragma once

#include "core/windows/form2.h"
#include "editor_fixture.h"
#include "games/worm/worm.h"
#include "games/worm/worm_state.h"
#include "pixel_at.h"
#include "platform/dispatch.h"
#include "register/reset_process.h"

namespace ombrelia::worm {

class WormTest : public ProcessTest {
  protected:
    // A fresh process with the game open; draws come from the generator with this start.
    void openGame(std::uint32_t seed = 1) {
        resetProcess();
        platform.RandomState = seed;
        platform.Calls.clear();
        deliver(opener(), Event::DblClick);
    }

    static void tick(int times = 1) {
        for (int i = 0; i < times; ++i) {
            deliver(Form2.Timer1, Event::Timer);
        }
    }

    static void key(int code) {
        EventArgs args;
        args.KeyCode = code;
        deliver(Form2, Event::KeyDown, args);
    }

    // Puts the head somewhere, with food out of its way.
    static void putHead(int x, int y, int heading) {
        HeadX = static_cast<std::int16_t>(x);
        HeadY = static_cast<std::int16_t>(y);
        Heading = static_cast<std::int16_t>(heading);
        putFood(15, 15);
    }

    static void putFood(int x, int y) {
        Form2.Label2.Left = x * CellSize;
        Form2.Label2.Top = y * CellSize;
    }

    static Color colorAt(int x, int y) {
        return static_cast<Color>(pixelAt(Form2.Picture1.Canvas, x * 30 + 15, y * 30 + 15));
    }

  private:
    // What the game is opened through.
    static Label& opener() {
        static Label label;
        label.On[static_cast<std::size_t>(Event::DblClick)] = Label41_DblClick;
        return label;
    }
};

}  // namespace ombrelia::worm
