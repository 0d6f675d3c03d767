// The lines that were played in a session, in a file that survives a crash. Read back without
// those that did nothing it is a scenario that does the same.
#pragma once

#include <fstream>
#include <string>
#include <vector>

#include "session.h"

namespace ombrelia::monkey {

using Lines = std::vector<std::string>;

class Journal {
  public:
    Journal(scenario::Session& session, const std::string& path);

    // Plays a line that stands for so many events. False if it could not be run; then it is taken
    // back. What waited for a yield that did not come in it is taken back too.
    bool play(const std::string& line, long events = 0);

    // The same for a line that can always be run; throws LineError if it cannot.
    void insist(const std::string& line, long events = 0);

    // Lays a command ready for a yield of the next line that is played, counted from here. The
    // result is its number for hasRun.
    int layReady(long yield, const std::string& command, long events);

    // Whether a command that was laid ready has run, once the next line has been played.
    bool hasRun(int number) const;

    // Events that were delivered so far.
    long events() const { return events_; }

  private:
    struct Ready {
        int line;
        long events;
        bool hasRun;
    };

    void run(const std::string& line);
    void takeBack(int line);
    void settleReady();

    scenario::Session& session_;
    std::ofstream file_;
    int lines_ = 0;
    long events_ = 0;
    std::vector<Ready> ready_;
    bool isSettled_ = true;
};

// The lines of a journal without those that were taken back.
Lines readJournal(const std::string& path);

}  // namespace ombrelia::monkey
