// What a window looked like when it was last painted, and so what is to be painted anew.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "platform/control.h"
#include "platform/window_layout.h"

namespace ombrelia {

class WindowLook {
  public:
    // Compares the window, at scale device pixels a unit, with the last time. Tells of each place
    // that differs and of the part that does; of the whole window with no part. True if any did.
    bool update(const Window& window, double scale,
                const std::function<void(const PixelRect&, Control*)>& changed);

    // Everything is to be painted anew.
    void forget() { parts_.clear(); }

  private:
    struct Part {
        PixelRect place;
        PixelPoint corner{};  // uncut, of a line its container's: what is cut off moves unseen
        PictureFace face;
        std::string caption;
        std::array<double, 4> ends{};  // of a line
        std::uint64_t revision = 0;
        std::uint64_t style = 0;
        bool isEnabled = true;
        bool operator==(const Part& other) const;
    };

    static Part lookOf(const Control& control, double scale);

    PictureFace ground_;  // of the window itself
    std::vector<Part> parts_;
};

}  // namespace ombrelia
