// The skin's palette for what the toolkit draws.
#pragma once

#include <QColor>
#include <QString>
#include <algorithm>
#include <iterator>
#include <string_view>

#include "platform/palette.h"

namespace ombrelia {

inline QColor toolkitColor(Color color) {
    return {static_cast<int>(redOf(color)), static_cast<int>(greenOf(color)),
            static_cast<int>(blueOf(color))};
}

// A style sheet of the toolkit that names its colours by their roles in the palette: "@edge".
// A name that is no role does not compile.
class StyleText {
  public:
    consteval StyleText(const char* text) : text_(text) {
        for (std::string_view rest = nextRole(text_); !rest.empty(); rest = nextRole(rest)) {
            if (roleAt(rest) == std::end(palette::kRoles)) {
                throw "a colour that is no role of the palette";
            }
        }
    }

    // The text with the colours in the places of their names; what stands for a number (%1) stays.
    QString sheet() const;

  private:
    // What follows the next @; empty if there is none.
    static constexpr std::string_view nextRole(std::string_view text) {
        const std::size_t at = text.find('@');
        return at == std::string_view::npos ? std::string_view() : text.substr(at + 1);
    }

    // The row of the name that the text begins with; the end if there is none.
    static constexpr const palette::Role* roleAt(std::string_view text) {
        const std::string_view name =
            text.substr(0, text.find_first_not_of("abcdefghijklmnopqrstuvwxyz_"));
        return std::find_if(std::begin(palette::kRoles), std::end(palette::kRoles),
                            [name](const palette::Role& role) { return role.name == name; });
    }

    std::string_view text_;
};

}  // namespace ombrelia
