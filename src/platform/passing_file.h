// A file that is written under a passing name beside the place where it is to stand. A process that
// is killed on the way leaves it behind; removeLeftovers takes it away.
#pragma once

#include <string>
#include <utility>

#include "platform/binary_file.h"

namespace ombrelia {

class PassingFile {
  public:
    // Makes it in the folder, which ends in a slash; failures name the path.
    PassingFile(const std::string& folder, const std::string& path);
    // Takes it away, unless it was given its name.
    ~PassingFile();
    PassingFile(const PassingFile&) = delete;
    PassingFile& operator=(const PassingFile&) = delete;

    // False if the folder takes no new file, or knows no locks.
    bool isThere() const { return !name_.empty(); }

    BinaryFile& file() { return file_; }

    // Takes over owner and mode. False if more would be lost with the model than its bytes: other
    // names of it, a list of who may use it, an owner that cannot be given.
    [[nodiscard]] bool takeRightsOf(const BinaryFile& model);

    // Gives it a name that nothing has; false if something has it, or the file system cannot.
    [[nodiscard]] bool becomeNew(const std::string& path);

    // Gives it a name, in the place of what has it; false if that is impossible.
    [[nodiscard]] bool replace(const std::string& path);

  private:
    PassingFile(const std::string& path, std::pair<std::string, int> made);

    std::string name_;
    BinaryFile file_;
};

// Takes away the passing files in the folder, which ends in a slash, that no process works at.
void removeLeftovers(const std::string& folder);

}  // namespace ombrelia
