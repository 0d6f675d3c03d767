// Whether a picture is complete. The toolkit fills up a picture of some kinds that is cut off, and
// calls it a success.
#pragma once

class QByteArray;
class QIODevice;

namespace ombrelia {

// Whether the file holds the whole first picture, as far as this kind of file (the toolkit's name
// for it) tells; true for kinds where the toolkit finds out by itself. The device's place stays.
bool isPictureComplete(QIODevice& device, const QByteArray& format);

}  // namespace ombrelia
