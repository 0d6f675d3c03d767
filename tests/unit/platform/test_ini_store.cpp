#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <pwd.h>
#include <random>
#include <sstream>
#include <string>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/ini_store.h"
#include "temp_folder.h"

namespace ombrelia {

namespace {

namespace fs = std::filesystem;

class Folder {
  public:
    Folder() {
        std::string pattern = (fs::temp_directory_path() / "ini_store_XXXXXX").string();
        path_ = ::mkdtemp(pattern.data());
    }
    ~Folder() { fs::remove_all(path_); }
    std::string file() const { return (path_ / "sub" / "settings.ini").string(); }
    fs::path path() const { return path_; }

  private:
    fs::path path_;
};

std::string contents(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

void put(const std::string& path, const std::string& text) {
    fs::create_directories(fs::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << text;
}

const std::string kOddTexts[] = {"",
                                 " ",
                                 "My set/x",
                                 "a]b[c",
                                 "=;#%41",
                                 "two\nlines\r\n",
                                 " edges ",
                                 "\xd0\xa1\xd1\x82\xd0\xb5\xd0\xbf\xd1\x8c",
                                 "back\\slash, comma",
                                 std::string("nul\0inside", 10),
                                 "\xff\xfe no utf-8"};

// A store whose every value is the word, many of them.
void fillWith(IniStore& store, const std::string& word) {
    for (int i = 0; i < 400; ++i) {
        store.write("Section" + std::to_string(i % 7), "Key" + std::to_string(i), word);
    }
}

}  // namespace

TEST(ini_store, a_missing_file_reads_as_the_defaults) {
    const Folder folder;
    IniStore store(folder.file());
    EXPECT_EQ(store.read("Settings", "SavedBefore", "0"), "0");
    EXPECT_TRUE(store.enumerate("Settings").empty());
    EXPECT_FALSE(store.hasChanges());
    EXPECT_EQ(store.commit(), "");
    EXPECT_FALSE(fs::exists(folder.file())) << "nothing was changed, nothing is written";
}

TEST(ini_store, every_text_survives_as_section_key_and_value) {
    const Folder folder;
    {
        IniStore store(folder.file());
        for (const std::string& text : kOddTexts) {
            store.write("ColorPal" + text, text, text);
            EXPECT_TRUE(store.hasChanges());
        }
        ASSERT_EQ(store.commit(), "");
    }
    IniStore store(folder.file());
    for (const std::string& text : kOddTexts) {
        EXPECT_EQ(store.read("ColorPal" + text, text, "missing"), text);
    }
}

TEST(ini_store, random_texts_survive) {
    std::mt19937 random(20261121);
    IniSections sections;
    for (int i = 0; i < 2000; ++i) {
        const auto text = [&] {
            std::string bytes(random() % 12, ' ');
            for (char& byte : bytes) {
                byte = static_cast<char>(random());
            }
            return bytes;
        };
        sections[text()][text()] = text();
    }
    bool isMalformed = true;
    EXPECT_EQ(parseIni(formatIni(sections), isMalformed), sections);
    EXPECT_FALSE(isMalformed);
}

TEST(ini_store, lines_of_another_system_are_read_alike) {
    bool isMalformed = true;
    const IniSections expected = {{"Settings", {{"a", "1"}, {"b", "2"}}}};
    EXPECT_EQ(parseIni("[Settings]\r\na=1\r\nb=2\r\n", isMalformed), expected);
    EXPECT_FALSE(isMalformed);
}

// While it lives a variable of the environment has this value, or none.
class Variable {
  public:
    Variable(const char* name, const char* value) : name_(name) {
        const char* before = std::getenv(name);
        wasSet_ = before != nullptr;
        before_ = wasSet_ ? before : "";
        value != nullptr ? ::setenv(name, value, 1) : ::unsetenv(name);
    }
    ~Variable() { wasSet_ ? ::setenv(name_, before_.c_str(), 1) : ::unsetenv(name_); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

  private:
    const char* name_;
    bool wasSet_ = false;
    std::string before_;
};

TEST(ini_store, the_users_settings_stand_in_the_folder_of_configurations) {
    const std::string end = "/quillbyte/ombrelia-terrain-editor.ini";
    const Variable home("HOME", "/home/ada");
    {
        const Variable folder("XDG_CONFIG_HOME", "/elsewhere");
        EXPECT_EQ(userSettingsPath(), "/elsewhere" + end);
    }
    {
        const Variable relative("XDG_CONFIG_HOME", "not/absolute");
        EXPECT_EQ(userSettingsPath(), "/home/ada/.config" + end);
    }
    const Variable none("XDG_CONFIG_HOME", nullptr);
    EXPECT_EQ(userSettingsPath(), "/home/ada/.config" + end);
}

TEST(ini_store, entries_come_sorted_by_key) {
    const Folder folder;
    IniStore store(folder.file());
    store.write("Settings", "b", "2");
    store.write("Settings", "a", "1");
    const std::vector<std::pair<std::string, std::string>> expected = {{"a", "1"}, {"b", "2"}};
    EXPECT_EQ(store.enumerate("Settings"), expected);
}

TEST(ini_store, what_another_editor_wrote_meanwhile_stays) {
    const Folder folder;
    IniStore first(folder.file());
    IniStore second(folder.file());
    first.write("Settings", "mine", "1");
    second.write("Settings", "yours", "2");
    ASSERT_EQ(first.commit(), "");
    ASSERT_EQ(second.commit(), "");
    IniStore after(folder.file());
    EXPECT_EQ(after.read("Settings", "mine", ""), "1");
    EXPECT_EQ(after.read("Settings", "yours", ""), "2");
}

TEST(ini_store, a_malformed_file_is_copied_aside_before_the_first_write) {
    const Folder folder;
    const std::string garbage = "[Settings]\ngood=1\nno equals sign\nbad=%zz\n\x01\x02[half";
    put(folder.file(), garbage);
    IniStore store(folder.file());
    EXPECT_EQ(store.read("Settings", "good", ""), "1");
    EXPECT_EQ(store.read("Settings", "bad", "default"), "default");
    EXPECT_FALSE(fs::exists(folder.file() + ".damaged"));
    store.write("Settings", "new", "2");
    ASSERT_EQ(store.commit(), "");
    EXPECT_EQ(contents(folder.file() + ".damaged"), garbage);
    EXPECT_EQ(contents(folder.file()), "[Settings]\ngood=1\nnew=2\n\n");
}

TEST(ini_store, a_file_cut_anywhere_reads_without_harm) {
    IniSections sections;
    sections["Settings"]["SavedBefore"] = "1";
    sections["ColorPalMy set"]["110"] = "200";
    const std::string whole = formatIni(sections);
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        bool isMalformed = false;
        const IniSections read = parseIni(whole.substr(0, length), isMalformed);
        for (const auto& [section, entries] : read) {
            EXPECT_TRUE(sections.contains(section)) << section;
        }
    }
}

TEST(ini_store, a_folder_that_cannot_be_made_is_told_with_file_and_reason) {
    const Folder folder;
    put(folder.file(), "");
    const std::string path = folder.file() + "/below/settings.ini";
    IniStore store(path);
    store.write("Settings", "a", "1");
    const std::string sentence = store.commit();
    EXPECT_NE(sentence.find(path), std::string::npos) << sentence;
    EXPECT_NE(sentence.find("Not a directory"), std::string::npos) << sentence;
    EXPECT_EQ(store.read("Settings", "a", ""), "1") << "the run goes on with the value";
}

TEST(ini_store, a_folder_that_cannot_be_made_is_told_with_the_reason_of_that) {
    const Folder folder;
    fs::create_directory(folder.path() / "locked");
    ASSERT_EQ(::chmod(folder.path().c_str(), 0755), 0);
    ASSERT_EQ(::chmod((folder.path() / "locked").c_str(), 0555), 0);
    const OrdinaryUser user;
    IniStore store((folder.path() / "locked/conf/deeper/settings.ini").string());
    store.write("Settings", "a", "1");
    const std::string sentence = store.commit();
    EXPECT_NE(sentence.find(std::strerror(EACCES)), std::string::npos) << sentence;
}

TEST(ini_store, a_disk_without_room_leaves_the_old_file) {
    const Folder folder;
    IniStore store(folder.file());
    store.write("Settings", "a", "old");
    ASSERT_EQ(store.commit(), "");
    const std::string before = contents(folder.file());
    const pid_t child = fork();
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{64, 64};
        setrlimit(RLIMIT_FSIZE, &limit);
        store.write("Settings", "a", std::string(1000, 'x'));
        _exit(store.commit().find("File too large") == std::string::npos ? 1 : 0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(contents(folder.file()), before);
    EXPECT_FALSE(fs::exists(folder.file() + ".new"));
}

TEST(ini_store, keys_and_sections_can_be_removed) {
    const Folder folder;
    {
        IniStore store(folder.file());
        store.write("Settings", "a", "1");
        store.write("Settings", "b", "2");
        store.write("ColorPalX", "110", "7");
        ASSERT_EQ(store.commit(), "");
        store.removeKey("Settings", "a");
        store.removeSection("ColorPalX");
        store.removeKey("Nowhere", "a");
        ASSERT_EQ(store.commit(), "");
    }
    EXPECT_EQ(contents(folder.file()), "[Settings]\nb=2\n\n");
}

TEST(ini_store, a_link_stays_a_link) {
    const Folder folder;
    const std::string real = (folder.path() / "real.ini").string();
    put(real, "");
    fs::create_directories(fs::path(folder.file()).parent_path());
    fs::create_symlink(real, folder.file());
    IniStore store(folder.file());
    store.write("Settings", "a", "1");
    ASSERT_EQ(store.commit(), "");
    EXPECT_TRUE(fs::is_symlink(folder.file()));
    EXPECT_EQ(contents(real), "[Settings]\na=1\n\n");
}

// Reads a store at a path that leads to no ordinary file, and changes it.
std::string changedAt(const std::string& path) {
    IniStore store(path);
    EXPECT_EQ(store.read("Settings", "a", "none"), "none");
    store.write("Settings", "a", "1");
    return store.commit();
}

TEST(ini_store, what_is_no_ordinary_file_is_told_and_left_as_it_is) {
    const Folder folder;
    fs::create_directories(folder.file());
    EXPECT_NE(changedAt(folder.file()).find("not an ordinary file"), std::string::npos);
    EXPECT_TRUE(fs::is_directory(folder.file()));

    const std::string pipe = (folder.path() / "pipe").string();
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0666), 0);
    EXPECT_NE(changedAt(pipe).find("not an ordinary file"), std::string::npos);
    EXPECT_TRUE(fs::is_fifo(pipe));

    for (const char* target : {"/dev/zero", "/dev/null", "nowhere"}) {
        const std::string link = (folder.path() / "link").string();
        fs::remove(link);
        fs::create_symlink(target, link);
        const std::string sentence = changedAt(link);
        EXPECT_NE(sentence.find("could not be read from \"" + link), std::string::npos) << sentence;
        EXPECT_TRUE(fs::is_symlink(link)) << target;
    }
}

TEST(ini_store, a_file_beyond_16_mib_is_told_and_left_as_it_is) {
    const Folder folder;
    put(folder.file(), "[Settings]\na=7\n");
    fs::resize_file(folder.file(), (16U << 20U) + 1);
    EXPECT_NE(changedAt(folder.file()).find("larger than preferences"), std::string::npos);
    EXPECT_EQ(fs::file_size(folder.file()), (16U << 20U) + 1);
}

TEST(ini_store, a_file_that_cannot_be_read_is_never_written_in_this_run) {
    const Folder folder;
    const std::string pipe = (folder.path() / "pipe").string();
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0666), 0);
    IniStore store(pipe);
    store.write("Settings", "a", "1");
    EXPECT_NE(store.commit(), "");
    fs::remove(pipe);
    put(pipe, "[Own]\nset=7\n");
    store.write("Settings", "b", "2");
    EXPECT_NE(store.commit(), "");
    EXPECT_EQ(contents(pipe), "[Own]\nset=7\n");
    EXPECT_EQ(store.read("Settings", "a", ""), "1") << "the run goes on with the value";
}

TEST(ini_store, a_file_that_cannot_be_read_any_more_is_told_and_left) {
    const Folder folder;
    const std::string path = (folder.path() / "late").string();
    IniStore store(path);
    EXPECT_EQ(store.read("Settings", "a", "none"), "none");
    ASSERT_EQ(::mkfifo(path.c_str(), 0666), 0);
    store.write("Settings", "a", "1");
    EXPECT_NE(store.commit().find("not an ordinary file"), std::string::npos);
    EXPECT_TRUE(fs::is_fifo(path));
}

TEST(ini_store, pipes_in_the_place_of_its_passing_files_hold_nothing_up) {
    const Folder folder;
    put(folder.file(), "[Settings]\nno pair\n");
    for (const char* ending : {".new", ".damaged"}) {
        ASSERT_EQ(::mkfifo((folder.file() + ending).c_str(), 0666), 0);
    }
    EXPECT_EQ(changedAt(folder.file()), "");
    EXPECT_EQ(contents(folder.file()), "[Settings]\na=1\n\n");
    EXPECT_EQ(contents(folder.file() + ".damaged"), "[Settings]\nno pair\n");
}

TEST(ini_store, killed_while_writing_the_file_is_the_old_one_or_the_new_one) {
    const Folder folder;
    IniStore first(folder.file());
    fillWith(first, "start");
    ASSERT_EQ(first.commit(), "");
    std::mt19937 random(7);
    for (int round = 0; round < 200; ++round) {
        const pid_t child = fork();
        if (child == 0) {
            for (int i = 0;; ++i) {
                IniStore store(folder.file());
                fillWith(store, i % 2 == 0 ? "even" : "odd");
                static_cast<void>(store.commit());
            }
        }
        usleep(static_cast<useconds_t>(random() % 6000));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        bool isMalformed = false;
        const IniSections read = parseIni(contents(folder.file()), isMalformed);
        ASSERT_FALSE(isMalformed);
        const std::string word = read.at("Section0").at("Key0");
        int entries = 0;
        for (const auto& [section, keys] : read) {
            for (const auto& [key, value] : keys) {
                ASSERT_EQ(value, word) << "round " << round;
                ++entries;
            }
        }
        ASSERT_EQ(entries, 400);
    }
}

TEST(ini_store, a_file_that_another_program_holds_is_told_and_not_waited_for_twice) {
    const Folder folder;
    IniStore store(folder.file());
    store.write("Settings", "a", "1");
    ASSERT_EQ(store.commit(), "");
    const int lock = ::open((folder.file() + ".lock").c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(::flock(lock, LOCK_EX), 0);
    store.write("Settings", "a", "2");
    EXPECT_NE(store.commit().find("Another program holds the file"), std::string::npos);
    const auto began = std::chrono::steady_clock::now();
    EXPECT_NE(store.commit(), "");
    EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::milliseconds(500));
    EXPECT_EQ(IniStore(folder.file()).read("Settings", "a", ""), "1");
    ::close(lock);
    EXPECT_EQ(store.commit(), "") << "the change was kept";
    EXPECT_EQ(IniStore(folder.file()).read("Settings", "a", ""), "2");
}

TEST(ini_store, without_a_home_the_account_has_one) {
    const Variable none("XDG_CONFIG_HOME", nullptr);
    const std::string account = ::getpwuid(::getuid())->pw_dir;
    const std::string expected = account + "/.config/quillbyte/ombrelia-terrain-editor.ini";
    {
        const Variable homeless("HOME", nullptr);
        EXPECT_EQ(userSettingsPath(), expected);
    }
    const Variable empty("HOME", "");
    EXPECT_EQ(userSettingsPath(), expected);
}

}  // namespace ombrelia
