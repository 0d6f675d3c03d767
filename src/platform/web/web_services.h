// The small services over the page: dialogs, settings, files, clock, pictures, sound.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/ini_store.h"
#include "platform/services.h"

namespace ombrelia {

class WebDesktop;

// Where the page puts what it reads and takes what is saved, in a file system of its own.
inline constexpr const char* kSavedFolder = "/saved/";
inline constexpr const char* kOpenedFolder = "/opened/";
inline constexpr const char* kSettingsPath = "/settings.ini";

class WebDialogs : public Dialogs {
  public:
    explicit WebDialogs(WebDesktop& desktop) : desktop_(desktop) {}
    std::string askSaveFile(const std::string& title, const std::string& filter) override;
    std::string askOpenFile(const std::string& title, const std::string& filter) override;
    Color askColor(const std::string& title, Color start) override;
    std::string askInput(const std::string& prompt, const std::string& title) override;
    int message(const std::string& text, int style, const std::string& title) override;

    // Hands what was saved to the browser, under the name that was asked for.
    void handOver();

  private:
    WebDesktop& desktop_;
    std::string savedPath_;
};

// The user's settings: an INI text that the browser keeps; what could not be kept is told once.
class WebSettingsStore : public IniStore {
  public:
    explicit WebSettingsStore(Dialogs& dialogs);

    // Keeps what was changed since the last time.
    void save();

  private:
    Dialogs& dialogs_;
    bool hasTold_ = false;
};

class WebFiles : public FileSystem {
  public:
    bool fileExists(const std::string& path) override;
    bool isNameTaken(const std::string& path) override;
};

class WebClock : public Clock {
  public:
    double secondsSinceMidnight() override;
};

// Bitmaps and Targa files by our own readers, the others by the browser.
class WebPictureLoader : public PictureLoader {
  public:
    explicit WebPictureLoader(WebDesktop& desktop) : desktop_(desktop) {}
    bool loadPicture(const std::string& path, PictureWish& wish, Surface& picture) override;

  private:
    WebDesktop& desktop_;
};

class WebSound : public Sound {
  public:
    std::string programFile(const std::string& name) override { return name; }
    void prepare() override {}
    void play(const std::string& path) override;
};

class WebFailureReport : public FailureReport {
  public:
    WebFailureReport(Dialogs& dialogs, std::function<void()> repair)
        : dialogs_(dialogs), repair_(std::move(repair)) {}
    void failed(const std::string& sentence) override;

  private:
    Dialogs& dialogs_;
    std::function<void()> repair_;
};

}  // namespace ombrelia
