#include "outcome.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

#include "errors.h"
#include "platform/headless/headless_platform.h"

namespace ombrelia::monkey {

namespace {

namespace fs = std::filesystem;

constexpr int kFailed = 90;
constexpr int kBadLine = 91;

// A folder for one run, which goes with all that is in it.
class Scratch {
  public:
    Scratch() {
        std::string pattern = (fs::temp_directory_path() / "monkey_XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr) {
            throw std::runtime_error("no scratch folder can be made");
        }
        path_ = pattern;
    }
    ~Scratch() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;
    fs::path folder() const { return path_ / "run"; }
    fs::path words() const { return path_ / "words"; }

  private:
    fs::path path_;
};

[[noreturn]] void endWith(const fs::path& words, const std::string& sentence, int status) {
    std::ofstream(words) << sentence;
    std::_Exit(status);
}

[[noreturn]] void runHere(const std::function<void()>& work, const Scratch& scratch,
                          unsigned seconds) {
    ::alarm(seconds);
    fs::create_directory(scratch.folder());
    fs::current_path(scratch.folder());
    const fs::path words = scratch.words();
    try {
        work();
    } catch (const scenario::LineError& error) {
        endWith(words, error.sentence, kBadLine);
    } catch (const scenario::ExpectFailed& failed) {
        endWith(words, failed.sentence, kFailed);
    } catch (const HandlerFailed& failure) {
        endWith(words, failure.sentence, kFailed);
    } catch (const NoDrawLeft&) {
        endWith(words, "a random number is drawn, but none is given", kFailed);
    } catch (const std::exception& failure) {
        endWith(words, failure.what(), kFailed);
    }
    std::exit(0);  // looks for leaks
}

std::string contentOf(const fs::path& path) {
    std::ifstream file(path);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

std::string withoutNumbers(std::string text) {
    std::erase_if(text, [](char c) { return (c >= '0' && c <= '9') || c == '-'; });
    return text;
}

Outcome outcomeOf(int status, const fs::path& words) {
    if (WIFSIGNALED(status)) {
        const int signal = WTERMSIG(status);
        return {signal == SIGALRM ? "it does not come to an end"
                                  : std::string("it crashes: ") + ::strsignal(signal)};
    }
    switch (WEXITSTATUS(status)) {
        case 0:
            return {};
        case kFailed:
            return {contentOf(words)};
        case kBadLine:
            return {contentOf(words), true};
        default:
            return {"a sanitizer ends it with status " + std::to_string(WEXITSTATUS(status))};
    }
}

}  // namespace

bool Outcome::isLike(const Outcome& other) const {
    const bool isExpectation = what.find(" is \"") != std::string::npos;
    if (isExpectation) {
        return what == other.what;
    }
    return isLine == other.isLine && withoutNumbers(what) == withoutNumbers(other.what);
}

Outcome runApart(const std::function<void()>& work, unsigned seconds) {
    const Scratch scratch;
    std::cout.flush();  // the process would flush it once more
    const pid_t child = ::fork();
    if (child < 0) {
        throw std::runtime_error("no process can be made");
    }
    if (child == 0) {
        runHere(work, scratch, seconds);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return outcomeOf(status, scratch.words());
}

}  // namespace ombrelia::monkey
