// The look of the toolkit's own dialogs, so that they belong to the skin's windows.
#pragma once

class QDialog;
class QMessageBox;

namespace ombrelia {

class Skin;

// Units of the editor's windows as device pixels.
int pixels(double units, double scale);

// Colours and letters of every dialog that the toolkit draws itself; the desktop's own stay as they
// are. scale: device pixels to a unit. Cheap after the first call.
void dressApplication(double scale);

// Any other dialog without a system frame, in the same colours, with its title in bold at its top,
// by which it moves.
void dressDialog(QDialog& dialog, double scale);

// A message box without a system frame, in the skin's colours; with the light that says stop as
// icon, or with none.
void dressMessageBox(QMessageBox& box, Skin& skin, double scale, bool hasStopIcon);

}  // namespace ombrelia
