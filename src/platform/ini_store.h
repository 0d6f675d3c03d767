// The settings in one INI file, written whole or not at all: into a file beside it, flushed, and
// renamed over it, under a lock that a second editor waits for, a while. Reads once, at the first
// use. A file that cannot be read is never written.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/services.h"

namespace ombrelia {

// The sections of an INI text; names and values may be any text.
using IniSections = std::map<std::string, std::map<std::string, std::string>>;

// Reads an INI text; what cannot be understood is left out and isMalformed set.
[[nodiscard]] IniSections parseIni(std::string_view text, bool& isMalformed);

// The text of the sections: what would be misread stands as % and two hexadecimal digits.
[[nodiscard]] std::string formatIni(const IniSections& sections);

class IniStore : public SettingsStore {
  public:
    explicit IniStore(std::string path) : path_(std::move(path)) {}

    std::string read(const std::string& section, const std::string& key,
                     const std::string& ifMissing) override;
    void write(const std::string& section, const std::string& key,
               const std::string& value) override;
    std::vector<std::pair<std::string, std::string>> enumerate(const std::string& section) override;

    void removeKey(const std::string& section, const std::string& key) override;
    void removeSection(const std::string& section) override;

    // Whether something was changed since the last commit.
    bool hasChanges() const { return !changes_.empty(); }

    // Writes what was changed since the last time into the file, beside what another editor may
    // have written there. A malformed file is copied aside first, to its name and ".damaged". Empty
    // when all went well, otherwise a sentence for the user; the file is then as it was. Nothing is
    // written in the life of a store that could not read its file.
    [[nodiscard]] std::string commit();

  private:
    void load();
    [[nodiscard]] std::string writeMerged();

    std::string path_;
    bool isPatient_ = true;  // waits for another editor that holds the file; not twice in vain
    bool isLoaded_ = false;
    std::string unread_;  // why the file could not be read
    IniSections sections_;
    // Changes since the last commit, in order; no key: the section, no value: removed.
    struct Change {
        std::string section;
        std::optional<std::string> key;
        std::optional<std::string> value;
    };
    static void apply(const Change& change, IniSections& sections);
    void change(Change change);
    std::vector<Change> changes_;
};

// Where the user's settings lie: the configuration folder of the desktop.
std::string userSettingsPath();

}  // namespace ombrelia
