// Builds every table of the editor; the first thing that a load of Form1 does.
#pragma once

namespace ombrelia {

void InitEditor();

// Fills SinTable and CosTable: entry k is the sine or cosine of (k - kZeroAngle) / 3 degrees.
void fillAngleTables();

// Fills records 0..74 of OptionStates and GroupCurrent with their start and paints the buttons.
void fillButtons();

}  // namespace ombrelia
