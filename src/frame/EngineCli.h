#pragma once
// What the engines' command-line programs share: --help, and the refusal of anything but a
// regular file as an input (a FIFO blocks for ever, /dev/zero reads without end). Header-only so
// that an engine program needs no library beyond its engine.
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>
#include <sys/stat.h>

namespace orvane::cli {

inline constexpr int kTrouble = 2;

inline bool WantsHelp(int argc, char** argv) {
    for (int i = 1; i < argc; ++i)
        if (std::strcmp(argv[i], "--help") == 0 || std::strcmp(argv[i], "-h") == 0) return true;
    return false;
}

inline int PrintUsage(const char* usage) {
    std::fputs(usage, stdout);
    return 0;
}

// False, with the reason on standard error, unless path names a regular file (links followed).
inline bool IsInputFile(const char* program, const std::string& path) {
    struct stat st;
    const char* why = nullptr;
    if (::stat(path.c_str(), &st) != 0)
        why = std::strerror(errno);
    else if (S_ISDIR(st.st_mode))
        why = "is a folder, not a file";
    else if (!S_ISREG(st.st_mode))
        why = "is not a regular file";
    if (!why) return true;
    std::fprintf(stderr, "%s: %s: %s\n", program, path.c_str(), why);
    return false;
}

} // namespace orvane::cli
