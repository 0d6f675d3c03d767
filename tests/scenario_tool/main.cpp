// scenario FILE: runs a text file of commands against the editor's own logic, without a display.
#include <cstring>
#include <exception>
#include <fstream>
#include <iostream>

#include "errors.h"
#include "session.h"

namespace ombrelia::scenario {

namespace {

int report(const char* file, const Session& session, const std::string& sentence, int status) {
    std::cout.flush();
    std::cerr << file << ":" << session.line << ": " << sentence << "\n";
    return status;
}

void runLines(std::istream& lines, Session& session) {
    std::string line;
    while (std::getline(lines, line)) {
        session.runLine(line);
    }
    session.finish();
}

int runFile(const char* file, std::istream& lines) {
    Session session;
    try {
        if (!lines) {
            throw LineError{"the file cannot be read"};
        }
        runLines(lines, session);
        return kAllHeld;
    } catch (const ExpectFailed& failed) {
        return report(file, session, failed.sentence, kExpectFailed);
    } catch (const LineError& error) {
        return report(file, session, error.sentence, kBadLine);
    } catch (const NoDrawLeft&) {
        return report(file, session, "a random number is drawn, but none is given", kBadLine);
    } catch (const HandlerFailed& failure) {
        return report(file, session, failure.sentence, kRunTimeFailure);
    } catch (const std::exception& failure) {
        return report(file, session, failure.what(), kRunTimeFailure);
    }
}

}  // namespace

}  // namespace ombrelia::scenario

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "scenario:0: one FILE is expected, - for standard input\n";
        return ombrelia::scenario::kBadLine;
    }
    if (std::strcmp(arguments[1], "-") == 0) {
        return ombrelia::scenario::runFile("-", std::cin);
    }
    std::ifstream file(arguments[1]);
    return ombrelia::scenario::runFile(arguments[1], file);
}
