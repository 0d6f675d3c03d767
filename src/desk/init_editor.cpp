#include "desk/init_editor.h"

#include <cmath>

#include "core/angles.h"
#include "core/button_table.h"
#include "core/buttons.h"
#include "core/color_sets.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "panels/option_frames.h"
#include "panels/sliders.h"
#include "views/view_mode.h"

namespace ombrelia {

namespace {

constexpr std::int16_t kSeaLevelHeight = 31;
constexpr std::int16_t kNewMapHeight = 40;
constexpr std::int16_t kStartYaw = 180;
constexpr std::int16_t kStartTilt = 135;

// The member of each group that starts on.
void fillGroups() {
    for (const ButtonRow& row : button::kRows) {
        if (row.start.group != 0 && row.start.state == kOn) {
            GroupCurrent(row.start.group) = static_cast<std::int16_t>(row.number);
        }
    }
}

void fillHeights() {
    HeightMap.fill(BaseHeight);
    ShadowMap.fill(BaseHeight);
}

}  // namespace

void fillButtons() {
    for (int i = 0; i <= button::kLastOfEditor; ++i) {
        ButtonRecord& record = OptionStates(i);
        record.State = kUp;
        if (const ButtonRow* row = button::row(i)) {
            record.State = row->start.state;
            record.Kind = row->start.kind;
            record.Latching = row->start.latching;
            record.Exclusive = row->start.exclusive;
            record.Group = row->start.group;
        }
        if (i == button::kStylePolygon) {
            record.SavedState = kOn;
        }
        DrawButton(i);
    }
}

void fillAngleTables() {
    constexpr double kThirds = kThirdsInDegree;
    for (int k = 0; k <= kLastAngle; ++k) {
        // Required: a pi of five decimals (angle_tables_use_short_pi).
        const double angle = ((k - kZeroAngle) / kThirds) * (kShortPi / 180);
        SinTable(k) = std::sin(angle);
        CosTable(k) = std::cos(angle);
    }
}

void InitEditor() {
    SeaLevel = kSeaLevelHeight;
    BaseHeight = kNewMapHeight;
    ViewYaw = kStartYaw;
    fillDefaultColors();
    fillSliders();
    SwitchViewMode(kMode2D);
    ViewZoom = 1.0;
    ViewTilt = kStartTilt;
    fillGroups();
    fillButtons();
    fillHeights();
    layOutOptionFrames();
    placeProgressFrame();
    fillAngleTables();
}

}  // namespace ombrelia
