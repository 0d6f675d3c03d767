// What a user answers to dialogs, and the files that are there to be chosen.
#include <algorithm>
#include <iterator>

#include "core/button_numbers.h"
#include "core/windows/form1.h"
#include "core/windows/small_windows.h"
#include "user.h"

namespace ombrelia::monkey {

namespace {

constexpr const char* kSetNames[] = {
    "\"\"", "Default",     "default", "\"Current Colors\"",       "\"My set\"", "a/b\\c", "[x]=y",
    "%",    "\" edges \"", "Степь",   "\"a \"\"quoted\"\" one\"", "Earth",
};
constexpr const char* kBadPlaces[] = {"no_such_folder/map.bmp", ".", "/dev/full", "/dev/null"};

constexpr const char* kPictures[] = {
    "dump surface Form1.Picker strip.ppm",
    "dump surface Form1.MapView view.ppm",
    "dump surface Form1.Mapview2 back.ppm",
    "dump colors no_picture.txt",
};
constexpr const char* kPictureNames[] = {"strip.ppm", "view.ppm", "back.ppm", "no_picture.txt",
                                         "nothing_there.bmp"};

constexpr const char* kYesNo[] = {"yes", "no", "ok"};

}  // namespace

void User::answer(const std::string& dialog, const std::string& text) {
    journal_.play("answer " + dialog + " " + text);
}

std::string User::savePath() {
    if (chance_.percent(15)) {
        return "\"\"";
    }
    if (chance_.percent(15)) {
        return chance_.oneOf(kBadPlaces);
    }
    if (!saved_.empty() && chance_.percent(20)) {
        return chance_.oneOf(saved_);
    }
    saved_.push_back("map_" + std::to_string(++names_) + ".bmp");
    return saved_.back();
}

void User::makePicture() {
    if (Form1.Loaded) {
        journal_.play(chance_.oneOf(kPictures));
    }
}

std::string User::openPath() {
    if (chance_.percent(15)) {
        return "\"\"";
    }
    if (!saved_.empty() && chance_.percent(50)) {
        return chance_.oneOf(saved_);
    }
    makePicture();
    return chance_.oneOf(kPictureNames);
}

std::string User::colorText() {
    std::string text = std::to_string(chance_.below(256));
    for (int n = 0; n < 2; ++n) {
        text.append(" ").append(std::to_string(chance_.below(256)));
    }
    return text;
}

// Puts answers in for the dialogs that a press on the control may lead to, where none is left.
void User::prepareAnswers(const Control& control) {
    const HeadlessPlatform& platform = session_.platform;
    const int number =
        control.Index >= kOverlayOffset ? control.Index - kOverlayOffset : control.Index;
    const bool isButton = control.Name == "NTool" || control.Name == "LTool";
    if (isButton && number == button::kSave && platform.SaveAnswers.empty()) {
        answer("save", savePath());
    }
    const bool isImport = number == button::kImport || number == button::kSizeImport;
    if (isButton && isImport && platform.OpenAnswers.empty()) {
        answer("open", openPath());
    }
    const bool asks =
        number == button::kNewMap || number == button::kExit || number == button::kClose;
    if (isButton && asks && platform.MessageAnswers.empty()) {
        answer("message", chance_.oneOf(kYesNo));
    }
    if (isButton && number == button::kAddColor && platform.InputAnswers.empty()) {
        answer("input", chance_.oneOf(kSetNames));
    }
    if (control.Name == "Rng1" && platform.ColorAnswers.empty()) {
        answer("color", chance_.percent(30) ? "cancel" : colorText());
    }
}

}  // namespace ombrelia::monkey
