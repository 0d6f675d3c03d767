// What the logic asks of the world, one small interface each. The real ones are thin over the
// toolkit, the headless ones are queues and logs.
#pragma once

#include <span>
#include <string>
#include <utility>
#include <vector>

#include "platform/color.h"

namespace ombrelia {

class PictureWish;
class Surface;
struct Control;
struct ListBox;
struct Window;

// Styles of a message box, as one number: buttons + icon + default button.
inline constexpr int kYesNoStopSecondDefault = 276;
inline constexpr int kOkBox = 0;
inline constexpr int kErrorBox = 16;

// The title that a message has of itself.
inline constexpr const char* kDefaultTitle = "Ombrelia Terrain Editor";

inline constexpr int kAnswerYes = 6;
inline constexpr int kAnswerNo = 7;
inline constexpr int kAnswerOk = 1;

class Dialogs {
  public:
    virtual ~Dialogs() = default;
    // The chosen path, empty when cancelled. filter: "Name|pattern|Name|pattern".
    virtual std::string askSaveFile(const std::string& title, const std::string& filter) = 0;
    virtual std::string askOpenFile(const std::string& title, const std::string& filter) = 0;
    // A colour, the start itself when cancelled.
    virtual Color askColor(const std::string& title, Color start) = 0;
    // A line of text, empty when cancelled.
    virtual std::string askInput(const std::string& prompt, const std::string& title) = 0;
    // kAnswerYes, kAnswerNo or kAnswerOk.
    virtual int message(const std::string& text, int style, const std::string& title) = 0;
};

// String values addressed by section and key; safe for any text in both.
class SettingsStore {
  public:
    virtual ~SettingsStore() = default;
    virtual std::string read(const std::string& section, const std::string& key,
                             const std::string& ifMissing) = 0;
    virtual void write(const std::string& section, const std::string& key,
                       const std::string& value) = 0;
    // Nothing if there is no such key or section.
    virtual void removeKey(const std::string& section, const std::string& key) = 0;
    virtual void removeSection(const std::string& section) = 0;
    // Keys and values of a section, sorted by key.
    virtual std::vector<std::pair<std::string, std::string>> enumerate(
        const std::string& section) = 0;
};

class FileSystem {
  public:
    virtual ~FileSystem() = default;
    // Whether there is a file, not a folder, of this name.
    virtual bool fileExists(const std::string& path) = 0;
    // Whether anything is there: a file, a folder, a pipe, a device.
    virtual bool isNameTaken(const std::string& path) = 0;
};

class PictureLoader {
  public:
    virtual ~PictureLoader() = default;
    // Gives picture the pixels that are wished for of the picture in the file: upright, transparent
    // parts over black. What the file holds decides, not its name. False if the wish gives it up.
    // Throws PictureFailure; picture may then hold anything.
    [[nodiscard]] virtual bool loadPicture(const std::string& path, PictureWish& wish,
                                           Surface& picture) = 0;
};

class Clock {
  public:
    virtual ~Clock() = default;
    virtual double secondsSinceMidnight() = 0;
};

class RandomSource {
  public:
    virtual ~RandomSource() = default;
    virtual void seedFromClock() = 0;
    // Fills draws with uniform random floats in [0, 1), in order.
    virtual void draw(std::span<float> draws) = 0;
};

// How the screen shows colours.
struct DisplayColors {
    int bitsPerPixel = 32;
    int planes = 1;
    int fixedColors = -1;  // colours that no palette changes; -1: there is no palette
};

// Short sounds of files that stand beside the program.
class Sound {
  public:
    virtual ~Sound() = default;
    // Path of a file beside the program.
    virtual std::string programFile(const std::string& name) = 0;
    // A sound is likely to come soon; returns at once.
    virtual void prepare() = 0;
    // Starts to play the file and returns at once; silence if it cannot be played.
    virtual void play(const std::string& path) = 0;
};

// Windows on the screen, the event loop, and what hangs on them.
class Desktop {
  public:
    virtual ~Desktop() = default;
    virtual void shown(Window& window) = 0;
    virtual void hidden(Window& window) = 0;
    virtual void unloaded(Window& window) = 0;
    virtual void minimize(Window& window) = 0;
    // Shows what was drawn or changed so far; a platform may gather refreshes.
    virtual void refresh(Control& control) = 0;
    // Waits; meanwhile windows are painted and the wish to close one is heard, nothing else.
    virtual void sleep(int milliseconds) = 0;
    // Lets waiting events and timers run.
    virtual void yield() = 0;
    // Lets the user move the window by the press that is being handled.
    virtual void beginWindowMove(Window& window) = 0;
    // Shows the control's picture at the pointer until the drag has ended.
    virtual void beginDrag(Control& source) = 0;
    // The drag has ended, by a drop or without one.
    virtual void endDrag() {}
    // A press opened the list: lets the user choose an entry, which raises its Click.
    virtual void openList(ListBox& list) { static_cast<void>(list); }
    // Caption of this program's active window; empty if another program's is active.
    virtual std::string activeWindowCaption() = 0;
    virtual DisplayColors displayColors() { return {}; }
    virtual void openWebPage(const std::string& address) = 0;
    // Called once when the process is to end; nothing of the logic runs afterwards.
    virtual void end() = 0;
};

// Reports what ended a handler; the editor goes on afterwards.
class FailureReport {
  public:
    virtual ~FailureReport() = default;
    virtual void failed(const std::string& sentence) = 0;
};

// The services in force. Set once by the program's or a test's main function.
struct Services {
    Dialogs* dialogs = nullptr;
    SettingsStore* settings = nullptr;
    FileSystem* files = nullptr;
    Clock* clock = nullptr;
    RandomSource* random = nullptr;
    Desktop* desktop = nullptr;
    FailureReport* failures = nullptr;
    PictureLoader* pictures = nullptr;
    Sound* sound = nullptr;
};

Services& services();

}  // namespace ombrelia
