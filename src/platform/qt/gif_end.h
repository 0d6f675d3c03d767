// Whether a GIF is complete. The toolkit fills up one that is cut off, and calls it a success.
#pragma once

class QIODevice;

namespace ombrelia {

// Whether the file holds the whole first picture, from the device's place on, which stays.
bool isGifComplete(QIODevice& device);

}  // namespace ombrelia
