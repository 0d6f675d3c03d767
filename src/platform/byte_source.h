// Bytes of a picture's file, read from any place; and the limits that every loader keeps.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace ombrelia {

class Surface;

class ByteSource {
  public:
    explicit ByteSource(std::string path) : path_(std::move(path)) {}
    virtual ~ByteSource() = default;
    ByteSource(const ByteSource&) = delete;
    ByteSource& operator=(const ByteSource&) = delete;

    const std::string& path() const { return path_; }
    virtual std::uint64_t size() const = 0;

    // Fills the whole of into with what stands at offset. Throws PictureFailure if the bytes end
    // sooner.
    virtual void read(std::uint64_t offset, std::span<std::uint8_t> into) = 0;

  private:
    std::string path_;
};

// Bytes in memory, which must outlive this.
class MemorySource : public ByteSource {
  public:
    MemorySource(std::string path, std::span<const std::uint8_t> bytes)
        : ByteSource(std::move(path)), bytes_(bytes) {}
    std::uint64_t size() const override { return bytes_.size(); }
    void read(std::uint64_t offset, std::span<std::uint8_t> into) override;

  private:
    std::span<const std::uint8_t> bytes_;
};

// A file opened for reading. Throws PictureFailure for folders, pipes and devices too, and for an
// empty file.
class FileSource : public ByteSource {
  public:
    explicit FileSource(std::string path);
    ~FileSource() override;
    std::uint64_t size() const override { return size_; }
    void read(std::uint64_t offset, std::span<std::uint8_t> into) override;

    // The system's number of the open file, whose place is its begin.
    int handle() const { return handle_; }

  private:
    int handle_ = -1;
    std::uint64_t size_ = 0;
};

// Checks the size, then gives it to picture, all black. Throws PictureFailure, also when there is
// not enough memory.
void sizePicture(const std::string& path, std::int64_t width, std::int64_t height,
                 Surface& picture);

}  // namespace ombrelia
