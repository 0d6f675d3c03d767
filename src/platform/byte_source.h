// Bytes of a picture's file, read from any place or one after the other.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace ombrelia {

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

  private:
    int handle_ = -1;
    std::uint64_t size_ = 0;
};

// The bytes one after the other.
class ByteStream {
  public:
    ByteStream(ByteSource& source, std::uint64_t offset) : source_(source), next_(offset) {}

    bool atEnd() const { return place_ == chunk_.size() && next_ >= source_.size(); }

    // Throws PictureFailure at the end.
    std::uint8_t take();

    // Fills the whole of into. Throws PictureFailure at the end.
    void fill(std::span<std::uint8_t> into);

    // The bytes that are at hand, at least one unless the end is reached; they count as taken.
    std::span<const std::uint8_t> takeChunk();

  private:
    void fetch();

    ByteSource& source_;
    std::uint64_t next_;
    std::vector<std::uint8_t> chunk_;
    std::size_t place_ = 0;
};

}  // namespace ombrelia
