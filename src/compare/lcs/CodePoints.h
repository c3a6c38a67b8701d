#pragma once
// Lines as characters: the bytes of a line become code points, so that a character of several
// bytes counts as one element of the comparison.
#include <string>
#include <string_view>

namespace orvane::lcs {

enum class TextEncoding { Utf8, Windows1252 };

// UTF-8 when the bytes are well-formed UTF-8, otherwise Windows-1252.
TextEncoding GuessEncoding(std::string_view bytes);
bool IsValidUtf8(std::string_view bytes);

// Well-formed UTF-8 decodes as such; any malformed sequence decodes byte by byte as
// Windows-1252, so every input gives one character per byte at worst.
std::u32string DecodeText(std::string_view bytes, TextEncoding encoding);
inline std::u32string DecodeText(std::string_view bytes) {
    return DecodeText(bytes, GuessEncoding(bytes));
}

std::string EncodeUtf8(std::u32string_view text);

// Upper case per code point with the simple Unicode mappings (ASCII only where the system has
// no UTF-8 character tables).
std::u32string UpperCased(std::u32string_view text);

} // namespace orvane::lcs
