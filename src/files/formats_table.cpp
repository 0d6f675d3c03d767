#include "files/formats_table.h"

#include <algorithm>
#include <string_view>

namespace ombrelia {

namespace {

char smallLetter(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool endsWith(std::string name, std::string_view suffix) {
    std::transform(name.begin(), name.end(), name.begin(), smallLetter);
    return std::string_view(name).ends_with(suffix);
}

}  // namespace

std::string dialogFilter(std::span<const FileFormat> formats) {
    std::string filter;
    for (const FileFormat& format : formats) {
        const std::string pattern = std::string("*") + format.suffix;
        filter.append(format.name).append(" (").append(pattern).append(")|");
        filter.append(pattern).append("|");
    }
    return filter + "All Files (*.*)|*.*";
}

const FileFormat& formatOfName(std::span<const FileFormat> formats, const std::string& fileName) {
    const auto row = std::find_if(formats.begin(), formats.end(), [&](const FileFormat& format) {
        return endsWith(fileName, format.suffix);
    });
    return row == formats.end() ? formats.front() : *row;
}

}  // namespace ombrelia
