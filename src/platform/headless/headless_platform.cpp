#include "platform/headless/headless_platform.h"

#include "platform/binary_file.h"
#include "platform/bmp_header.h"
#include "platform/bmp_reader.h"
#include "platform/byte_source.h"
#include "platform/control.h"
#include "platform/dispatch.h"
#include "platform/failure.h"
#include "platform/headless/pnm_reader.h"
#include "platform/messages.h"

namespace ombrelia {

namespace {

template <typename T>
T takeFirst(std::deque<T>& queue, T ifEmpty) {
    if (queue.empty()) {
        return ifEmpty;
    }
    T first = queue.front();
    queue.pop_front();
    return first;
}

}  // namespace

std::string onOneLine(const std::string& text) {
    std::string line;
    for (const char c : text) {
        if (c == '\n') {
            line += "\\n";
        } else if (c == '\r') {
            line += "\\r";
        } else {
            line += c;
        }
    }
    return line;
}

void HeadlessPlatform::install() {
    services() = {this, this, this, this, this, this, this, this, this};
    resetDispatch();
}

void HeadlessPlatform::restart() {
    HasEnded = false;
    resetDispatch();
}

void HeadlessPlatform::log(const std::string& call) {
    Calls.push_back(onOneLine(call));
}

std::string HeadlessPlatform::askSaveFile(const std::string& title, const std::string& filter) {
    log("save " + title + " | " + filter);
    return takeFirst(SaveAnswers, std::string());
}

std::string HeadlessPlatform::askOpenFile(const std::string& title, const std::string& filter) {
    log("open " + title + " | " + filter);
    return takeFirst(OpenAnswers, std::string());
}

Color HeadlessPlatform::askColor(const std::string& title, Color start) {
    log("color " + title + " | " + std::to_string(redOf(start)) + " " +
        std::to_string(greenOf(start)) + " " + std::to_string(blueOf(start)));
    return takeFirst(ColorAnswers, std::optional<Color>()).value_or(start);
}

std::string HeadlessPlatform::askInput(const std::string& prompt, const std::string& title) {
    log("input " + title + " | " + prompt);
    return takeFirst(InputAnswers, std::string());
}

int HeadlessPlatform::message(const std::string& text, int style, const std::string& title) {
    log("message " + std::to_string(style) + " " + title + " | " + text);
    return takeFirst(MessageAnswers, kAnswerNo);
}

std::string HeadlessPlatform::read(const std::string& section, const std::string& key,
                                   const std::string& ifMissing) {
    const auto found = Settings.find(section);
    if (found == Settings.end()) {
        return ifMissing;
    }
    const auto value = found->second.find(key);
    return value == found->second.end() ? ifMissing : value->second;
}

void HeadlessPlatform::write(const std::string& section, const std::string& key,
                             const std::string& value) {
    Settings[section][key] = value;
}

std::vector<std::pair<std::string, std::string>> HeadlessPlatform::enumerate(
    const std::string& section) {
    const auto found = Settings.find(section);
    if (found == Settings.end()) {
        return {};
    }
    return {found->second.begin(), found->second.end()};
}

void HeadlessPlatform::removeKey(const std::string& section, const std::string& key) {
    const auto found = Settings.find(section);
    if (found != Settings.end()) {
        found->second.erase(key);
    }
}

void HeadlessPlatform::removeSection(const std::string& section) {
    Settings.erase(section);
}

bool HeadlessPlatform::fileExists(const std::string& path) {
    const auto told = Files.find(path);
    return told != Files.end() ? told->second : isOrdinaryFile(path);
}

bool HeadlessPlatform::isNameTaken(const std::string& path) {
    const auto told = Files.find(path);
    return told != Files.end() ? told->second : ombrelia::isNameTaken(path);
}

bool HeadlessPlatform::loadPicture(const std::string& path, PictureWish& wish, Surface& picture) {
    FileSource source(path);
    if (isBitmap(source)) {
        readBitmap(source, wish, picture);
    } else if (isPortableMap(source)) {
        readPortableMap(source, wish, picture);
    } else {
        throw PictureFailure(path, messages::kUnknownPicture);
    }
    return true;
}

double HeadlessPlatform::secondsSinceMidnight() {
    const double now = Seconds;
    Seconds += SecondsPerReading;
    return now;
}

void HeadlessPlatform::seedFromClock() {}

void HeadlessPlatform::draw(std::span<float> draws) {
    constexpr float kFull = 16777216.0F;  // 2^24
    for (float& value : draws) {
        if (!RandomQueue.empty()) {
            value = takeFirst(RandomQueue, 0.0F);
        } else if (RandomState) {
            *RandomState = *RandomState * 1664525U + 1013904223U;
            value = static_cast<float>(*RandomState >> 8U) / kFull;
        } else {
            throw NoDrawLeft{};
        }
        ++Draws;
    }
}

void HeadlessPlatform::shown(Window& window) {
    log("show " + window.Name);
    if (OnShown) {
        OnShown(window);
    }
}

void HeadlessPlatform::hidden(Window& window) {
    log("hide " + window.Name);
}

void HeadlessPlatform::unloaded(Window& window) {
    log("unload " + window.Name);
}

void HeadlessPlatform::minimize(Window& window) {
    log("minimize " + window.Name);
}

void HeadlessPlatform::refresh(Control& control) {
    if (OnRefresh) {
        OnRefresh(control);
    }
}

void HeadlessPlatform::sleep(int milliseconds) {
    log("sleep " + std::to_string(milliseconds));
}

void HeadlessPlatform::yield() {
    ++Yields;
    if (OnYield) {
        OnYield();
    }
}

void HeadlessPlatform::beginWindowMove(Window& window) {
    Moved = &window;
}

void HeadlessPlatform::beginDrag(Control& source) {
    Dragged = &source;
}

std::string HeadlessPlatform::activeWindowCaption() {
    return ActiveCaption;
}

void HeadlessPlatform::openWebPage(const std::string& /*address*/) {
    log("web");
}

// Its folder is the current one.
std::string HeadlessPlatform::programFile(const std::string& name) {
    return name;
}

void HeadlessPlatform::play(const std::string& path) {
    log("sound " + path.substr(path.find_last_of('/') + 1));
}

void HeadlessPlatform::end() {
    HasEnded = true;
    log("end");
}

void HeadlessPlatform::failed(const std::string& sentence) {
    Failures.push_back(sentence);
    if (OnFailure) {
        OnFailure(sentence);
    } else if (ThrowOnFailure) {
        throw HandlerFailed{sentence};
    }
}

}  // namespace ombrelia
