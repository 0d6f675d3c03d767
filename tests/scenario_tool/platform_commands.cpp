// Commands that set up what the platform will answer.
#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>

#include "command.h"
#include "errors.h"

namespace ombrelia::scenario {

namespace {

void queueRandom(Session& session, const Fields& fields) {
    for (const std::string& field : fields) {
        session.platform.RandomQueue.push_back(static_cast<float>(realNumber(field)));
    }
}

void seedGenerator(Session& session, const Fields& fields) {
    constexpr std::int64_t kMost = std::numeric_limits<std::uint32_t>::max();
    const std::int64_t seed = wholeNumber(fields[0], 0, kMost);
    session.platform.RandomState = static_cast<std::uint32_t>(seed);
}

void setClock(Session& session, const Fields& fields) {
    session.platform.Seconds = realNumber(fields[0]);
}

void setClockStep(Session& session, const Fields& fields) {
    session.platform.SecondsPerReading = realNumber(fields[0]);
}

void tellFailures(Session& session, const Fields& fields) {
    if (fields[0] != "told" && fields[0] != "end") {
        throw LineError{"failures are told, or end the scenario"};
    }
    session.tellsFailures = fields[0] == "told";
}

void setSetting(Session& session, const Fields& fields) {
    session.platform.write(fields[0], fields[1], fields[2]);
}

void answerSave(Session& session, const std::string& path) {
    session.platform.SaveAnswers.push_back(path);
}

void answerOpen(Session& session, const std::string& path) {
    session.platform.OpenAnswers.push_back(path);
}

void tellOfFile(Session& session, const Fields& fields) {
    if (fields.size() > 1 && fields[1] != "absent") {
        throw LineError{"a file is there or absent"};
    }
    session.platform.Files[fields[0]] = fields.size() == 1;
}

struct MessageAnswer {
    const char* word;
    int answer;
};
constexpr MessageAnswer kMessageAnswers[] = {
    {"yes", kAnswerYes}, {"no", kAnswerNo}, {"ok", kAnswerOk}};

void answerMessage(Session& session, const std::string& word) {
    const auto* row = std::find_if(std::begin(kMessageAnswers), std::end(kMessageAnswers),
                                   [&word](const MessageAnswer& r) { return word == r.word; });
    if (row == std::end(kMessageAnswers)) {
        throw LineError{"a message is answered by yes, no or ok"};
    }
    session.platform.MessageAnswers.push_back(row->answer);
}

struct DialogAnswer {
    const char* dialog;
    void (*queue)(Session& session, const std::string& answer);
};
void answerInput(Session& session, const std::string& text) {
    session.platform.InputAnswers.push_back(text);
}

constexpr DialogAnswer kDialogAnswers[] = {
    {"save", answerSave}, {"open", answerOpen}, {"message", answerMessage}, {"input", answerInput}};

// "R G B" or "cancel".
void answerColor(Session& session, const Fields& fields) {
    std::optional<Color> answer;
    if (fields.size() == 4) {
        const auto part = [&](std::size_t n) {
            return static_cast<unsigned>(wholeNumber(fields[n], 0, 255));
        };
        answer = rgb(part(1), part(2), part(3));
    } else if (fields.size() != 2 || fields[1] != "cancel") {
        throw LineError{"a colour is answered by three numbers or by cancel"};
    }
    session.platform.ColorAnswers.push_back(answer);
}

void forgetAnswers(HeadlessPlatform& platform) {
    platform.SaveAnswers.clear();
    platform.OpenAnswers.clear();
    platform.InputAnswers.clear();
    platform.ColorAnswers.clear();
    platform.MessageAnswers.clear();
}

void queueAnswer(Session& session, const Fields& fields) {
    if (fields.size() == 1 && fields[0] == "none") {
        forgetAnswers(session.platform);
        return;
    }
    if (fields[0] == "color") {
        answerColor(session, fields);
        return;
    }
    if (fields.size() != 2) {
        throw LineError{"a dialog other than color has one answer"};
    }
    const auto* row = std::find_if(std::begin(kDialogAnswers), std::end(kDialogAnswers),
                                   [&](const DialogAnswer& r) { return fields[0] == r.dialog; });
    if (row == std::end(kDialogAnswers)) {
        throw LineError{"there is no dialog \"" + fields[0] + "\""};
    }
    row->queue(session, fields[1]);
}

constexpr Command kPlatformCommands[] = {
    {"random", 1, kAnyNumber, Acts::Anywhere, queueRandom},
    {"random-lcg", 1, 1, Acts::Anywhere, seedGenerator},
    {"clock", 1, 1, Acts::Anywhere, setClock},
    {"clock-step", 1, 1, Acts::Anywhere, setClockStep},
    {"setting", 3, 3, Acts::Anywhere, setSetting},
    {"answer", 1, 4, Acts::Anywhere, queueAnswer},
    {"failures", 1, 1, Acts::Anywhere, tellFailures},
    {"file", 1, 2, Acts::Anywhere, tellOfFile},
};

}  // namespace

std::span<const Command> platformCommands() {
    return kPlatformCommands;
}

}  // namespace ombrelia::scenario
