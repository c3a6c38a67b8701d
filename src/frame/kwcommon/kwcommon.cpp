#include "frame/kwcommon/kwcommon.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

#define KW_EXPORT __attribute__((visibility("default")))

namespace {

int Emit(const std::string& s, char* out, int outSize) {
    if (out && outSize > 0) {
        const std::size_t n = std::min(s.size(), static_cast<std::size_t>(outSize - 1));
        std::memcpy(out, s.data(), n);
        out[n] = '\0';
    }
    return static_cast<int>(s.size());
}

bool IsSeparator(char c) {
    return c == '/' || c == '\\';
}

std::size_t LastSeparator(std::string_view p) {
    const std::size_t slash = p.find_last_of("/\\");
    return slash;
}

} // namespace

extern "C" {

KW_EXPORT int PBFileExists(const char* path) {
    struct stat st;
    // Only a regular file is an input: a device or FIFO would block or read without end.
    return path && ::stat(path, &st) == 0 && S_ISREG(st.st_mode) ? 1 : 0;
}

// A second way of asking: the name can be reached (access), and is a regular file.
KW_EXPORT int APIFileExists(const char* path) {
    if (!path || ::access(path, F_OK) != 0) return 0;
    struct stat st;
    return ::stat(path, &st) == 0 && S_ISREG(st.st_mode) ? 1 : 0;
}

KW_EXPORT int ReplaceExtension(const char* path, const char* extension, char* out, int outSize) {
    std::string p = path ? path : "";
    const std::size_t dot = p.find_last_of('.');
    const std::size_t sep = LastSeparator(p);
    if (dot != std::string::npos && (sep == std::string::npos || dot > sep)) p.erase(dot);
    p += '.';
    p += extension ? extension : "";
    return Emit(p, out, outSize);
}

KW_EXPORT int RemainingString(const char* whole, const char* leading, char* out, int outSize) {
    const std::string_view w = whole ? whole : "";
    const std::string_view l = leading ? leading : "";
    const std::size_t at = w.find(l);
    if (at == std::string_view::npos) return Emit("", out, outSize);
    return Emit(std::string(w.substr(at + l.size())), out, outSize);
}

KW_EXPORT int ReplaceString(const char* text, const char* search, const char* replacement,
                            char* out, int outSize) {
    std::string t = text ? text : "";
    const std::string_view s = search ? search : "";
    const std::string_view r = replacement ? replacement : "";
    if (s.empty()) return Emit(t, out, outSize);
    std::string result;
    result.reserve(t.size());
    std::size_t from = 0;
    for (std::size_t at; (at = t.find(s, from)) != std::string::npos; from = at + s.size()) {
        result.append(t, from, at - from);
        result.append(r);
    }
    result.append(t, from, std::string::npos);
    return Emit(result, out, outSize);
}

KW_EXPORT int NormalizePath(const char* path, char* out, int outSize) {
    std::string p = path ? path : "";
    const std::size_t sep = LastSeparator(p);
    if (sep == std::string::npos) return Emit("", out, outSize);
    p.erase(sep + 1);
    while (p.size() > 1 && IsSeparator(p[p.size() - 2]))
        p.erase(p.size() - 1);
    return Emit(p, out, outSize);
}

KW_EXPORT int GetLastItemInPath(const char* path, char* out, int outSize) {
    const std::string_view p = path ? path : "";
    const std::size_t sep = LastSeparator(p);
    return Emit(std::string(sep == std::string_view::npos ? p : p.substr(sep + 1)), out, outSize);
}

KW_EXPORT int StripNull(const char* text, int textLength, char* out, int outSize) {
    const std::string_view t(text ? text : "", text ? static_cast<std::size_t>(textLength) : 0);
    return Emit(std::string(t.substr(0, t.find('\0'))), out, outSize);
}

KW_EXPORT short GetNextSlashPos(const char* path, short start) {
    const std::string_view p = path ? path : "";
    const std::size_t from = start > 1 ? static_cast<std::size_t>(start - 1) : 0;
    const std::size_t at = p.find_first_of("/\\", from);
    return at == std::string_view::npos || at > 32766 ? 0 : static_cast<short>(at + 1);
}

} // extern "C"
