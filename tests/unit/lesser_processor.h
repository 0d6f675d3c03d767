// Runs what follows as on a processor with narrower vectors than this one's.
#pragma once

#include <algorithm>

#include "platform/wide_vectors.h"

namespace ombrelia {

// Until it goes. More than this processor has cannot be had.
class LesserProcessor {
  public:
    explicit LesserProcessor(Vectors most) { usedVectors = std::min(before_, most); }
    ~LesserProcessor() { usedVectors = before_; }
    LesserProcessor(const LesserProcessor&) = delete;
    LesserProcessor& operator=(const LesserProcessor&) = delete;

  private:
    Vectors before_ = usedVectors;
};

}  // namespace ombrelia
