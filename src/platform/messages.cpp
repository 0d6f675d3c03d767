#include "platform/messages.h"

#include "platform/failure.h"

namespace ombrelia {

namespace messages {

std::string subscriptOutside(long index, long low, long high) {
    return "This step could not be finished: place " + std::to_string(index) + " lies outside " +
           std::to_string(low) + " to " + std::to_string(high) + ". The map is as it was left.";
}

std::string numberTooLarge(double value, int bits) {
    return "This step could not be finished: the number " + std::to_string(value) +
           " does not fit " + std::to_string(bits) + " bits. The map is as it was left.";
}

std::string missingPart(const std::string& what, int index) {
    return "This step could not be finished: there is no " + what + " with the number " +
           std::to_string(index) + ".";
}

std::string fileFailed(const std::string& action, const std::string& path,
                       const std::string& reason) {
    return "The file \"" + path + "\" could not be " + action + ": " + reason +
           ". The map is unharmed.";
}

std::string pictureFailed(const std::string& path, const std::string& reason) {
    return "The picture \"" + path + "\" could not be loaded: " + reason + ". The map is unharmed.";
}

std::string pictureTooLarge(long long width, long long height) {
    return "It has " + std::to_string(width) + " x " + std::to_string(height) +
           " pixels, which is more than can be held";
}

std::string damagedPicture(const std::string& detail) {
    return "It is damaged (" + detail + ")";
}

std::string nothingOfThisName(const std::string& path) {
    return "There is nothing of the name \"" + path + "\".";
}

std::string neverReplaced(const std::string& path) {
    return "\"" + path +
           "\" holds something already, and that is never replaced. Please choose another name.";
}

std::string useEmptyFile(const std::string& path) {
    return "\"" + path + "\" is there already, and empty. Shall the map be saved in it?";
}

std::string settingsNotRead(const std::string& path, const std::string& reason) {
    return "Your preferences could not be read from \"" + path + "\": " + reason +
           ". The file stays as it is, and nothing is saved in it this time; the map is unharmed.";
}

std::string settingsNotSaved(const std::string& path, const std::string& reason) {
    return "Your preferences could not be saved in \"" + path + "\": " + reason +
           ". The editor goes on; the map is unharmed.";
}

}  // namespace messages

SubscriptFailure::SubscriptFailure(long index, long low, long high)
    : Failure(messages::subscriptOutside(index, low, high)) {}

OverflowFailure::OverflowFailure(double value, int bits)
    : Failure(messages::numberTooLarge(value, bits)) {}

void throwSubscript(long index, long low, long high) {
    throw SubscriptFailure(index, low, high);
}

void throwOverflow(double value, int bits) {
    throw OverflowFailure(value, bits);
}

MissingPartFailure::MissingPartFailure(const std::string& what, int index)
    : Failure(messages::missingPart(what, index)) {}

FileFailure::FileFailure(const std::string& action, const std::string& path,
                         const std::string& reason)
    : Failure(messages::fileFailed(action, path, reason)) {}

PictureFailure::PictureFailure(const std::string& path, const std::string& reason)
    : Failure(messages::pictureFailed(path, reason)) {}

}  // namespace ombrelia
