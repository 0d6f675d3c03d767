// How much room a text takes, reckoned without a screen: generous enough for every letter set that
// the editor is shown in.
#pragma once

#include <string>

namespace ombrelia {

// Number of lines that a text wraps to in a label of this width in units; letterSize as in
// Label::FontSize. A line break begins a new line.
int wrappedLines(const std::string& text, double letterSize, double width);

// Height in units of a label that shows all these lines.
double wrappedHeight(const std::string& text, double letterSize, double width);

}  // namespace ombrelia
