// Whether a JPEG picture is complete. The toolkit fills a picture that is cut off with grey and
// calls it a success.
#pragma once

class QIODevice;

namespace ombrelia {

// Whether the mark of the end follows the first pixels. The device's place stays as it is.
bool hasJpegEnd(QIODevice& device);

}  // namespace ombrelia
