// The life of one run: splash, size dialog, editor, New Map, exit.
#pragma once

#include "platform/control.h"

namespace ombrelia {

// Process start: shows the splash.
void startEditor();

// The command "New Map": asks, then returns to the size dialog.
void StartNewMap();

// Saves the preferences, asks, and on Yes ends the process. Cancels nothing.
void ExitEditor();

// What brings the desk back in order after a run-time failure.
void repairAfterFailure();

// Whether the editor holds a map that is no longer the flat one it began with.
bool hasDrawnMap();

// Handlers of the windows around the editor and of Form1's own events.
void frmSplash_Load(EventArgs& args);
void frmSplash_Timer(EventArgs& args);
void frmSplash_Click(EventArgs& args);
void frmSplash_KeyDown(EventArgs& args);
void SizeSelect_Load(EventArgs& args);
void SizeSelect_Close(EventArgs& args);
void SizeSelect_Choose(EventArgs& args);
void SizeSelect_ButtonDown(EventArgs& args);
void SizeSelect_ButtonMove(EventArgs& args);
void SizeSelect_ButtonUp(EventArgs& args);
void SizeSelect_GroundMove(EventArgs& args);
void SizeSelect_TitleMove(EventArgs& args);
void SizeSelect_JokeMove(EventArgs& args);
void SizeSelect_JokeDblClick(EventArgs& args);
void Form1_Load(EventArgs& args);
void Form1_Unload(EventArgs& args);
void Form1_Close(EventArgs& args);
void Title_MouseDown(EventArgs& args);

}  // namespace ombrelia
