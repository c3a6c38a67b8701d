#include "compare/lcs/CodePoints.h"

#include "frame/FileBytes.h"

#include <array>
#include <cwctype>
#include <locale.h>

namespace orvane::lcs {
namespace {

// 0x80..0x9F of Windows-1252; the five unassigned bytes map to the C1 control of equal value.
constexpr std::array<char32_t, 32> kWindows1252High = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t FromWindows1252(unsigned char byte) {
    return byte >= 0x80 && byte <= 0x9F ? kWindows1252High[byte - 0x80] : char32_t{byte};
}

// Length of the well-formed UTF-8 sequence at s[pos], or 0 when it is malformed (overlong
// forms, surrogates and values past U+10FFFF included).
std::size_t SequenceLength(std::string_view s, std::size_t pos, char32_t& value) {
    const auto b0 = static_cast<unsigned char>(s[pos]);
    if (b0 < 0x80) {
        value = b0;
        return 1;
    }
    std::size_t n = b0 >= 0xF0 ? 4 : b0 >= 0xE0 ? 3 : b0 >= 0xC0 ? 2 : 0;
    if (n == 0 || b0 > 0xF4 || pos + n > s.size()) return 0;
    value = b0 & (0x7F >> n);
    for (std::size_t k = 1; k < n; ++k) {
        const auto b = static_cast<unsigned char>(s[pos + k]);
        if ((b & 0xC0) != 0x80) return 0;
        value = (value << 6) | (b & 0x3F);
    }
    constexpr std::array<char32_t, 5> kMinimum = {0, 0, 0x80, 0x800, 0x10000};
    if (value < kMinimum[n] || value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF)) return 0;
    return n;
}

locale_t Utf8Locale() {
    static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", locale_t{});
    return locale;
}

char32_t Upper(char32_t c) {
    if (c < 0x80) return c >= 'a' && c <= 'z' ? c - 0x20 : c;
    const locale_t locale = Utf8Locale();
    return locale ? static_cast<char32_t>(towupper_l(static_cast<wint_t>(c), locale)) : c;
}

} // namespace

// One definition of well-formed UTF-8 for the whole program: the grids decide by it too.
bool IsValidUtf8(std::string_view bytes) {
    return orvane::IsValidUtf8(bytes);
}

TextEncoding GuessEncoding(std::string_view bytes) {
    return IsValidUtf8(bytes) ? TextEncoding::Utf8 : TextEncoding::Windows1252;
}

std::u32string DecodeText(std::string_view bytes, TextEncoding encoding) {
    std::u32string text;
    text.reserve(bytes.size());
    for (std::size_t pos = 0; pos < bytes.size();) {
        char32_t value;
        const std::size_t n =
            encoding == TextEncoding::Utf8 ? SequenceLength(bytes, pos, value) : 0;
        text.push_back(n > 0 ? value : FromWindows1252(static_cast<unsigned char>(bytes[pos])));
        pos += n > 0 ? n : 1;
    }
    return text;
}

std::string EncodeUtf8(std::u32string_view text) {
    std::string out;
    out.reserve(text.size());
    for (char32_t c : text) {
        if (c >= 0xD800 && (c <= 0xDFFF || c > 0x10FFFF)) c = 0xFFFD;
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
    return out;
}

std::u32string UpperCased(std::u32string_view text) {
    std::u32string out(text);
    for (char32_t& c : out)
        c = Upper(c);
    return out;
}

} // namespace orvane::lcs
