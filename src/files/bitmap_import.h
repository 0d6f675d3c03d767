// The import: any picture that the platform can load becomes the terrain.
#pragma once

#include <cstdint>

namespace ombrelia {

// Asks for a picture and makes it the map: heights, MapSize, title, view. False on Cancel, when
// there is nothing of that name, and when the reading of the file was stopped. Throws
// PictureFailure, with the map and the back buffer as before.
[[nodiscard]] bool importPicture();

// How a picture is brought to one of the four sizes.
struct ImportPlan {
    std::int16_t target;  // MapSize afterwards
    bool isDirect;        // point for point, otherwise sampled
};

// For the smaller side of the picture, in pixels.
[[nodiscard]] ImportPlan planImport(int smallerSide);

// Height of a packed colour: the mean of its components; -1 (outside the picture) gives 0.
std::int16_t heightOfColor(std::int32_t color);

}  // namespace ombrelia
