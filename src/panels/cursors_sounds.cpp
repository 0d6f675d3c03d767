#include "panels/cursors_sounds.h"

#include <string>

#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "platform/services.h"

namespace ombrelia {

namespace {

struct SoundFile {
    int which;
    const char* name;
};
constexpr SoundFile kSounds[] = {{kPressSound, "100.res"}, {kReleaseSound, "101.res"}};

struct ToolCursor {
    int button;
    int cursor;
};
constexpr ToolCursor kToolCursors[] = {
    {button::kPencil, 9},   {button::kLine, 10},   {button::kRaise, 6},
    {button::kLower, 1},    {button::kFractal, 5}, {button::kColorPicker, 8},
    {button::kMountain, 5}, {button::kCanyon, 5},  {button::kPlain, 5},
};
constexpr ToolCursor kMotionCursors[] = {
    {button::kRotate3D, 3}, {button::kPan3D, 4}, {button::kZoom3D, 2}};

}  // namespace

void prepareButtonSound() {
    if (OptionStates(button::kUseSounds).State != kUp) {
        services().sound->prepare();
    }
}

void PlayButtonSound(int which) {
    if (OptionStates(button::kUseSounds).State == kUp) {
        return;
    }
    for (const SoundFile& sound : kSounds) {
        if (sound.which != which) {
            continue;
        }
        const std::string path = services().sound->programFile(sound.name);
        if (services().files->fileExists(path)) {
            services().sound->play(path);
        }
    }
}

void SetCursorHook(int /*id*/, Control& /*control*/) {}

void ResetCursorHook(int /*id*/) {}

void wantCursor(int id, Control& control) {
    if (CurrentCursorId != id) {
        SetCursorHook(id, control);
    }
}

void wantMapCursor() {
    for (const ToolCursor& row : kToolCursors) {
        if (isOn(row.button)) {
            wantCursor(row.cursor, Form1.MapView);
        }
    }
    if (!isOn(button::k3DMode)) {
        return;
    }
    for (const ToolCursor& row : kMotionCursors) {
        if (isOn(row.button)) {
            wantCursor(row.cursor, Form1.MapView);
        }
    }
}

}  // namespace ombrelia
