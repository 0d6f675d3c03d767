// Commands that show or check what the editor holds.
#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>

#include "command.h"
#include "dumps.h"
#include "errors.h"
#include "values.h"

namespace ombrelia::scenario {

namespace {

void get(Session& session, const Fields& fields) {
    const std::string text = valueText(session, fields[0]);
    std::cout << fields[0] << " = " << text << "\n";
}

void expect(Session& session, const Fields& fields) {
    checkValue(session, fields[0], fields[1]);
}

struct Dump {
    const char* subject;
    std::size_t fields;  // between the subject and the path
    void (*write)(const Session& session, const Fields& fields, std::ostream& out);
};

constexpr Dump kDumps[] = {
    {"heights", 0, dumpHeights},    {"shadow", 0, dumpShadow},   {"surface", 1, dumpSurface},
    {"buttons", 0, dumpButtons},    {"sliders", 0, dumpSliders}, {"colors", 0, dumpColors},
    {"settings", 0, dumpSettings},  {"calls", 0, dumpCalls},     {"maze", 0, dumpMaze},
    {"user-maze", 0, dumpUserMaze}, {"worm", 0, dumpWorm},
};

void writeFile(const std::string& path, const Dump& row, const Session& session,
               const Fields& fields) {
    std::ofstream file(path, std::ios::binary);
    row.write(session, fields, file);
    file.close();
    if (!file) {
        throw LineError{path + " cannot be written"};
    }
}

void dump(Session& session, const Fields& fields) {
    const auto* row = std::find_if(std::begin(kDumps), std::end(kDumps),
                                   [&](const Dump& r) { return fields[0] == r.subject; });
    if (row == std::end(kDumps)) {
        throw LineError{"there is no dump of \"" + fields[0] + "\""};
    }
    if (fields.size() != row->fields + 2) {
        throw LineError{"dump " + fields[0] + " does not go with " +
                        std::to_string(fields.size() - 1) + " fields"};
    }
    const Fields middle(fields.begin() + 1, fields.end() - 1);
    if (fields.back() == "-") {
        row->write(session, middle, std::cout);
    } else {
        writeFile(fields.back(), *row, session, middle);
    }
}

constexpr Command kLookCommands[] = {
    {"get", 1, 1, Acts::Anywhere, get},
    {"expect", 2, 2, Acts::Anywhere, expect},
    {"dump", 2, 3, Acts::Anywhere, dump},
};

}  // namespace

std::span<const Command> lookCommands() {
    return kLookCommands;
}

}  // namespace ombrelia::scenario
