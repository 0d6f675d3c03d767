#include "core/color_display.h"

#include <algorithm>
#include <string>
#include <vector>

#include "core/color_ramp.h"
#include "core/color_sets.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "platform/services.h"

namespace ombrelia {

void PaintPicker() {
    Surface& strip = Form1.Picker.Canvas;
    for (std::int16_t h = 0; h <= 255; ++h) {
        const Color color = HeightToColor(h);
        strip.line(0, 255 - h, strip.ScaleWidth, 255 - h, color);
    }
}

void PaintPrefPicker() {
    Surface& strip = Form1.PrefPicker.Canvas;
    for (std::int16_t h = 0; h <= 255; ++h) {
        const Color color = HeightToColor(h);
        strip.line(h, 0, h, strip.ScaleHeight, color);
    }
}

void UpdatePickedColor() {
    const double y = (255 - DrawHeight) + Form1.Picker.Top + 2;
    Form1.PickerChoice.Y1 = y;
    Form1.PickerChoice.Y2 = y;
    Form1.PickedColor.BackColor = HeightToColor(DrawHeight);
    Form1.Label19.Caption = metresText(DrawHeight);
}

void ShowColorSet() {
    for (int i = 0; i <= 11; ++i) {
        const int row = (i + 2) / 2;
        const int end = i % 2 == 0 ? 1 : 2;
        Form1.Rng1(i).BackColor = rgb(static_cast<unsigned>(ColorRange(row, end, 1)),
                                      static_cast<unsigned>(ColorRange(row, end, 2)),
                                      static_cast<unsigned>(ColorRange(row, end, 3)));
    }
    for (int i = 1; i <= 5; ++i) {
        Image& marker = Form1.Range(i);
        marker.Left = Form1.PrefPicker.Left + ColorRange(i + 1, 1, 0) - marker.Width / 2;
    }
}

void ListColorSets() {
    const std::string prefix = kColorSetPrefix;
    std::vector<std::string> names;
    for (const auto& [key, value] : services().settings->enumerate(kSettingsSection)) {
        if (key.starts_with(prefix) && value != kCurrentColors) {
            names.push_back(value);
        }
    }
    std::sort(names.begin(), names.end());
    ListBox& list = Form1.Combo1;
    list.ListIndex = -1;
    list.Caption.clear();
    list.List.assign(1, kCurrentColors);
    list.List.insert(list.List.end(), names.begin(), names.end());
}

}  // namespace ombrelia
