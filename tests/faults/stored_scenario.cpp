// stored_scenario SETTINGS SCENARIO: runs a scenario with the settings on the disk, written after
// each line as the program writes them after each event. Prints what a user would be told, and
// "kept LINE" when all that was changed up to a line is on the disk.
#include <fstream>
#include <iostream>

#include "errors.h"
#include "platform/ini_store.h"
#include "session.h"

namespace ombrelia::scenario {

namespace {

void runStored(const std::string& settings, std::istream& lines) {
    Session session;
    session.tellsFailures = true;
    IniStore store(settings);
    services().settings = &store;
    for (std::string line; std::getline(lines, line);) {
        session.runLine(line);
        const std::string failure = store.commit();
        if (failure.empty()) {
            std::cout << "kept " << session.line << std::endl;
        } else {
            std::cout << "told " << failure << std::endl;
        }
        for (const std::string& sentence : session.platform.Failures) {
            std::cout << "told " << sentence << std::endl;
        }
        session.platform.Failures.clear();
    }
}

}  // namespace

}  // namespace ombrelia::scenario

int main(int count, char** arguments) {
    using namespace ombrelia;
    if (count != 3) {
        std::cerr << "stored_scenario SETTINGS SCENARIO\n";
        return 2;
    }
    std::ifstream lines(arguments[2]);
    try {
        scenario::runStored(arguments[1], lines);
    } catch (const scenario::LineError& error) {
        std::cerr << error.sentence << "\n";
        return scenario::kBadLine;
    } catch (const HandlerFailed& failure) {
        std::cerr << failure.sentence << "\n";
        return scenario::kRunTimeFailure;
    }
    return scenario::kAllHeld;
}
