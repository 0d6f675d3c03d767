// Pictures of the kinds that the toolkit reads, each as a whole.
#pragma once

#include <string>

class QIODevice;

namespace ombrelia {

class Surface;

// What the toolkit makes of a file's content; path is for messages. Throws PictureFailure.
void readToolkitPicture(QIODevice& device, const std::string& path, Surface& picture);

}  // namespace ombrelia
