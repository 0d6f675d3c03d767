// The protocol of long operations: a worker writes these values and yields; the window's timer
// shows them, ends a stopped run and brings the desk back in order.
#pragma once

#include <cstdint>
#include <string>

namespace ombrelia {

inline std::int16_t StopFlag = 0;  // 0 none, 1 asked for, 2 noted by the worker; commands, workers
// 0 before the first run, 1 running, 2 ended; workers, timer
inline std::int16_t ProgressState = 0;
inline std::int32_t ProgressTotal = 0;  // ProgressDone that means 100 percent; workers
inline std::int32_t ProgressDone = 0;   // position of the run; workers
inline std::int32_t ProgressShown = 0;  // ProgressDone last painted; timer

// Enables or disables what could disturb a run, and sets the light: green when enabled, red when
// not.
void SetToolsEnabled(bool enabled);

// Asks the running operation to stop. A stop that was noted stays noted, for the tick to finish.
void requestStop();

// Before a command or a run: a stop that nobody has noted is forgotten, one that was noted and that
// no tick has seen yet is finished.
void forgetStop();

// A worker's run. Workers write and yield in orders of their own, so each step has its call, and
// the order of a worker's calls is the order of its writes. A run that is stopped, or that a
// failure ends, gives nothing back: the next tick or the repair after the failure does.
class [[nodiscard]] LongRun {
  public:
    enum class Tools { Locked, Free };

    // Begins with the tools locked, or free for a run that others may work beside.
    explicit LongRun(Tools tools = Tools::Locked) { SetToolsEnabled(tools == Tools::Free); }
    LongRun(const LongRun&) = delete;
    LongRun& operator=(const LongRun&) = delete;

    // Names the work in the panel, says that it runs and how far it goes.
    static void announce(const std::string& text, std::int32_t total);

    // The way from here to the end is another one.
    static void setTotal(std::int32_t total) { ProgressTotal = total; }

    // Tells the position, lets others have their turn, or both in this order.
    static void moveTo(std::int32_t position) { ProgressDone = position; }
    static void yield();
    static void yieldAt(std::int32_t position);

    static bool isAskedToStop() { return StopFlag == 1; }

    // If a stop was asked for: notes it (StopFlag 2) and says true; the worker then returns at
    // once.
    [[nodiscard]] static bool noteStop();

    // The normal end, and the tools for all again; in either order, or the tools left to the tick.
    static void tellEnd() { ProgressState = 2; }
    void giveToolsBack() const { SetToolsEnabled(true); }
};

// The timer's share: bar, percentage, and which panel shows.
void showProgress();

// The timer's share after a stop: tools, flag, state and marker line back in order.
void finishStop();

}  // namespace ombrelia
