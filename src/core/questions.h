// What the editor asks and tells in message boxes, word for word; failures are worded in
// platform/messages.cpp.
#pragma once

namespace ombrelia::messages {

// Before a map is lost.
inline constexpr const char* kNewMapQuestion = "Are you sure you want to start a new map?";
inline constexpr const char* kNewMapTitle = "Start New Map?";
inline constexpr const char* kExitQuestion = "Are you sure you want to Exit?";
inline constexpr const char* kExitTitle = "Exit?";

// The colour page.
inline constexpr const char* kSelectColorTitle = "Select a Color";
inline constexpr const char* kSaveColorSetTitle = "Save Color Set";
inline constexpr const char* kSaveColorSetPrompt = "Please enter a save name:";
inline constexpr const char* kNameInUseTitle = "Name is in use!";
inline constexpr const char* kNameInUse =
    "Sorry, the chosen name cannot be used. It is already in use by one of the default color sets. "
    "Please choose another name.";
inline constexpr const char* kCannotDeleteTitle = "Cannot Delete!";
inline constexpr const char* kCannotDelete = "This color setting cannot be deleted!";

}  // namespace ombrelia::messages
