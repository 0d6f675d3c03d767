// Keeps the user's input back while a handler waits. The wish to close a window is no input here.
#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <memory>
#include <vector>

namespace ombrelia {

class InputKeeper : public QObject {
  public:
    // While one of these lives, presses, moves and keys of every window are kept; they go on, in
    // their order, with the first events that are handled after the last one is gone.
    class Hold {
      public:
        explicit Hold(InputKeeper& keeper);
        ~Hold();
        Hold(const Hold&) = delete;
        Hold& operator=(const Hold&) = delete;

      private:
        InputKeeper& keeper_;
    };

    bool isHolding() const { return holds_ > 0; }

  protected:
    bool eventFilter(QObject* target, QEvent* event) override;

  private:
    struct Kept {
        QPointer<QObject> target;
        std::unique_ptr<QEvent> event;
    };

    int holds_ = 0;
    std::vector<Kept> kept_;
};

}  // namespace ombrelia
