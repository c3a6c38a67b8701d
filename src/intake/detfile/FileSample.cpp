#include "intake/detfile/FileSample.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orvane::detfile {

FileSample::~FileSample() {
    if (fd_ >= 0) ::close(fd_);
}

bool FileSample::Open(const std::string& path) {
    fd_ = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd_ < 0) return false;
    struct stat st;
    if (::fstat(fd_, &st) != 0 || !S_ISREG(st.st_mode)) return false;
    head_.resize(kHeadBytes);
    std::size_t got = 0;
    while (got < head_.size()) {
        const ssize_t n =
            ::pread(fd_, head_.data() + got, head_.size() - got, static_cast<off_t>(got));
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) return false;
        if (n == 0) break;
        got += static_cast<std::size_t>(n);
    }
    head_.resize(got);
    bytesRead_ += got;
    // Files of the proc kind report no size but have content.
    size_ = std::max<std::uint64_t>(static_cast<std::uint64_t>(st.st_size), got);
    return true;
}

std::string FileSample::ReadAt(std::uint64_t offset, std::size_t count) const {
    std::string out;
    if (fd_ < 0 || offset >= size_) return out;
    out.resize(static_cast<std::size_t>(std::min<std::uint64_t>(count, size_ - offset)));
    std::size_t got = 0;
    while (got < out.size()) {
        const ssize_t n =
            ::pread(fd_, out.data() + got, out.size() - got, static_cast<off_t>(offset + got));
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) break;
        got += static_cast<std::size_t>(n);
    }
    out.resize(got);
    bytesRead_ += got;
    return out;
}

std::string FileSample::Slice(std::uint64_t offset, std::size_t count) const {
    if (offset + count <= head_.size())
        return head_.substr(static_cast<std::size_t>(offset), count);
    return ReadAt(offset, count);
}

} // namespace orvane::detfile
