// The kinds of pictures that can become a map.
#pragma once

namespace ombrelia {

// A kind is known by a file's content, whatever its name.
struct PictureKind {
    const char* name;          // as the guide has it
    const char* toolkitNames;  // a blank between them; none for bitmaps, which have our own reader
};

// The same on every machine, whatever plug-ins the toolkit has. No vectors, no films.
inline constexpr PictureKind kPictureKinds[] = {
    {"BMP", ""},      {"PNG", "png"}, {"JPEG", "jpeg jpg"}, {"GIF", "gif"},   {"TIFF", "tiff tif"},
    {"WebP", "webp"}, {"TGA", "tga"}, {"PBM", "pbm"},       {"PGM", "pgm"},   {"PPM", "ppm"},
    {"XPM", "xpm"},   {"ICO", "ico"}, {"CUR", "cur"},       {"WBMP", "wbmp"},
};

}  // namespace ombrelia
