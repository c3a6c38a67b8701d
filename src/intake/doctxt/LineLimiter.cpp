#include "intake/doctxt/LineLimiter.h"

#include <fstream>
#include <iterator>
#include <vector>

namespace doctxt {
namespace {

constexpr std::string_view kUtf8Bom = "\xEF\xBB\xBF";

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

bool IsContinuation(unsigned char c) {
    return (c & 0xC0) == 0x80;
}

// Strict enough to tell a UTF-8 file from a single-byte code page: CP1252 or CP850 letters
// above 0x7F almost never form valid sequences.
bool IsValidUtf8(std::string_view s) {
    for (std::size_t i = 0; i < s.size();) {
        const auto c = static_cast<unsigned char>(s[i]);
        const int length = c < 0x80         ? 1
                           : (c >> 5) == 6  ? 2
                           : (c >> 4) == 14 ? 3
                           : (c >> 3) == 30 ? 4
                                            : 0;
        if (length == 0 || (length == 2 && c < 0xC2) || i + length > s.size()) return false;
        for (int k = 1; k < length; ++k)
            if (!IsContinuation(static_cast<unsigned char>(s[i + k]))) return false;
        i += length;
    }
    return true;
}

// Byte offsets where each character of `line` starts, plus the end.
std::vector<std::size_t> CharStarts(std::string_view line, bool utf8) {
    std::vector<std::size_t> starts;
    for (std::size_t i = 0; i < line.size(); ++i)
        if (!utf8 || !IsContinuation(static_cast<unsigned char>(line[i]))) starts.push_back(i);
    starts.push_back(line.size());
    return starts;
}

void AppendWrapped(std::string_view line, std::string_view end, std::size_t maxChars, bool utf8,
                   std::string& out) {
    for (;;) {
        const std::vector<std::size_t> starts = CharStarts(line, utf8);
        const std::size_t chars = starts.size() - 1;
        if (chars <= maxChars) break;
        // A blank right after the limit lets the first maxChars characters stand whole.
        std::size_t cut = starts[maxChars];
        std::size_t piece = std::string_view::npos;
        for (std::size_t k = maxChars + 1; k-- > 1;) {
            if (!IsBlank(line[starts[k]])) continue;
            std::size_t e = starts[k];
            while (e > 0 && IsBlank(line[e - 1]))
                --e;
            if (e > 0) {
                piece = e;
                cut = starts[k] + 1;
            }
            break;
        }
        if (piece == std::string_view::npos) piece = cut;
        out.append(line.substr(0, piece)).append(end);
        while (cut < line.size() && IsBlank(line[cut]))
            ++cut;
        line.remove_prefix(cut);
    }
    out.append(line).append(end);
}

} // namespace

std::string LimitLines(std::string_view text, int maxChars) {
    if (maxChars < 1) return std::string(text);
    std::string out;
    out.reserve(text.size() + text.size() / 16);
    if (text.starts_with(kUtf8Bom)) {
        out.append(kUtf8Bom);
        text.remove_prefix(kUtf8Bom.size());
    }
    const bool utf8 = IsValidUtf8(text);
    std::string_view lastEnd = "\r\n";
    while (!text.empty()) {
        const std::size_t lf = text.find('\n');
        std::string_view line = text.substr(0, lf);
        std::string_view end;
        if (lf != std::string_view::npos) {
            const bool crlf = !line.empty() && line.back() == '\r';
            end = text.substr(lf - (crlf ? 1 : 0), crlf ? 2 : 1);
            if (crlf) line.remove_suffix(1);
            lastEnd = end;
        }
        // A last line without a line end gets none, but its pieces need one between them.
        AppendWrapped(line, end.empty() ? lastEnd : end, static_cast<std::size_t>(maxChars), utf8,
                      out);
        if (end.empty()) out.resize(out.size() - lastEnd.size());
        text.remove_prefix(lf == std::string_view::npos ? text.size() : lf + 1);
    }
    return out;
}

bool LimitFile(const std::string& source, int maxChars, const std::string& target) {
    std::ifstream in(source, std::ios::binary);
    if (!in) return false;
    const std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    if (in.bad()) return false;
    std::ofstream out(target, std::ios::binary | std::ios::trunc);
    if (!out) return false;
    out << LimitLines(text, maxChars);
    out.close();
    return static_cast<bool>(out);
}

} // namespace doctxt
