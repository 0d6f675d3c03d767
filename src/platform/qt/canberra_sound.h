// Button sounds through libcanberra, on a thread of its own that nobody waits for: a sound server
// that is missing or does not answer costs silence and nothing else.
#pragma once

#include <memory>

#include "platform/services.h"

namespace ombrelia {

class CanberraSound : public Sound {
  public:
    std::string programFile(const std::string& name) override;
    void prepare() override;
    void play(const std::string& path) override;

  private:
    struct Queue;

    static void playAll(const std::shared_ptr<Queue>& queue);

    // Shared with the thread, which outlives everything. Made when the first sound is near.
    std::shared_ptr<Queue> queue_;
};

}  // namespace ombrelia
