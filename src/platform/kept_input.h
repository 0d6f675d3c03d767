// Keeps the user's input back while a handler waits.
#pragma once

#include <deque>
#include <functional>

namespace ombrelia {

class KeptInput {
  public:
    // While one of these lives, a handler waits: it is not entered by others.
    class Hold {
      public:
        explicit Hold(KeptInput& input);
        ~Hold();
        Hold(const Hold&) = delete;
        Hold& operator=(const Hold&) = delete;

      private:
        KeptInput& input_;
    };

    bool isHolding() const { return holds_ > 0; }

    // Runs the event of a press, a move, a key or a menu, after those that were kept before it;
    // keeps it while a handler waits.
    void hand(std::function<void()> event);

    // Runs what was kept, in its order, until a handler waits again.
    void replay();

    // Called when a wait has ended and something was kept: the back end is to call replay soon,
    // from outside of any handler.
    std::function<void()> OnReleased;

  private:
    int holds_ = 0;
    std::deque<std::function<void()>> kept_;
};

}  // namespace ombrelia
