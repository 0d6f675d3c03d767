// The editor on a screen.
#include <csignal>

#include "app/bindings.h"
#include "core/windows/form1.h"
#include "core/windows/small_windows.h"
#include "desk/startup.h"
#include "platform/program.h"

int main(int argc, char** argv) {
    // A file-size limit is an error of writing, to be told like any other.
    std::signal(SIGXFSZ, SIG_IGN);
    ombrelia::bindEvents();
    return ombrelia::runProgram(
        argc, argv,
        {.start = ombrelia::startEditor,
         .repair = ombrelia::repairAfterFailure,
         .editor = {ombrelia::Form1.Width, ombrelia::HelpFrm.Width, ombrelia::Form1.Height},
         .hasWork = ombrelia::hasDrawnMap});
}
