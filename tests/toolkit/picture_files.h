// Pictures in files of every kind, for tests of the loader.
#pragma once

#include <QImage>
#include <string>

#include "platform/surface.h"

namespace ombrelia {

// A smooth picture of many colours.
QImage colorful(int width, int height);

// The bytes of a file of this kind (the toolkit's name) with this picture. The kinds that the
// toolkit does not write, "gif" and "tga", are written here, "gif" with grey alone.
std::string fileOf(const QImage& image, const char* kind);

// What the loader makes of a file with these bytes.
Surface loadBytes(const std::string& bytes);

// What it says when it refuses them, empty if it does not. The file's name is "P".
std::string refusalOfFile(const std::string& bytes);

}  // namespace ombrelia
