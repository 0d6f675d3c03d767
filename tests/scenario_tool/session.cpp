#include "session.h"

#include <algorithm>
#include <utility>

#include "command.h"
#include "core/windows/form1.h"
#include "desk/startup.h"
#include "errors.h"
#include "platform/dispatch.h"
#include "register/reset_process.h"
#include "ticks.h"

namespace ombrelia::scenario {

namespace {

const Command& commandNamed(const std::string& word) {
    for (const auto& table : {platformCommands(), drivingCommands(), pointerCommands(),
                              shortcutCommands(), lookCommands()}) {
        const auto row = std::find_if(table.begin(), table.end(),
                                      [&word](const Command& r) { return word == r.word; });
        if (row != table.end()) {
            return *row;
        }
    }
    throw LineError{"there is no command \"" + word + "\""};
}

}  // namespace

void checkCommandWord(const std::string& word) {
    commandNamed(word);
}

Session::Session() {
    platform.install();
    platform.OnFailure = [this](const std::string& sentence) { tellFailure(sentence); };
    platform.OnYield = [this] { inYield(); };
    platform.OnShown = [this](Window& window) { pointer.shown(window); };
    resetProcess();
}

void Session::runLine(const std::string& text) {
    line = ++linesRead_;
    const Fields fields = splitFields(text);
    if (fields.empty()) {
        return;
    }
    try {
        runCommand(fields);
    } catch (const ProcessEnd&) {
        // The process is over, the scenario goes on: it can look and start anew.
        yieldsOnStack_ = 0;
    }
}

void Session::runCommand(const Fields& fields) {
    const Command& command = commandNamed(fields[0]);
    if (command.acts == Acts::OnEditor && platform.HasEnded) {
        throw LineError{"the process has ended"};
    }
    const Fields behind(fields.begin() + 1, fields.end());
    if (behind.size() < command.leastFields || behind.size() > command.mostFields) {
        throw LineError{fields[0] + " does not go with " + std::to_string(behind.size()) +
                        " fields"};
    }
    command.run(*this, behind);
}

void Session::finish() {
    for (const Waiting& command : waiting_) {
        if (command.command[0] == "expect") {
            line = command.line;
            throw ExpectFailed{"the yield of this expectation never came"};
        }
    }
}

void Session::runAtYield(long yieldsFromHere, const Fields& command) {
    waiting_.push_back({platform.Yields + yieldsFromHere, line, command});
}

void Session::startProcess() {
    if (yieldsOnStack_ > 0) {
        throw LineError{"a process cannot be started inside a yield"};
    }
    resetProcess();
    platform.restart();
    pointer.reset();
    runHandler(startEditor);
}

void Session::tellFailure(const std::string& sentence) {
    const bool isOfFile = sentence.starts_with("The file ") || sentence.starts_with("The picture ");
    if (!tellsFailures || !isOfFile) {
        throw HandlerFailed{sentence};
    }
    repairAfterFailure();
    platform.message(sentence, kErrorBox, kDefaultTitle);
}

std::vector<int> Session::takeWaitingLines() {
    std::vector<int> lines;
    for (const Waiting& row : waiting_) {
        lines.push_back(row.line);
    }
    waiting_.clear();
    return lines;
}

bool Session::takeWaiting(long yield, Waiting& taken) {
    const auto found = std::find_if(waiting_.begin(), waiting_.end(),
                                    [yield](const Waiting& row) { return row.yield == yield; });
    if (found == waiting_.end()) {
        return false;
    }
    taken = std::move(*found);
    waiting_.erase(found);
    return true;
}

void Session::inYield() {
    const long yield = platform.Yields;
    ++yieldsOnStack_;
    if (ticksInYields) {
        fireTimer(Form1.Timer1);
    }
    Waiting command;
    while (takeWaiting(yield, command)) {
        // A failure inside is one of the line that the command stands in.
        const int outer = std::exchange(line, command.line);
        runInYield(command.command);
        line = outer;
    }
    --yieldsOnStack_;
}

void Session::runInYield(const Fields& command) {
    try {
        runCommand(command);
    } catch (const LineError&) {
        if (!passesOverErrors) {
            throw;
        }
        passedOver.push_back(line);
    }
}

}  // namespace ombrelia::scenario
