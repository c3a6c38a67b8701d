#include "compare/lcs/CodePoints.h"

#include "text/Utf8.h"

#include <array>
#include <cwctype>
#include <locale.h>

namespace orvane::lcs {
namespace {

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
    return text::IsValidUtf8(bytes);
}

TextEncoding GuessEncoding(std::string_view bytes) {
    return IsValidUtf8(bytes) ? TextEncoding::Utf8 : TextEncoding::Windows1252;
}

std::u32string DecodeText(std::string_view bytes, TextEncoding encoding) {
    std::u32string decoded;
    decoded.reserve(bytes.size());
    for (std::size_t pos = 0; pos < bytes.size();) {
        char32_t value = 0;
        const std::size_t n =
            encoding == TextEncoding::Utf8 ? text::Utf8SequenceAt(bytes, pos, value) : 0;
        decoded.push_back(n > 0 ? value
                                : text::FromWindows1252(static_cast<unsigned char>(bytes[pos])));
        pos += n > 0 ? n : 1;
    }
    return decoded;
}

std::string EncodeUtf8(std::u32string_view chars) {
    return text::EncodeUtf8(chars);
}

std::u32string UpperCased(std::u32string_view text) {
    std::u32string out(text);
    for (char32_t& c : out)
        c = Upper(c);
    return out;
}

} // namespace orvane::lcs
