// One run of a scenario: the headless platform, what waits for a yield, and the lines.
#pragma once

#include <string>
#include <vector>

#include "fields.h"
#include "platform/headless/headless_platform.h"
#include "user_pointer.h"

namespace ombrelia::scenario {

class Session {
  public:
    // Puts the platform in force; the process is there, but not started.
    Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    HeadlessPlatform platform;
    UserPointer pointer;
    bool ticksInYields = false;

    // Failures of files and pictures are told in a message box, as on a screen; the others still
    // end the scenario.
    bool tellsFailures = false;

    // A command inside a yield that cannot be run is passed over; its line is noted.
    bool passesOverErrors = false;
    std::vector<int> passedOver;

    // Number of the line that is being run, from 1; inside a yield, of the line that asked for it.
    int line = 0;

    // Runs one line. Throws LineError, ExpectFailed, NoDrawLeft or HandlerFailed.
    void runLine(const std::string& text);

    // The end of the file: throws ExpectFailed for an expectation whose yield never came.
    void finish();

    // Runs a command inside the yield that comes as number yieldsFromHere, from 1 on.
    void runAtYield(long yieldsFromHere, const Fields& command);

    // The lines whose commands still wait for their yield; they wait no longer.
    std::vector<int> takeWaitingLines();

    // A new process on the same settings store, up to the splash.
    void startProcess();

  private:
    struct Waiting {
        long yield;  // counted as platform.Yields
        int line;
        Fields command;
    };

    void runCommand(const Fields& fields);
    void inYield();
    void runInYield(const Fields& command);
    void tellFailure(const std::string& sentence);
    bool takeWaiting(long yield, Waiting& taken);

    int linesRead_ = 0;
    std::vector<Waiting> waiting_;
    int yieldsOnStack_ = 0;
};

// Throws LineError for a word that is no command.
void checkCommandWord(const std::string& word);

}  // namespace ombrelia::scenario
