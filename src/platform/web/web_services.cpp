#include "platform/web/web_services.h"

#include <cmath>
#include <cstdio>
#include <ctime>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>
#include <vector>

#include "platform/binary_file.h"
#include "platform/bmp_header.h"
#include "platform/bmp_reader.h"
#include "platform/byte_source.h"
#include "platform/failure.h"
#include "platform/messages.h"
#include "platform/picture_sink.h"
#include "platform/tga_reader.h"
#include "platform/timer_rest.h"
#include "platform/web/page.h"
#include "platform/web/web_desktop.h"

namespace ombrelia {

namespace {

// A name that stands for one file in one folder.
std::string plainName(std::string name) {
    for (char& letter : name) {
        if (letter == '/' || letter == '\\') {
            letter = '_';
        }
    }
    return name;
}

}  // namespace

std::string WebDialogs::askSaveFile(const std::string& title, const std::string& /*filter*/) {
    const PageAnswer answer =
        desktop_.waitForAnswer(page_open_dialog("save", title.c_str(), "", 0, 0));
    if (!answer.isAccepted || answer.text.empty()) {
        return {};
    }
    mkdir(kSavedFolder, 0777);
    savedPath_ = kSavedFolder + plainName(answer.text);
    return savedPath_;
}

void WebDialogs::handOver() {
    if (!savedPath_.empty() && isOrdinaryFile(savedPath_)) {
        page_save_as_download(savedPath_.c_str());
        std::remove(savedPath_.c_str());
    }
    savedPath_.clear();
}

std::string WebDialogs::askOpenFile(const std::string& title, const std::string& /*filter*/) {
    mkdir(kOpenedFolder, 0777);
    chdir(kOpenedFolder);  // a file that the user chose has no folder that means anything
    const PageAnswer answer =
        desktop_.waitForAnswer(page_open_dialog("open", title.c_str(), kOpenedFolder, 0, 0));
    return answer.isAccepted ? answer.text : std::string();
}

Color WebDialogs::askColor(const std::string& title, Color start) {
    const PageAnswer answer =
        desktop_.waitForAnswer(page_open_dialog("color", title.c_str(), "", 0, start));
    return answer.isAccepted ? static_cast<Color>(answer.number) : start;
}

std::string WebDialogs::askInput(const std::string& prompt, const std::string& title) {
    const PageAnswer answer =
        desktop_.waitForAnswer(page_open_dialog("input", title.c_str(), prompt.c_str(), 0, 0));
    return answer.isAccepted ? answer.text : std::string();
}

int WebDialogs::message(const std::string& text, int style, const std::string& title) {
    const PageAnswer answer =
        desktop_.waitForAnswer(page_open_dialog("message", title.c_str(), text.c_str(), style, 0));
    return static_cast<int>(answer.number);
}

WebSettingsStore::WebSettingsStore(Dialogs& dialogs) : IniStore(kSettingsPath), dialogs_(dialogs) {
    page_load_settings(kSettingsPath);
}

// Another page of the same browser may have kept some too: they are merged.
void WebSettingsStore::save() {
    if (!hasChanges()) {
        return;
    }
    page_load_settings(kSettingsPath);
    std::string failure = commit();
    if (failure.empty() && page_keep_settings(kSettingsPath) == 0) {
        failure = messages::settingsNotSaved("of this page", "The browser does not keep them");
    }
    if (!failure.empty() && !hasTold_) {
        hasTold_ = true;
        dialogs_.message(failure, kErrorBox, kDefaultTitle);
    }
}

bool WebFiles::fileExists(const std::string& path) {
    return isOrdinaryFile(path);
}

bool WebFiles::isNameTaken(const std::string& path) {
    return ombrelia::isNameTaken(path);
}

double WebClock::secondsSinceMidnight() {
    timeval now{};
    gettimeofday(&now, nullptr);
    tm local{};
    localtime_r(&now.tv_sec, &local);
    return local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec +
           static_cast<double>(now.tv_usec) / 1e6;
}

bool WebPictureLoader::loadPicture(const std::string& path, PictureWish& wish, Surface& picture) {
    {
        FileSource source(path);
        if (isBitmap(source)) {
            readBitmap(source, wish, picture);
            return true;
        }
        if (isTarga(source)) {
            readTarga(source, wish, picture);
            return true;
        }
    }
    page_set_busy(1);
    desktop_.Decoded.reset();
    page_decode_picture(path.c_str());
    bool goesOn = true;
    while (goesOn && !desktop_.Decoded) {
        desktop_.pump(kFrameMilliseconds);
        goesOn = wish.goesOn();
    }
    page_set_busy(0);
    if (!goesOn) {
        page_drop_picture();
        return false;
    }
    const auto [width, height] = *desktop_.Decoded;
    if (width == 0) {
        throw PictureFailure(path, messages::kUnknownPicture);
    }
    PictureSink sink(path, width, height, wish, picture);
    std::vector<Pixel> row(static_cast<std::size_t>(width));
    for (int y = 0; y < height; ++y) {
        if (sink.keepsRow(y)) {
            page_take_picture_row(y, width, row.data());
            sink.putRow(y, row.data());
        }
    }
    page_drop_picture();
    picture.changed();
    return true;
}

void WebSound::play(const std::string& path) {
    page_play_sound(path.c_str());
}

void WebFailureReport::failed(const std::string& sentence) {
    repair_();
    dialogs_.message(sentence, kErrorBox, kDefaultTitle);
}

}  // namespace ombrelia
