// The platform for tests and scenarios: queues of answers, a log of what was asked, no screen.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/services.h"

namespace ombrelia {

// Line ends written as two letters, so that a text stays one line.
std::string onOneLine(const std::string& text);

// A draw was asked for that no queue and no generator answers.
struct NoDrawLeft {};

// A run-time failure that reached the top of an event handler.
struct HandlerFailed {
    std::string sentence;
};

class HeadlessPlatform : public Dialogs,
                         public SettingsStore,
                         public FileSystem,
                         public Clock,
                         public RandomSource,
                         public Desktop,
                         public FailureReport,
                         public Sound,
                         public PictureLoader {
  public:
    // Puts this platform's services in force.
    void install();

    // What a new process starts with; the settings stay.
    void restart();

    // Answers, taken from the front; an empty queue is Cancel, or No.
    std::deque<std::string> SaveAnswers;
    std::deque<std::string> OpenAnswers;
    std::deque<std::string> InputAnswers;
    std::deque<std::optional<Color>> ColorAnswers;  // no colour: cancelled
    std::deque<int> MessageAnswers;

    // Random floats: the queue first, then the generator x * 1664525 + 1013904223 if it is seeded.
    std::deque<float> RandomQueue;
    std::optional<std::uint32_t> RandomState;
    long Draws = 0;

    // Clock: seconds since midnight and what each reading adds.
    double Seconds = 43200;
    double SecondsPerReading = 0;

    // Called inside each yield; Yields counts this one already. The counts of yields and draws go
    // on over a restart.
    std::function<void()> OnYield;
    long Yields = 0;

    // Called when a window is shown.
    std::function<void(Window&)> OnShown;

    // Called at each refresh of a control that is asked for.
    std::function<void(Control&)> OnRefresh;

    // Requests in order, as `dump calls` writes them.
    std::vector<std::string> Calls;
    bool SoundIsPrepared = false;  // a sound was announced
    bool HasEnded = false;

    // Section, then key, then value.
    std::map<std::string, std::map<std::string, std::string>> Settings;

    // The control whose drag began last; none before the first.
    Control* Dragged = nullptr;

    // The window that a press on its title moves; none before the first.
    const Window* Moved = nullptr;

    // What fileExists and isNameTaken answer for a path; the disk answers for the others.
    std::map<std::string, bool> Files;

    // Sentences of failures; with ThrowOnFailure the first one ends the event instead.
    std::vector<std::string> Failures;
    bool ThrowOnFailure = false;

    // Takes the place of what ThrowOnFailure says, where it is there.
    std::function<void(const std::string& sentence)> OnFailure;

    // Caption that activeWindowCaption gives.
    std::string ActiveCaption = "Ombrelia Terrain Editor";

    // What the screen is pretended to be.
    DisplayColors Display;

    std::string askSaveFile(const std::string& title, const std::string& filter) override;
    std::string askOpenFile(const std::string& title, const std::string& filter) override;
    Color askColor(const std::string& title, Color start) override;
    std::string askInput(const std::string& prompt, const std::string& title) override;
    int message(const std::string& text, int style, const std::string& title) override;
    std::string read(const std::string& section, const std::string& key,
                     const std::string& ifMissing) override;
    void write(const std::string& section, const std::string& key,
               const std::string& value) override;
    std::vector<std::pair<std::string, std::string>> enumerate(const std::string& section) override;
    void removeKey(const std::string& section, const std::string& key) override;
    void removeSection(const std::string& section) override;
    bool fileExists(const std::string& path) override;
    bool isNameTaken(const std::string& path) override;
    // Reads bitmaps and portable maps.
    bool loadPicture(const std::string& path, PictureWish& wish, Surface& picture) override;
    double secondsSinceMidnight() override;
    void seedFromClock() override;
    void draw(std::span<float> draws) override;
    void shown(Window& window) override;
    void hidden(Window& window) override;
    void unloaded(Window& window) override;
    void minimize(Window& window) override;
    void refresh(Control& control) override;
    void sleep(int milliseconds) override;
    void yield() override;
    void beginWindowMove(Window& window) override;
    void beginDrag(Control& source) override;
    std::string activeWindowCaption() override;
    DisplayColors displayColors() override { return Display; }
    void openWebPage(const std::string& address) override;
    void end() override;
    void failed(const std::string& sentence) override;
    std::string programFile(const std::string& name) override;
    void prepare() override { SoundIsPrepared = true; }
    void play(const std::string& path) override;

  private:
    void log(const std::string& call);
};

}  // namespace ombrelia
