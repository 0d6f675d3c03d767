#include "platform/qt/scaled_style.h"

#include <QPainter>
#include <QStyleOption>
#include <algorithm>
#include <cmath>
#include <iterator>

namespace ombrelia {

namespace {

struct MetricRow {
    QStyle::PixelMetric metric;
    double units;
};
constexpr MetricRow kMetrics[] = {
    {QStyle::PM_LayoutLeftMargin, 9},
    {QStyle::PM_LayoutTopMargin, 9},
    {QStyle::PM_LayoutRightMargin, 9},
    {QStyle::PM_LayoutBottomMargin, 9},
    {QStyle::PM_LayoutHorizontalSpacing, 6},
    {QStyle::PM_LayoutVerticalSpacing, 6},
    {QStyle::PM_SmallIconSize, 13},
    {QStyle::PM_ListViewIconSize, 13},
    {QStyle::PM_IconViewIconSize, 26},
    {QStyle::PM_LargeIconSize, 26},
    {QStyle::PM_ButtonIconSize, 13},
    {QStyle::PM_ToolBarIconSize, 16},
    {QStyle::PM_ScrollBarExtent, 11},
    {QStyle::PM_ScrollBarSliderMin, 20},
    {QStyle::PM_ButtonMargin, 6},
    {QStyle::PM_MenuButtonIndicator, 12},
    {QStyle::PM_HeaderMargin, 3},
    {QStyle::PM_HeaderMarkSize, 8},
    {QStyle::PM_SplitterWidth, 4},
    {QStyle::PM_SizeGripSize, 11},
    {QStyle::PM_IndicatorWidth, 12},
    {QStyle::PM_IndicatorHeight, 12},
    {QStyle::PM_FocusFrameHMargin, 2},
    {QStyle::PM_FocusFrameVMargin, 2},
};

constexpr double kArrowUnits = 18;  // the place of a list's arrow

// The toolkit keeps what it drew under a name that has the number of the palette or icon in it, and
// frees no name. Every dialog has palettes of its own, so while something is drawn its palette is
// the first one that was seen with the same colours.
class DrawnPalette {
  public:
    explicit DrawnPalette(const QStyleOption* option)
        : palette_(const_cast<QStyleOption*>(option)->palette), own_(palette_) {
        static QList<QPalette> seen;
        const auto same = std::find(seen.cbegin(), seen.cend(), own_);
        if (same == seen.cend()) {
            seen.append(own_);
        } else {
            palette_ = *same;
            palette_.setCurrentColorGroup(own_.currentColorGroup());
        }
    }
    ~DrawnPalette() { palette_ = own_; }
    DrawnPalette(const DrawnPalette&) = delete;
    DrawnPalette& operator=(const DrawnPalette&) = delete;

  private:
    QPalette& palette_;
    QPalette own_;
};

}  // namespace

ScaledStyle::ScaledStyle(double scale) : QProxyStyle(QStringLiteral("Fusion")), scale_(scale) {}

int ScaledStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                             const QWidget* widget) const {
    const auto* row = std::find_if(std::begin(kMetrics), std::end(kMetrics),
                                   [metric](const MetricRow& r) { return r.metric == metric; });
    return row == std::end(kMetrics) ? QProxyStyle::pixelMetric(metric, option, widget)
                                     : static_cast<int>(std::lround(row->units * scale_));
}

// The arrow of a list has the same size on every screen otherwise.
QRect ScaledStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                  SubControl part, const QWidget* widget) const {
    QRect place = QProxyStyle::subControlRect(control, option, part, widget);
    const int arrow = static_cast<int>(std::lround(kArrowUnits * scale_));
    if (control == CC_ComboBox && part == SC_ComboBoxArrow) {
        place.setLeft(option->rect.right() - arrow);
    } else if (control == CC_ComboBox && part == SC_ComboBoxEditField) {
        place.setRight(option->rect.right() - arrow);
    }
    return place;
}

void ScaledStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                     QPainter* painter, const QWidget* widget) const {
    const DrawnPalette palette(option);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control != CC_ComboBox) {
        return;
    }
    const QPointF center = subControlRect(control, option, SC_ComboBoxArrow, widget).center();
    const double half = 4 * scale_;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(option->palette.buttonText());
    painter->drawPolygon(
        QPolygonF({center + QPointF(-half, -half / 2), center + QPointF(half, -half / 2),
                   center + QPointF(0, half / 2)}));
    painter->restore();
}

void ScaledStyle::drawControl(ControlElement control, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    const DrawnPalette palette(option);
    QProxyStyle::drawControl(control, option, painter, widget);
}

void ScaledStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
    const DrawnPalette palette(option);
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

// One of each for all dialogs, for the sake of its number (see DrawnPalette).
QIcon ScaledStyle::standardIcon(StandardPixmap which, const QStyleOption* option,
                                const QWidget* widget) const {
    QIcon& icon = icons_[which];
    if (icon.isNull()) {
        icon = QProxyStyle::standardIcon(which, option, widget);
    }
    return icon;
}

int ScaledStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* answer) const {
    return hint == SH_DialogButtonBox_ButtonsHaveIcons
               ? 0
               : QProxyStyle::styleHint(hint, option, widget, answer);
}

}  // namespace ombrelia
