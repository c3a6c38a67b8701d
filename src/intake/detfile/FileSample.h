#pragma once
// Bounded reading of the file being recognised: its head once, and a few small pieces more where
// a container says where to look, so that recognising a file of any size costs a few reads.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace orvane::detfile {

// Signatures, the markup test and the recogniser's own text score all look at this much.
inline constexpr std::size_t kHeadBytes = 64 * 1024;

class FileSample {
  public:
    FileSample() = default;
    FileSample(const FileSample&) = delete;
    FileSample& operator=(const FileSample&) = delete;
    ~FileSample();

    // Opens a regular file and reads its head. False when it cannot be opened or read; folders,
    // devices and pipes are refused, since reading them may never end.
    bool Open(const std::string& path);

    std::uint64_t Size() const { return size_; }
    std::string_view Head() const { return head_; }
    // The head is not the whole file.
    bool HeadIsPartial() const { return size_ > head_.size(); }

    // Up to `count` bytes from `offset`; fewer at the end of the file or on a read error.
    std::string ReadAt(std::uint64_t offset, std::size_t count) const;
    // The bytes at `offset` from the head when it holds them, else read.
    std::string Slice(std::uint64_t offset, std::size_t count) const;

    // All bytes read so far, the head included.
    std::size_t BytesRead() const { return bytesRead_; }

  private:
    int fd_ = -1;
    std::uint64_t size_ = 0;
    std::string head_;
    mutable std::size_t bytesRead_ = 0;
};

} // namespace orvane::detfile
