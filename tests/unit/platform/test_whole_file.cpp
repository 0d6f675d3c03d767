#include <csignal>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <span>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "platform/failure.h"
#include "platform/whole_file.h"
#include "temp_folder.h"

namespace ombrelia {

namespace {

std::span<const std::uint8_t> wholeLetters(const std::string& text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

class WholeFileTest : public testing::Test {
  protected:
    SavePlace at(const std::string& name) const { return SavePlace(folder / name); }

    TempFolder folder;
};

constexpr const char* kLeftByAKill = ".ombrelia-terrain-editor.saving";

ino_t numberOf(const std::string& path) {
    struct stat status {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0) << path;
    return status.st_ino;
}

mode_t modeOf(const std::string& path) {
    struct stat status {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0) << path;
    return status.st_mode & 07777U;
}

// Does something in a process that is killed when a file of its own would grow past three bytes.
void killedInTheMiddle(const std::function<void()>& work) {
    const pid_t child = ::fork();
    if (child == 0) {
        const rlimit none{0, 0};
        const rlimit small{3, 3};
        std::signal(SIGXFSZ, SIG_DFL);
        ::setrlimit(RLIMIT_CORE, &none);
        ::setrlimit(RLIMIT_FSIZE, &small);
        work();
        ::_exit(0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status));
    ASSERT_EQ(WTERMSIG(status), SIGXFSZ);
}

TEST_F(WholeFileTest, a_whole_file_is_there_at_once) {
    ASSERT_TRUE(makeNameless(at("a"), wholeLetters("hello")));
    EXPECT_EQ(contentOf(folder / "a"), "hello");
    EXPECT_FALSE(makeNameless(at("a"), wholeLetters("other")));
    EXPECT_EQ(contentOf(folder / "a"), "hello");
    EXPECT_FALSE(makeNameless(at("gone/a"), wholeLetters("hello")));
}

TEST_F(WholeFileTest, a_whole_file_without_room_is_a_failure_and_not_there) {
    const FileSizeLimit full(3);
    EXPECT_THROW(static_cast<void>(makeNameless(at("a"), wholeLetters("hello"))), FileFailure);
    EXPECT_TRUE(folder.names().empty());
}

TEST_F(WholeFileTest, a_save_fills_a_new_name_and_an_empty_file) {
    EXPECT_TRUE(saveWholeFile(folder / "new", wholeLetters("hello")));
    EXPECT_EQ(contentOf(folder / "new"), "hello");
    writeContent(folder / "empty", "");
    EXPECT_TRUE(saveWholeFile(folder / "empty", wholeLetters("other")));
    EXPECT_EQ(contentOf(folder / "empty"), "other");
}

TEST_F(WholeFileTest, a_save_leaves_alone_what_holds_something) {
    writeContent(folder / "a", "x");
    EXPECT_FALSE(saveWholeFile(folder / "a", wholeLetters("hello")));
    EXPECT_EQ(contentOf(folder / "a"), "x");
}

TEST_F(WholeFileTest, a_save_without_room_leaves_what_was_there) {
    writeContent(folder / "empty", "");
    std::filesystem::create_symlink("end", folder / "link");
    const FileSizeLimit full(3);
    EXPECT_THROW(static_cast<void>(saveWholeFile(folder / "new", wholeLetters("hello"))),
                 FileFailure);
    EXPECT_THROW(static_cast<void>(saveWholeFile(folder / "empty", wholeLetters("hello"))),
                 FileFailure);
    EXPECT_THROW(static_cast<void>(saveWholeFile(folder / "link", wholeLetters("hello"))),
                 FileFailure);
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"empty", "link"}));
    EXPECT_EQ(contentOf(folder / "empty"), "");
}

TEST_F(WholeFileTest, a_place_is_where_the_links_lead) {
    std::filesystem::create_directory(folder / "sub");
    std::filesystem::create_symlink("sub/second", folder / "first");
    std::filesystem::create_symlink(folder / "end", folder / "sub/second");
    const SavePlace place(folder / "first");
    EXPECT_EQ(place.path, folder / "first");
    EXPECT_EQ(place.end, folder / "end");
    EXPECT_EQ(place.folder, folder / "");
    EXPECT_EQ(SavePlace("a").end, "a");
    EXPECT_EQ(SavePlace("a").folder, "./");
    EXPECT_EQ(SavePlace("/a").folder, "/");
}

TEST_F(WholeFileTest, a_folder_that_cannot_be_read_takes_a_save) {
    std::filesystem::create_directory(folder / "blind");
    ASSERT_EQ(::chmod((folder / "blind").c_str(), 0333), 0);
    {
        const OrdinaryUser user;
        EXPECT_TRUE(saveWholeFile(folder / "blind/a", wholeLetters("hello")));
    }
    EXPECT_EQ(contentOf(folder / "blind/a"), "hello");
}

TEST_F(WholeFileTest, a_file_made_beside_is_there_at_once) {
    ASSERT_TRUE(makeBeside(at("a"), wholeLetters("hello")));
    EXPECT_EQ(contentOf(folder / "a"), "hello");
    EXPECT_FALSE(makeBeside(at("a"), wholeLetters("other")));
    EXPECT_EQ(contentOf(folder / "a"), "hello");
    writeContent(folder / "empty", "");
    EXPECT_FALSE(makeBeside(at("empty"), wholeLetters("other")));
    EXPECT_EQ(contentOf(folder / "empty"), "");
    EXPECT_FALSE(makeBeside(at("gone/a"), wholeLetters("hello")));
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"a", "empty"}));
}

TEST_F(WholeFileTest, a_file_made_beside_without_room_is_a_failure_and_not_there) {
    const FileSizeLimit full(3);
    EXPECT_THROW(static_cast<void>(makeBeside(at("a"), wholeLetters("hello"))), FileFailure);
    EXPECT_TRUE(folder.names().empty());
}

TEST_F(WholeFileTest, killed_beside_it_leaves_a_passing_file_that_the_next_save_takes_away) {
    killedInTheMiddle([&] { static_cast<void>(makeBeside(at("a"), wholeLetters("hello"))); });
    EXPECT_EQ(folder.names(), std::vector<std::string>{kLeftByAKill});
    EXPECT_TRUE(saveWholeFile(folder / "b", wholeLetters("hello")));
    EXPECT_EQ(folder.names(), std::vector<std::string>{"b"});
    EXPECT_EQ(contentOf(folder / "b"), "hello");
}

TEST_F(WholeFileTest, an_empty_file_stays_empty_in_a_save_that_is_killed) {
    writeContent(folder / "a", "");
    killedInTheMiddle(
        [&] { static_cast<void>(saveWholeFile(folder / "a", wholeLetters("hello"))); });
    EXPECT_EQ(folder.names(), (std::vector<std::string>{kLeftByAKill, "a"}));
    EXPECT_EQ(contentOf(folder / "a"), "");
    EXPECT_TRUE(saveWholeFile(folder / "a", wholeLetters("hello")));
    EXPECT_EQ(folder.names(), std::vector<std::string>{"a"});
    EXPECT_EQ(contentOf(folder / "a"), "hello");
}

TEST_F(WholeFileTest, a_save_that_is_refused_takes_the_passing_file_away_too) {
    writeContent(folder / "a", "x");
    writeContent(folder / kLeftByAKill, "hel");
    EXPECT_FALSE(saveWholeFile(folder / "a", wholeLetters("hello")));
    EXPECT_EQ(folder.names(), std::vector<std::string>{"a"});
}

TEST_F(WholeFileTest, killed_at_any_moment_every_file_is_whole) {
    const std::string bytes(40000, 'x');
    std::mt19937 random(11);
    for (int round = 0; round < 60; ++round) {
        const pid_t child = ::fork();
        if (child == 0) {
            for (int n = 0;; ++n) {
                const std::string name = std::to_string(round) + " " + std::to_string(n);
                static_cast<void>(makeBeside(at(name), wholeLetters(bytes)));
                writeContent(folder / (name + " empty"), "");
                static_cast<void>(fillEmpty(at(name + " empty"), wholeLetters(bytes)));
            }
        }
        ::usleep(static_cast<useconds_t>(random() % 20000));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        static_cast<void>(saveWholeFile(folder / "last", wholeLetters("hello")));
        for (const std::string& name : folder.names()) {
            const std::size_t size = contentOf(folder / name).size();
            const bool isLastEmpty = size == 0 && name.ends_with(" empty");
            ASSERT_TRUE(name == "last" || isLastEmpty || size == bytes.size()) << name;
            ASSERT_NE(name.front(), '.') << name;
        }
    }
}

TEST_F(WholeFileTest, an_empty_file_keeps_its_mode) {
    for (const mode_t mode : {0600U, 0666U, 0755U}) {
        writeContent(folder / "a", "");
        ASSERT_EQ(::chmod((folder / "a").c_str(), mode), 0);
        ASSERT_TRUE(saveWholeFile(folder / "a", wholeLetters("hello")));
        EXPECT_EQ(modeOf(folder / "a"), mode);
        EXPECT_EQ(contentOf(folder / "a"), "hello");
    }
}

TEST_F(WholeFileTest, an_empty_file_behind_a_link_is_replaced_and_the_link_stays) {
    std::filesystem::create_directory(folder / "sub");
    writeContent(folder / "sub/end", "");
    std::filesystem::create_symlink("sub/end", folder / "link");
    const ino_t before = numberOf(folder / "sub/end");
    ASSERT_TRUE(saveWholeFile(folder / "link", wholeLetters("hello")));
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link"));
    EXPECT_EQ(contentOf(folder / "sub/end"), "hello");
    EXPECT_NE(numberOf(folder / "sub/end"), before);
}

TEST_F(WholeFileTest, an_empty_file_of_two_names_is_filled_under_both) {
    writeContent(folder / "a", "");
    std::filesystem::create_hard_link(folder / "a", folder / "b");
    ASSERT_TRUE(saveWholeFile(folder / "a", wholeLetters("hello")));
    EXPECT_EQ(contentOf(folder / "b"), "hello");
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"a", "b"}));
}

TEST_F(WholeFileTest, an_empty_file_in_a_read_only_folder_is_filled) {
    std::filesystem::create_directory(folder / "locked");
    writeContent(folder / "locked/a", "");
    ASSERT_EQ(::chmod((folder / "locked/a").c_str(), 0666), 0);
    ASSERT_EQ(::chmod((folder / "locked").c_str(), 0555), 0);
    const OrdinaryUser user;
    {
        const FileSizeLimit full(3);
        EXPECT_THROW(static_cast<void>(saveWholeFile(folder / "locked/a", wholeLetters("hello"))),
                     FileFailure);
    }
    EXPECT_EQ(contentOf(folder / "locked/a"), "");
    EXPECT_TRUE(saveWholeFile(folder / "locked/a", wholeLetters("hello")));
    EXPECT_EQ(contentOf(folder / "locked/a"), "hello");
}

}  // namespace

}  // namespace ombrelia
