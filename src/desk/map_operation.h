// A long operation that a gesture on the map begins.
#pragma once

#include <functional>

namespace ombrelia {

// Does it now; or, since an import leaves the map enabled while it writes the heights, after the
// import, along the recorded path as it is now.
void operate(const std::function<void()>& operation);

}  // namespace ombrelia
