// The switch between the view from above and the view in perspective.
#pragma once

namespace ombrelia {

inline constexpr int kMode2D = 1;
inline constexpr int kMode3D = 2;

// Shows the frame of the mode and sets its records; the view from above is painted, the one in
// perspective as its quick grid.
void SwitchViewMode(int mode);

}  // namespace ombrelia
