#pragma once

namespace html {

inline bool IsAsciiUpper(char32_t c) {
    return c >= 'A' && c <= 'Z';
}
inline bool IsAsciiLower(char32_t c) {
    return c >= 'a' && c <= 'z';
}
inline bool IsAsciiAlpha(char32_t c) {
    return IsAsciiUpper(c) || IsAsciiLower(c);
}
inline bool IsAsciiDigit(char32_t c) {
    return c >= '0' && c <= '9';
}
inline bool IsAsciiAlnum(char32_t c) {
    return IsAsciiAlpha(c) || IsAsciiDigit(c);
}
inline bool IsAsciiHexDigit(char32_t c) {
    return IsAsciiDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}
inline char32_t ToAsciiLower(char32_t c) {
    return IsAsciiUpper(c) ? c + ('a' - 'A') : c;
}

// The tokenizer never sees CR (the input stream folds it), so its whitespace is these four.
inline bool IsTokenizerSpace(char32_t c) {
    return c == '\t' || c == '\n' || c == '\f' || c == ' ';
}

} // namespace html
