// Run-time failures: what ends the handler in which it happens. Caught where events are delivered,
// worded in messages.cpp.
#pragma once

#include <stdexcept>
#include <string>

namespace ombrelia {

// The root of all failures; what() is one plain sentence for the user.
class Failure : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// A subscript outside its array.
class SubscriptFailure : public Failure {
  public:
    // low..high is the range that index should have lain in.
    SubscriptFailure(long index, long low, long high);
};

// A number that does not fit its 16 or 32 bits.
class OverflowFailure : public Failure {
  public:
    OverflowFailure(double value, int bits);
};

// Throw them. Of no loop's own code, which stays small and calls nothing that can wait.
[[noreturn]] void throwSubscript(long index, long low, long high);
[[noreturn]] void throwOverflow(double value, int bits);

// A button, face or other part that is asked for by a number that it does not have.
class MissingPartFailure : public Failure {
  public:
    MissingPartFailure(const std::string& what, int index);
};

// A file that cannot be opened, read or written.
class FileFailure : public Failure {
  public:
    // action: "saved" or "read"; reason: a clause without a full stop, mostly the system's words.
    FileFailure(const std::string& action, const std::string& path, const std::string& reason);
};

// A picture that cannot be loaded.
class PictureFailure : public Failure {
  public:
    // reason: a clause without a full stop.
    PictureFailure(const std::string& path, const std::string& reason);
    // The whole sentence, as another process has worded it.
    explicit PictureFailure(const std::string& sentence) : Failure(sentence) {}
};

// Thrown by endProcess() so that nothing behind it runs; reaches the event loop, which ends.
struct ProcessEnd {};

}  // namespace ombrelia
