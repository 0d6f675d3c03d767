// The program on the real platform: application object, services, event loop.
#pragma once

#include <functional>
#include <string>

#include "platform/screen_fit.h"

namespace ombrelia {

// What the logic gives to the program.
struct ProgramParts {
    std::function<void()> start;   // shows the first window
    std::function<void()> repair;  // brings the desk in order after a failure
    EditorSize editor;             // what the scale is chosen for
    int yieldMilliseconds = 0;  // how long each yield takes at least; above 0 to watch a run slowly
    std::function<void()> onFirstPaint = {};       // once the first window has been painted
    std::string pictureReader = "/proc/self/exe";  // a program that begins with runProgram
};

// Reads a picture for another process, if that started this one. Else runs the event loop until the
// process is to end; the exit status of the process.
int runProgram(int argc, char** argv, const ProgramParts& parts);

}  // namespace ombrelia
