#include "frame/KWCommon.h"

#include "frame/EngineLibraries.h"
#include "frame/ErrorReporter.h"
#include "frame/kwcommon/kwcommon.h"

#include <cctype>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

namespace orvane {
namespace {

template <typename Fn> Fn* Entry(const char* name) {
    return reinterpret_cast<Fn*>(EngineSymbol(Engine::KWCommon, name));
}

// Calls a string-returning kwcommon function, growing the buffer when the first one was short.
template <typename Call> std::string CallForString(Call&& call) {
    std::string buf(256, '\0');
    int n = call(buf.data(), static_cast<int>(buf.size()));
    if (n >= static_cast<int>(buf.size())) {
        buf.assign(static_cast<std::size_t>(n) + 1, '\0');
        n = call(buf.data(), static_cast<int>(buf.size()));
    }
    buf.resize(static_cast<std::size_t>(n));
    return buf;
}

bool IsSeparator(char c) {
    return c == '/' || c == '\\';
}

} // namespace

namespace kw {

std::string ReplaceExtension(const std::string& Path, const std::string& Extension) {
    auto fn = Entry<decltype(::ReplaceExtension)>("ReplaceExtension");
    return CallForString([&](char* o, int n) { return fn(Path.c_str(), Extension.c_str(), o, n); });
}

std::string RemainingString(const std::string& Whole, const std::string& Leading) {
    auto fn = Entry<decltype(::RemainingString)>("RemainingString");
    return CallForString([&](char* o, int n) { return fn(Whole.c_str(), Leading.c_str(), o, n); });
}

std::string ReplaceString(const std::string& Text, const std::string& Search,
                          const std::string& Replacement) {
    auto fn = Entry<decltype(::ReplaceString)>("ReplaceString");
    return CallForString([&](char* o, int n) {
        return fn(Text.c_str(), Search.c_str(), Replacement.c_str(), o, n);
    });
}

std::string NormalizePath(const std::string& Path) {
    auto fn = Entry<decltype(::NormalizePath)>("NormalizePath");
    return CallForString([&](char* o, int n) { return fn(Path.c_str(), o, n); });
}

std::string GetLastItemInPath(const std::string& Path) {
    auto fn = Entry<decltype(::GetLastItemInPath)>("GetLastItemInPath");
    return CallForString([&](char* o, int n) { return fn(Path.c_str(), o, n); });
}

int GetNextSlashPos(const std::string& Path, int Start) {
    auto fn = Entry<decltype(::GetNextSlashPos)>("GetNextSlashPos");
    return fn(Path.c_str(), static_cast<short>(Start));
}

bool PBFileExists(const std::string& Path) {
    return Entry<decltype(::PBFileExists)>("PBFileExists")(Path.c_str()) & 0xFFFF;
}

bool APIFileExists(const std::string& Path) {
    return Entry<decltype(::APIFileExists)>("APIFileExists")(Path.c_str()) & 0xFFFF;
}

} // namespace kw

std::string Trim(const std::string& Text) {
    const std::size_t first = Text.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    return Text.substr(first, Text.find_last_not_of(' ') - first + 1);
}

bool FileExists(const std::string& Path) {
    try {
        const std::string path = Trim(Path);
        if (path.empty() || IsSeparator(path.back())) return false;
        if (path.find('\0') != std::string::npos) return false; // a bad file name, in silence
        if (kw::PBFileExists(path) || kw::APIFileExists(path)) return true;
        struct stat st;
        return ::stat(path.c_str(), &st) == 0 && S_ISREG(st.st_mode);
    } catch (...) {
        ReportUnexpectedError("modKWCommon.FileExists");
        return false;
    }
}

bool StringsAreEqual(const std::string& First, const std::string& Second) {
    return First == Second;
}

bool StringsAreEqualCompare(const std::string& First, const std::string& Second, int CompareMode) {
    if (First.size() != Second.size()) return false;
    if (CompareMode == 0) return First == Second;
    for (std::size_t i = 0; i < First.size(); ++i) {
        if (std::tolower(static_cast<unsigned char>(First[i])) !=
            std::tolower(static_cast<unsigned char>(Second[i])))
            return false;
    }
    return true;
}

std::string GetFileNameFromPath(const std::string& Path) {
    const std::size_t sep = Path.find_last_of("/\\");
    return sep == std::string::npos ? Path : Path.substr(sep + 1);
}

std::string GetFileExtension(const std::string& Path) {
    const std::size_t dot = Path.find_last_of('.');
    if (dot == std::string::npos) return {};
    if (Path.find_first_of("/\\", dot) != std::string::npos) return {};
    return Path.substr(dot + 1);
}

std::string GetSystemTempFolder() {
    const char* dir = std::getenv("TMPDIR");
    std::string folder = dir && *dir ? dir : "/tmp";
    return AddTrailingBackslash(folder);
}

std::string GetTempFileSpec(const std::string& Prefix, std::string& Extension,
                            const std::string& Folder) {
    try {
        const std::string folder =
            AddTrailingBackslash(Folder.empty() ? GetSystemTempFolder() : Folder);
        static std::mt19937 rng{std::random_device{}()};
        std::string created;
        for (int attempt = 0; attempt < 100 && created.empty(); ++attempt) {
            char hex[9];
            std::snprintf(hex, sizeof hex, "%04X", static_cast<unsigned>(rng() & 0xFFFF));
            const std::string name = folder + Prefix.substr(0, 3) + hex + ".tmp";
            const int fd = ::open(name.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0600);
            if (fd >= 0) {
                ::close(fd);
                created = name;
            } else if (errno != EEXIST) {
                throw RuntimeError(err::PathFileAccess, ErrorDescription(err::PathFileAccess),
                                   errno);
            }
        }
        if (created.empty())
            throw RuntimeError(err::PathFileAccess, ErrorDescription(err::PathFileAccess), EEXIST);
        if (Extension.empty()) Extension = "tmp";
        // With another extension the reserved empty ".tmp" file stays: it keeps the base name
        // taken, so no later call is given this same name while the caller still uses it.
        return kw::ReplaceExtension(created, Extension);
    } catch (...) {
        ReportUnexpectedError("modKWCommon.GetTempFileSpec");
        return {};
    }
}

std::string StripNulls(const std::string& Text) {
    return Text.substr(0, Text.find('\0'));
}

std::string EncloseInQuotes(const std::string& Text) {
    return '"' + Text + '"';
}

std::string AddTrailingBackslash(const std::string& Path) {
    if (Path.empty() || IsSeparator(Path.back())) return Path;
    return Path + '/';
}

bool IsWebAddress(const std::string& Text) {
    const std::size_t colon = Text.find(':');
    if (colon == std::string::npos || colon < 2) return false;
    if (!std::isalpha(static_cast<unsigned char>(Text[0]))) return false;
    for (std::size_t i = 1; i < colon; ++i) {
        const unsigned char c = static_cast<unsigned char>(Text[i]);
        if (!std::isalnum(c) && c != '+' && c != '-' && c != '.') return false;
    }
    return true;
}

} // namespace orvane
