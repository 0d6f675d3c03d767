// The program on a screen: the services behind it and the loop that hands events over.
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
    std::function<bool()> hasWork = {};            // whether a user would miss what is there
};

// Hands events over until the process is to end; its exit status. May do another thing instead, if
// the program was started for that by itself.
int runProgram(int argc, char** argv, const ProgramParts& parts);

}  // namespace ombrelia
