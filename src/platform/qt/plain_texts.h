// No text from outside is ever markup: names of files and folders, texts of settings.
#pragma once

#include <QObject>

namespace ombrelia {

// While it is the application's event filter, every label of every dialog shows its text as it
// stands before it is first seen, and lists show no tips, which would read names as markup.
class PlainTexts : public QObject {
  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace ombrelia
