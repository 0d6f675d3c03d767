// What shows the colour table on the screen: gradient strips, swatches, the picked colour, the
// list.
#pragma once

namespace ombrelia {

// The strip beside the map: one line a height, 255 at the top.
void PaintPicker();

// The gradient of the colour page: one column a height.
void PaintPrefPicker();

// The mark beside the strip, the picked colour and its metres follow DrawHeight.
void UpdatePickedColor();

// The twelve swatches and five markers of the colour page follow the table.
void ShowColorSet();

// Fills Combo1 with "Current Colors" and the stored sets, sorted by name.
void ListColorSets();

}  // namespace ombrelia
