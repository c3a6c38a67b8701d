#include "report/Inputs.h"

#include "BinaryFiles.h"
#include "intake/download/Download.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <unistd.h>

namespace orvane::report {

namespace {

bool ReadFile(const std::string& path, std::string& bytes) {
    std::error_code ec;
    if (!std::filesystem::is_regular_file(path, ec)) return false;
    std::ifstream in(path, std::ios::binary);
    if (!in) return false;
    std::ostringstream s;
    s << in.rdbuf();
    if (in.bad()) return false;
    bytes = std::move(s).str();
    return true;
}

std::string Lower(std::string s) {
    for (char& c : s)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return s;
}

} // namespace

bool IsWebAddress(const std::string& source) {
    const std::string l = Lower(source.substr(0, 8));
    return l.starts_with("http://") || l.starts_with("https://") || l.starts_with("file:");
}

LoadedInput LoadInput(const std::string& source) {
    LoadedInput in;
    if (source.empty()) return in;
    if (IsWebAddress(source)) {
        char name[] = "/tmp/orvane-reportXXXXXX";
        const int fd = mkstemp(name);
        if (fd < 0) return in;
        close(fd);
        const DownloadResult r = FetchToFile(source, name, DownloadLimits{});
        in.ok = r.Ok() && ReadFile(name, in.bytes);
        std::remove(name);
        in.base.url = source;
        in.identity = source;
        return in;
    }
    in.ok = ReadFile(source, in.bytes);
    std::error_code ec;
    const auto canonical =
        std::filesystem::weakly_canonical(std::filesystem::absolute(source, ec), ec);
    in.identity = canonical.string();
    in.base.folder = canonical.parent_path().string();
    return in;
}

bool LooksLikeHtml(const std::string& bytes) {
    if (bytes.empty()) return true;
    if (linediff::LooksBinary(bytes)) return false;
    for (std::size_t i = bytes.find('<'); i != std::string::npos && i + 1 < bytes.size();
         i = bytes.find('<', i + 1)) {
        const char c = bytes[i + 1];
        if (std::isalpha(static_cast<unsigned char>(c)) || c == '!' || c == '/') return true;
    }
    return false;
}

} // namespace orvane::report
