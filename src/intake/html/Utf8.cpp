#include "intake/html/Utf8.h"

namespace html {
namespace {

// Calls sink(c) for every character, U+FFFD for every invalid subsequence; returns whether
// the bytes were valid.
template <class Sink> bool DecodeUtf8With(std::string_view bytes, Sink sink) {
    bool valid = true;
    char32_t code = 0;
    int needed = 0;
    int seen = 0;
    unsigned lower = 0x80;
    unsigned upper = 0xBF;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const auto b = static_cast<unsigned char>(bytes[i]);
        if (needed == 0) {
            if (b <= 0x7F) {
                sink(b);
            } else if (b >= 0xC2 && b <= 0xDF) {
                needed = 1;
                code = b & 0x1F;
            } else if (b >= 0xE0 && b <= 0xEF) {
                lower = b == 0xE0 ? 0xA0 : 0x80;
                upper = b == 0xED ? 0x9F : 0xBF;
                needed = 2;
                code = b & 0xF;
            } else if (b >= 0xF0 && b <= 0xF4) {
                lower = b == 0xF0 ? 0x90 : 0x80;
                upper = b == 0xF4 ? 0x8F : 0xBF;
                needed = 3;
                code = b & 0x7;
            } else {
                valid = false;
                sink(U'\uFFFD');
            }
            continue;
        }
        if (b < lower || b > upper) {
            // The sequence ends before this byte, which starts afresh.
            needed = seen = 0;
            lower = 0x80;
            upper = 0xBF;
            valid = false;
            sink(U'\uFFFD');
            --i;
            continue;
        }
        lower = 0x80;
        upper = 0xBF;
        code = (code << 6) | (b & 0x3F);
        if (++seen == needed) {
            sink(code);
            needed = seen = 0;
        }
    }
    if (needed != 0) {
        valid = false;
        sink(U'\uFFFD');
    }
    return valid;
}

} // namespace

std::u32string DecodeUtf8(std::string_view bytes) {
    std::u32string out;
    out.reserve(bytes.size());
    DecodeUtf8With(bytes, [&out](char32_t c) { out.push_back(c); });
    return out;
}

bool IsValidUtf8(std::string_view bytes) {
    return DecodeUtf8With(bytes, [](char32_t) {});
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

} // namespace html
