// The small services over the toolkit: dialogs, settings, clock, reports of failures.
#pragma once

#include <QStringList>
#include <functional>

#include "platform/ini_store.h"
#include "platform/services.h"

namespace ombrelia {

class QtDesktop;

struct FilePurpose;

// The desktop's own dialogs, or the toolkit's. Folders and sizes are kept in the settings.
class QtDialogs : public Dialogs {
  public:
    explicit QtDialogs(QtDesktop& desktop) : desktop_(desktop) {}
    std::string askSaveFile(const std::string& title, const std::string& filter) override;
    std::string askOpenFile(const std::string& title, const std::string& filter) override;
    Color askColor(const std::string& title, Color start) override;
    std::string askInput(const std::string& prompt, const std::string& title) override;
    int message(const std::string& text, int style, const std::string& title) override;

  private:
    std::string askFile(const std::string& title, const QStringList& filters,
                        const FilePurpose& purpose);

    QtDesktop& desktop_;
};

// The user's settings file; what could not be saved is told once in a run.
class QtSettingsStore : public IniStore {
  public:
    explicit QtSettingsStore(Dialogs& dialogs) : IniStore(userSettingsPath()), dialogs_(dialogs) {}

    // Saves what was changed since the last time.
    void save();

  private:
    Dialogs& dialogs_;
    bool hasTold_ = false;
};

class DiskFiles : public FileSystem {
  public:
    bool fileExists(const std::string& path) override;
    bool isNameTaken(const std::string& path) override;
};

class QtClock : public Clock {
  public:
    double secondsSinceMidnight() override;
};

// A message box with one sentence; repair brings the desk back in order first.
class QtFailureReport : public FailureReport {
  public:
    QtFailureReport(Dialogs& dialogs, std::function<void()> repair, std::string title)
        : dialogs_(dialogs), repair_(std::move(repair)), title_(std::move(title)) {}
    void failed(const std::string& sentence) override;

  private:
    Dialogs& dialogs_;
    std::function<void()> repair_;
    std::string title_;
};

}  // namespace ombrelia
