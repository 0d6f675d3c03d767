// The kinds of pictures that can become a map.
#pragma once

namespace ombrelia {

// A kind is known by a file's content, whatever its name.
struct PictureKind {
    const char* name;          // as the guide has it
    const char* suffixes;      // of its files, a blank between them
    const char* toolkitNames;  // a blank between them; none where our own reader needs none
};

// The same on every machine, whatever plug-ins the toolkit has. No vectors, no films.
inline constexpr PictureKind kPictureKinds[] = {
    {"BMP", "bmp", ""},
    {"PNG", "png", "png"},
    {"JPEG", "jpg jpeg", "jpeg jpg"},
    {"GIF", "gif", "gif"},
    {"TIFF", "tif tiff", "tiff tif"},
    {"WebP", "webp", "webp"},
    {"TGA", "tga", ""},
    {"PBM", "pbm", "pbm"},
    {"PGM", "pgm", "pgm"},
    {"PPM", "ppm", "ppm"},
    {"XPM", "xpm", "xpm"},
    {"ICO", "ico", "ico"},
    {"CUR", "cur", "cur"},
    {"WBMP", "wbmp", "wbmp"},
};

}  // namespace ombrelia
