// Every sentence that a message box of the program can show, as functions with named arguments.
#pragma once

#include <string>

namespace ombrelia::messages {

std::string subscriptOutside(long index, long low, long high);
std::string numberTooLarge(double value, int bits);
std::string missingPart(const std::string& what, int index);

// action: "saved" or "read". Says too that the map is unharmed.
std::string fileFailed(const std::string& action, const std::string& path,
                       const std::string& reason);

// Says too that the map is unharmed.
std::string pictureFailed(const std::string& path, const std::string& reason);

// Reasons for that, where the system has none of its own.
inline constexpr const char* kEmptyFile = "It is empty";
inline constexpr const char* kNoOrdinaryFile = "It is not an ordinary file";
inline constexpr const char* kUnknownPicture = "It is not a picture of a kind that can be read";
inline constexpr const char* kCutOff = "It is cut off before its end";
inline constexpr const char* kDamagedHeader = "Its header is damaged";
inline constexpr const char* kUnknownCompression = "Its kind of compression cannot be read";
inline constexpr const char* kStoreIsHeld = "Another program holds the file";
inline constexpr const char* kNoMemory = "There is not enough memory for it";
std::string pictureTooLarge(long long width, long long height);

// The settings stay as they are on the disk.
std::string settingsNotSaved(const std::string& path, const std::string& reason);

// The questions of the editor, as they stand.
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
