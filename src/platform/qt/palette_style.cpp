#include "platform/qt/palette_style.h"

namespace ombrelia {

QString StyleText::sheet() const {
    QString sheet;
    std::string_view text = text_;
    for (std::string_view rest = nextRole(text); !rest.empty(); rest = nextRole(text)) {
        const palette::Role* role = roleAt(rest);
        sheet += QLatin1String(text.data(), rest.data() - text.data() - 1);
        sheet += toolkitColor(role->color).name();
        text = rest.substr(role->name.size());
    }
    return sheet + QLatin1String(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace ombrelia
