#include "platform/dispatch.h"
#include "platform/generator_random.h"
#include "platform/program.h"
#include "platform/web/page.h"
#include "platform/web/web_desktop.h"
#include "platform/web/web_services.h"

namespace ombrelia {

int runProgram(int /*argc*/, char** /*argv*/, const ProgramParts& parts) {
    WebDesktop desktop(parts.editor);
    WebDialogs dialogs(desktop);
    WebSettingsStore settings(dialogs);
    WebFiles files;
    WebClock clock;
    GeneratorRandom random;
    WebPictureLoader pictures(desktop);
    WebFailureReport failures(dialogs, parts.repair);
    WebSound sound;
    services() = {&dialogs, &settings, &files,    &clock, &random,
                  &desktop, &failures, &pictures, &sound};
    desktop.OnHandled = [&] {
        settings.save();
        dialogs.handOver();
        page_set_has_work(!desktop.hasEnded() && parts.hasWork && parts.hasWork() ? 1 : 0);
    };
    desktop.run([&parts] { runHandler(parts.start); });
    desktop.runLoop();
    page_ended();
    return 0;
}

}  // namespace ombrelia
