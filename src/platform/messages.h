// What a message box says of a failure, each a full sentence, and the reasons that stand in them.
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
inline constexpr const char* kNoSettingsAreSoLarge = "It is larger than preferences can be";
inline constexpr const char* kStoreIsHeld = "Another program holds the file";
inline constexpr const char* kNoMemory = "There is not enough memory for it";
inline constexpr const char* kTakesTooLong = "It takes too long to read";
inline constexpr const char* kReaderFailed = "Its contents cannot be made sense of";
std::string pictureTooLarge(long long width, long long height);

// detail: the words of the library that reads this kind.
std::string damagedPicture(const std::string& detail);

// What the dialogs that name a file say.
std::string nothingOfThisName(const std::string& path);
std::string neverReplaced(const std::string& path);
std::string useEmptyFile(const std::string& path);

// The settings stay as they are on the disk.
std::string settingsNotRead(const std::string& path, const std::string& reason);
std::string settingsNotSaved(const std::string& path, const std::string& reason);

}  // namespace ombrelia::messages
