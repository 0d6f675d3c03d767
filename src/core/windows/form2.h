// The window of the worm game.
#pragma once

#include "platform/control.h"

namespace ombrelia {

inline constexpr int kFoodPictures = pictureInfo(Picture::WormFood).faces;

struct Form2Window : Window {
    Timer Timer1;             // 150 ms, never changed
    PictureBox Picture1;      // the ground that the game draws on, as large as the window
    PictureBox Label2;        // the food item, moved from cell to cell
    ControlArray<Image> Arr;  // pictures of the food items, never seen themselves
    Label Label1;             // shown from level 4 on
    Label Label28;            // nobody writes it
    Form2Window();
};
extern Form2Window Form2;

}  // namespace ombrelia
