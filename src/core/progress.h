// The protocol of long operations: a worker writes these values and yields; the window's timer
// shows them, ends a stopped run and brings the desk back in order.
#pragma once

#include <cstdint>
#include <string>

namespace ombrelia {

inline std::int16_t StopFlag = 0;  // 0 none, 1 asked for, 2 noted by the worker; commands, workers
inline std::int16_t ProgressState =
    0;  // 0 before the first run, 1 running, 2 ended; workers, timer
inline std::int32_t ProgressTotal = 0;  // ProgressDone that means 100 percent; workers
inline std::int32_t ProgressDone = 0;   // position of the run; workers
inline std::int32_t ProgressShown = 0;  // ProgressDone last painted; timer

// Enables or disables what could disturb a run, and sets the light: green when enabled, red when
// not.
void SetToolsEnabled(bool enabled);

// Names the work in the panel, says that it runs and how far it goes.
void announceWork(const std::string& text, std::int32_t total);

// Asks the running operation to stop. A stop that was noted stays noted, for the tick to finish.
void requestStop();

// If a stop was asked for: notes it (StopFlag 2) and says true; the worker then returns at once.
bool noteStop();

// Before a command or a run: a stop that nobody has noted is forgotten, one that was noted and that
// no tick has seen yet is finished.
void forgetStop();

// The timer's share: bar, percentage, and which panel shows.
void showProgress();

// The timer's share after a stop: tools, flag, state and marker line back in order.
void finishStop();

}  // namespace ombrelia
