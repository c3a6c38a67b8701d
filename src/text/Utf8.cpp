#include "text/Utf8.h"

#include <array>

namespace orvane::text {
namespace {

constexpr std::array<char32_t, 32> kWindows1252High = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// The bounds of the second byte after a lead byte; every later byte is 80..BF. These bounds are
// what rule out overlong forms, surrogates and values past U+10FFFF.
struct Lead {
    int needed = 0; // continuation bytes; 0 for a byte that cannot start a sequence
    unsigned lower = 0x80, upper = 0xBF;
    char32_t bits = 0;
};

Lead LeadOf(unsigned char b) {
    if (b >= 0xC2 && b <= 0xDF) return {1, 0x80, 0xBF, char32_t(b & 0x1F)};
    if (b >= 0xE0 && b <= 0xEF)
        return {2, b == 0xE0 ? 0xA0u : 0x80u, b == 0xED ? 0x9Fu : 0xBFu, char32_t(b & 0x0F)};
    if (b >= 0xF0 && b <= 0xF4)
        return {3, b == 0xF0 ? 0x90u : 0x80u, b == 0xF4 ? 0x8Fu : 0xBFu, char32_t(b & 0x07)};
    return {};
}

// Decodes the sequence at pos. Returns its length when well formed; otherwise 0, with `consumed`
// the length of the maximal invalid subsequence (at least 1).
std::size_t Sequence(std::string_view s, std::size_t pos, char32_t& value, std::size_t& consumed) {
    const auto b0 = static_cast<unsigned char>(s[pos]);
    consumed = 1;
    if (b0 < 0x80) {
        value = b0;
        return 1;
    }
    const Lead lead = LeadOf(b0);
    if (lead.needed == 0) return 0;
    value = lead.bits;
    for (int k = 1; k <= lead.needed; ++k) {
        if (pos + k >= s.size()) return 0;
        const auto b = static_cast<unsigned char>(s[pos + k]);
        const unsigned lower = k == 1 ? lead.lower : 0x80u, upper = k == 1 ? lead.upper : 0xBFu;
        if (b < lower || b > upper) return 0;
        value = (value << 6) | (b & 0x3F);
        consumed = k + 1;
    }
    return consumed;
}

} // namespace

std::size_t Utf8SequenceAt(std::string_view bytes, std::size_t pos, char32_t& value) {
    std::size_t consumed = 0;
    return Sequence(bytes, pos, value, consumed);
}

bool IsValidUtf8(std::string_view bytes) {
    char32_t value = 0;
    for (std::size_t pos = 0; pos < bytes.size();) {
        if (static_cast<unsigned char>(bytes[pos]) < 0x80) {
            ++pos;
            continue;
        }
        const std::size_t n = Utf8SequenceAt(bytes, pos, value);
        if (n == 0) return false;
        pos += n;
    }
    return true;
}

std::u32string DecodeUtf8(std::string_view bytes) {
    std::u32string out;
    out.reserve(bytes.size());
    for (std::size_t pos = 0; pos < bytes.size();) {
        char32_t value = 0;
        std::size_t consumed = 0;
        out.push_back(Sequence(bytes, pos, value, consumed) ? value : U'\uFFFD');
        pos += consumed;
    }
    return out;
}

void AppendUtf8(std::string& out, char32_t c) {
    if ((c >= 0xD800 && c <= 0xDFFF) || c > 0x10FFFF) c = 0xFFFD;
    if (c < 0x80) {
        out.push_back(static_cast<char>(c));
    } else if (c < 0x800) {
        out.push_back(static_cast<char>(0xC0 | (c >> 6)));
        out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    } else if (c < 0x10000) {
        out.push_back(static_cast<char>(0xE0 | (c >> 12)));
        out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    } else {
        out.push_back(static_cast<char>(0xF0 | (c >> 18)));
        out.push_back(static_cast<char>(0x80 | ((c >> 12) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    }
}

std::string EncodeUtf8(std::u32string_view text) {
    std::string out;
    out.reserve(text.size());
    for (char32_t c : text)
        AppendUtf8(out, c);
    return out;
}

char32_t FromWindows1252(unsigned char byte) {
    return byte >= 0x80 && byte <= 0x9F ? kWindows1252High[byte - 0x80] : char32_t{byte};
}

} // namespace orvane::text
