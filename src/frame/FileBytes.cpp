#include "frame/FileBytes.h"

#include "frame/RuntimeError.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orvane {
namespace {

[[noreturn]] void Fail(int error) {
    const long number = error == ENOENT ? err::FileNotFound : err::PathFileAccess;
    throw RuntimeError(number, ErrorDescription(number), error);
}

} // namespace

std::string ReadFileBytes(const std::string& path) {
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) Fail(errno);
    struct stat st;
    if (::fstat(fd, &st) != 0 || S_ISDIR(st.st_mode)) {
        const int error = S_ISDIR(st.st_mode) ? EISDIR : errno;
        ::close(fd);
        Fail(error);
    }
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(st.st_size));
    char chunk[1 << 16];
    for (;;) {
        const ssize_t n = ::read(fd, chunk, sizeof chunk);
        if (n == 0) break;
        if (n < 0) {
            if (errno == EINTR) continue;
            const int error = errno;
            ::close(fd);
            Fail(error);
        }
        bytes.append(chunk, static_cast<std::size_t>(n));
    }
    ::close(fd);
    return bytes;
}

} // namespace orvane
