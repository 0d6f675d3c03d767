// The small services over the toolkit: dialogs, settings, clock, reports of failures.
#pragma once

#include <QSettings>
#include <QString>
#include <functional>
#include <memory>

#include "platform/services.h"

namespace ombrelia {

class QtDesktop;

// The desktop's own dialogs. Files: the last folder is remembered within a run.
class QtDialogs : public Dialogs {
  public:
    explicit QtDialogs(QtDesktop& desktop) : desktop_(desktop) {}
    std::string askSaveFile(const std::string& title, const std::string& filter) override;
    int message(const std::string& text, int style, const std::string& title) override;

  private:
    QtDesktop& desktop_;
    QString folder_;
};

// An INI file in the user's configuration folder, written whole or not at all. Opened at the first
// use; a malformed file is copied aside before the first write.
class QtSettingsStore : public SettingsStore {
  public:
    std::string read(const std::string& section, const std::string& key,
                     const std::string& ifMissing) override;
    void write(const std::string& section, const std::string& key,
               const std::string& value) override;
    std::vector<std::pair<std::string, std::string>> enumerate(const std::string& section) override;

  private:
    QSettings& file();

    std::unique_ptr<QSettings> file_;
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
