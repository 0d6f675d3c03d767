// The commands of a scenario, as tables of rows.
#pragma once

#include <cstddef>
#include <span>

#include "fields.h"
#include "session.h"

namespace ombrelia::scenario {

inline constexpr std::size_t kAnyNumber = 1000000;

// Whether a command acts on the running editor, or also makes sense after its end.
enum class Acts { OnEditor, Anywhere };

struct Command {
    const char* word;
    std::size_t leastFields, mostFields;  // behind the word
    Acts acts;
    void (*run)(Session& session, const Fields& fields);
};

std::span<const Command> platformCommands();
std::span<const Command> drivingCommands();
std::span<const Command> pointerCommands();
std::span<const Command> shortcutCommands();
std::span<const Command> lookCommands();

}  // namespace ombrelia::scenario
