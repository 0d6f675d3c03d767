// Pictures in files of every kind, for tests of the loader.
#pragma once

#include <QImage>
#include <string>
#include <vector>

#include "platform/surface.h"

namespace ombrelia {

// A smooth picture of many colours.
QImage colorful(int width, int height);

// The toolkit's name of every kind that it reads for us.
std::vector<std::string> toolkitKinds();

// As a file of this kind can hold it: in two colours, for some.
QImage fittedTo(const std::string& kind, const QImage& image);

// The bytes of a file of this kind (the toolkit's name) with this picture. The kinds that the
// toolkit does not write, "gif" and "tga", are written here, "gif" with grey alone.
std::string fileOf(const QImage& image, const std::string& kind);

// What the loader makes of a file with these bytes.
Surface loadBytes(const std::string& bytes);

// What it says when it refuses them, empty if it does not. The file's name is "P".
std::string refusalOfFile(const std::string& bytes);

}  // namespace ombrelia
