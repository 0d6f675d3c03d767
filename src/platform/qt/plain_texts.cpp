#include "platform/qt/plain_texts.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QLabel>

namespace ombrelia {

bool PlainTexts::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::Polish:
            if (auto* label = qobject_cast<QLabel*>(watched)) {
                label->setTextFormat(Qt::PlainText);
                label->setOpenExternalLinks(false);
            }
            return false;
        case QEvent::ToolTip:
            return qobject_cast<QAbstractItemView*>(watched->parent()) != nullptr;
        default:
            return false;
    }
}

}  // namespace ombrelia
