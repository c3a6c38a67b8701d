#include "report/Inputs.h"

#include "BinaryFiles.h"

#include <cctype>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace orvane::report {

bool ReadWholeFile(const std::string& path, std::string& bytes) {
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

bool IsWebAddress(const std::string& source) {
    std::string l = source.substr(0, 8);
    for (char& c : l)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return l.starts_with("http://") || l.starts_with("https://") || l.starts_with("file:");
}

LoadedInput LoadLocalFile(const std::string& path) {
    LoadedInput in;
    if (path.empty()) return in;
    in.ok = ReadWholeFile(path, in.bytes);
    std::error_code ec;
    const auto canonical =
        std::filesystem::weakly_canonical(std::filesystem::absolute(path, ec), ec);
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
