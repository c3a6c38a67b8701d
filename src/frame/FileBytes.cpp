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

bool IsValidUtf8(std::string_view s) {
    const auto* p = reinterpret_cast<const unsigned char*>(s.data());
    const auto* end = p + s.size();
    while (p < end) {
        if (*p < 0x80) {
            ++p;
            continue;
        }
        int extra;
        unsigned long cp;
        if ((*p & 0xE0) == 0xC0)
            extra = 1, cp = *p & 0x1F;
        else if ((*p & 0xF0) == 0xE0)
            extra = 2, cp = *p & 0x0F;
        else if ((*p & 0xF8) == 0xF0)
            extra = 3, cp = *p & 0x07;
        else
            return false;
        if (end - p <= extra) return false;
        for (int i = 1; i <= extra; ++i) {
            if ((p[i] & 0xC0) != 0x80) return false;
            cp = (cp << 6) | (p[i] & 0x3F);
        }
        static constexpr unsigned long kMin[] = {0, 0x80, 0x800, 0x10000};
        if (cp < kMin[extra] || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) return false;
        p += extra + 1;
    }
    return true;
}

} // namespace orvane
