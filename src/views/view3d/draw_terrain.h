// The map in perspective, drawn cell after cell from the far side to the near one.
#pragma once

namespace ombrelia {

inline constexpr int kFullDrawing = 0;
inline constexpr int kQuickGrid = 1;

// Clears MapView and draws every step-th point (step above 0). The full drawing takes the selected
// style and Draw Width, shows each row, reports progress and can be stopped after each row; the
// quick grid is lines of one pixel, done at once and not refreshed.
void DrawTerrain3D(int step, int mode);

// The quick grid with the step that fits the map.
void DrawQuickGrid();

}  // namespace ombrelia
