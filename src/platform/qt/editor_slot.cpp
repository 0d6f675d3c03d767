#include "platform/qt/editor_slot.h"

#include <QFile>
#include <QString>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace ombrelia {

int takeEditorSlot() {
    constexpr int kSlots = 8;
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (folder.isEmpty()) {
        return 0;
    }
    const QString screen = qEnvironmentVariable("DISPLAY").replace('/', '_');
    for (int slot = 0; slot < kSlots; ++slot) {
        const QString path =
            QStringLiteral("%1/ombrelia-terrain-editor%2.%3").arg(folder, screen).arg(slot);
        const int file = ::open(QFile::encodeName(path).constData(),
                                O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600);
        if (file < 0) {
            return 0;
        }
        if (::flock(file, LOCK_EX | LOCK_NB) == 0) {
            return slot;  // held until the process ends
        }
        ::close(file);
    }
    return 0;
}

}  // namespace ombrelia
