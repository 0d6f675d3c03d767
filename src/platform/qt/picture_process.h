// The process that reads a picture for the editor, and what the two say to each other.
#pragma once

#include <optional>

namespace ombrelia {

// The argument behind which the seconds that it may take and the picture's path stand.
inline constexpr const char* kReadPictureWord = "--read-picture";

// What the reader says on its standard output, each word with its values behind it: the size (two
// ints), which is answered on its standard input by a PictureGrid; then the pixels that it names
// (two ints, then the rows) or a sentence (its length, then its bytes).
enum class PictureWord : char { Size, Pixels, Failure };

// The exit status of a reader that has used up its time.
inline constexpr int kTimeIsUp = 3;

// Reads a picture if the arguments ask for it; its exit status then.
std::optional<int> runPictureReader(int argc, char** argv);

}  // namespace ombrelia
