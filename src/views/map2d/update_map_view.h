// Repainting of the map from above.
#pragma once

namespace ombrelia {

// Paints the cells that differ from ShadowMap into the back buffer and shows it (step 1), or paints
// every step-th cell roughly onto the viewport (step above 1). Can be stopped after each row.
void UpdateMapView(int step);

// The refresh that a terrain operation makes after its end.
void RefreshAfterEdit();

// Every cell 0..MapSize is repainted at the next refresh.
void MarkMapForRepaint();

}  // namespace ombrelia
