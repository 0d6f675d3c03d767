#include "core/windows/text_size.h"

#include <cmath>
#include <sstream>

namespace ombrelia {

namespace {

// Widths of the letters from the blank on, in thousandths of the letter size.
constexpr int kWidths[] = {
    318, 401, 460, 838, 636, 950, 780, 275, 390, 390, 500, 838, 318, 361,  318, 337, 636, 636, 636,
    636, 636, 636, 636, 636, 636, 636, 337, 337, 838, 838, 838, 531, 1000, 684, 686, 698, 770, 632,
    575, 775, 752, 295, 295, 656, 557, 863, 748, 787, 603, 787, 695, 635,  611, 732, 684, 989, 685,
    611, 685, 390, 337, 390, 838, 500, 500, 613, 635, 550, 635, 615, 352,  635, 634, 278, 278, 579,
    278, 974, 634, 612, 635, 635, 411, 521, 392, 634, 592, 818, 592, 592,  525, 636, 337, 636, 838};
constexpr int kWidestLetter = 1000;

// Letters are set on whole pixels at small sizes, which widens some.
constexpr double kWidthReserve = 1.02;
constexpr double kLineHeight = 1.37;  // in letter sizes

double letterWidth(char letter) {
    const int place = static_cast<unsigned char>(letter) - ' ';
    const bool isKnown = place >= 0 && place < static_cast<int>(std::size(kWidths));
    return isKnown ? kWidths[place] : kWidestLetter;
}

// In letter sizes.
double wordWidth(const std::string& word) {
    double thousandths = 0;
    for (const char letter : word) {
        thousandths += letterWidth(letter);
    }
    return thousandths * kWidthReserve / 1000;
}

int linesOfParagraph(const std::string& paragraph, double room) {
    std::istringstream words(paragraph);
    const double blank = wordWidth(" ");
    int lines = 1;
    double used = 0;
    for (std::string word; words >> word;) {
        const double width = wordWidth(word);
        const bool isFirst = used == 0;
        if (!isFirst && used + blank + width > room) {
            ++lines;
            used = width;
        } else {
            used += width + (isFirst ? 0 : blank);
        }
    }
    return lines;
}

}  // namespace

int wrappedLines(const std::string& text, double letterSize, double width) {
    std::istringstream paragraphs(text);
    int lines = 0;
    for (std::string paragraph; std::getline(paragraphs, paragraph);) {
        lines += linesOfParagraph(paragraph, width / letterSize);
    }
    return lines;
}

double wrappedHeight(const std::string& text, double letterSize, double width) {
    return std::ceil(wrappedLines(text, letterSize, width) * letterSize * kLineHeight) + 2;
}

}  // namespace ombrelia
