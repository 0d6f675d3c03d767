#include "desk/preferences.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/color_sets.h"
#include "core/objects.h"
#include "core/option_strip_table.h"
#include "panels/sliders.h"
#include "platform/services.h"

namespace ombrelia {

namespace {

// Order in which loading and saving go through the keys; resetting has another one.
constexpr int kOrder[] = {button::kStep20,      button::kStep10,       button::kStep5,
                          button::kStep2,       button::kStep1,        button::kShowHelpBox,
                          button::kAutoRefresh, button::kStepRefresh,  button::kUseCursors,
                          button::kUseSounds,   button::kColorCursors, button::kBlackWhiteCursors,
                          button::kAdvanced3D};

const char* keyOf(int button) {
    return std::find_if(std::begin(kPreferenceKeys), std::end(kPreferenceKeys),
                        [button](const PreferenceKey& row) { return row.button == button; })
        ->key;
}

}  // namespace

void LoadPreferences() {
    LoadColorSet(kCurrentColors);
    for (const int button : kOrder) {
        double value =
            storedNumber(services().settings->read(kSettingsSection, keyOf(button), "1"));
        if (value == 1) {
            value = kOn;
        }
        OptionStates(button).State = storedInt16(value);
    }
    PlaceSlider(slider::kResolution);
    PlaceSlider(slider::kDrawWidth);
    for (int i = button::kUseCursors; i <= button::kAdvanced3D; ++i) {
        DrawButton(i);
    }
    showReadout(slider::kResolution);
    showReadout(slider::kDrawWidth);
}

void SavePreferences() {
    SettingsStore& store = *services().settings;
    store.write(kSettingsSection, kSavedBeforeKey, "1");
    for (const int button : kOrder) {
        const int state = OptionStates(button).State;
        store.write(kSettingsSection, keyOf(button), std::to_string(state == kOn ? 1 : state));
    }
    SaveColorSet(kCurrentColors);
}

}  // namespace ombrelia
