// The editor from its start to its first painted window, then the end.
#include <cstdlib>

#include "app/bindings.h"
#include "core/windows/form1.h"
#include "core/windows/small_windows.h"
#include "desk/startup.h"
#include "platform/program.h"

int main(int argc, char** argv) {
    ombrelia::bindEvents();
    return ombrelia::runProgram(
        argc, argv,
        {ombrelia::startEditor,
         ombrelia::repairAfterFailure,
         {ombrelia::Form1.Width, ombrelia::HelpFrm.Width, ombrelia::Form1.Height},
         0,
         [] { std::_Exit(0); }});
}
