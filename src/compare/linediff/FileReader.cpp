#include "FileReader.h"

#include "BigBuffer.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <new>
#include <sys/stat.h>
#include <unistd.h>

namespace linediff {

void FileBuffer::Reset() {
    FreeBig(data_, capacity_);
    data_ = nullptr;
    size_ = capacity_ = 0;
}

class FileReading {
  public:
    explicit FileReading(FileBuffer& buffer) : b_(buffer) {}

    // Reads to end of file, growing the buffer when the file turns out longer than fstat said.
    // Returns 0 or an errno value.
    int ReadAll(int fd, std::size_t sizeHint) {
        Grow(sizeHint + 1); // +1 so that end of file is seen without a regrow
        for (;;) {
            if (b_.size_ == b_.capacity_) Grow(b_.capacity_ * 2);
            ssize_t got = ::read(fd, b_.data_ + b_.size_, b_.capacity_ - b_.size_);
            if (got == 0) return 0;
            if (got < 0 && errno != EINTR) return errno;
            if (got > 0) b_.size_ += static_cast<std::size_t>(got);
        }
    }

  private:
    void Grow(std::size_t capacity) {
        char* bigger = static_cast<char*>(AllocateBig(capacity));
        if (b_.size_) std::memcpy(bigger, b_.data_, b_.size_);
        FreeBig(b_.data_, b_.capacity_);
        b_.data_ = bigger;
        b_.capacity_ = capacity;
    }

    FileBuffer& b_;
};

namespace {

std::string Reason(const std::string& path, const char* why) {
    return "Cannot read \"" + path + "\": " + why;
}

class Fd {
  public:
    explicit Fd(int fd) : fd_(fd) {}
    ~Fd() {
        if (fd_ >= 0) ::close(fd_);
    }
    Fd(const Fd&) = delete;
    Fd& operator=(const Fd&) = delete;
    int Get() const { return fd_; }

  private:
    int fd_;
};

} // namespace

bool ReadWholeFile(const std::string& path, FileBuffer& out, std::string& error) {
    out.Reset();
    Fd fd(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (fd.Get() < 0) return error = Reason(path, std::strerror(errno)), false;
    struct stat st {};
    if (::fstat(fd.Get(), &st) != 0) return error = Reason(path, std::strerror(errno)), false;
    if (S_ISDIR(st.st_mode)) return error = Reason(path, "it is a folder, not a file"), false;
    std::size_t hint = S_ISREG(st.st_mode) ? static_cast<std::size_t>(st.st_size) : 65536;
    int err = FileReading(out).ReadAll(fd.Get(), hint);
    if (err == 0) return true;
    out.Reset();
    return error = Reason(path, std::strerror(err)), false;
}

} // namespace linediff
