#include "platform/qt/input_keeper.h"

#include <QCoreApplication>
#include <algorithm>
#include <iterator>
#include <utility>

namespace ombrelia {

namespace {

constexpr QEvent::Type kInput[] = {
    QEvent::MouseButtonPress,
    QEvent::MouseButtonRelease,
    QEvent::MouseButtonDblClick,
    QEvent::MouseMove,
    QEvent::Wheel,
    QEvent::KeyPress,
    QEvent::KeyRelease,
    QEvent::Enter,
    QEvent::Leave,
};

}  // namespace

InputKeeper::Hold::Hold(InputKeeper& keeper) : keeper_(keeper) {
    if (keeper_.holds_++ == 0) {
        QCoreApplication::instance()->installEventFilter(&keeper_);
    }
}

InputKeeper::Hold::~Hold() {
    if (--keeper_.holds_ > 0) {
        return;
    }
    QCoreApplication::instance()->removeEventFilter(&keeper_);
    for (Kept& kept : std::exchange(keeper_.kept_, {})) {
        if (!kept.target.isNull()) {
            QCoreApplication::postEvent(kept.target.data(), kept.event.release());
        }
    }
}

// The system's window gets an event first; the widgets in it have seen nothing of it yet.
bool InputKeeper::eventFilter(QObject* target, QEvent* event) {
    const bool isInput =
        std::find(std::begin(kInput), std::end(kInput), event->type()) != std::end(kInput);
    if (!isInput || !target->isWindowType()) {
        return false;
    }
    kept_.push_back({target, std::unique_ptr<QEvent>(event->clone())});
    return true;
}

}  // namespace ombrelia
