#pragma once
// The program's one text codec: UTF-8 in both directions and the Windows-1252 bytes that a file
// which is not UTF-8 is read as. Qt-free and with no other dependency, so the engines link it too.
#include <string>
#include <string_view>

namespace orvane::text {

// Well-formed UTF-8: no overlong forms, no surrogates, nothing past U+10FFFF.
bool IsValidUtf8(std::string_view bytes);

// Length of the well-formed sequence at bytes[pos] and its value, or 0 when it is malformed.
std::size_t Utf8SequenceAt(std::string_view bytes, std::size_t pos, char32_t& value);

// UTF-8 as the Encoding Standard decodes it: each maximal invalid subsequence becomes one
// U+FFFD, so any byte string decodes and the same bytes always give the same characters.
std::u32string DecodeUtf8(std::string_view bytes);

// Surrogates and values above U+10FFFF become U+FFFD.
void AppendUtf8(std::string& out, char32_t c);
std::string EncodeUtf8(std::u32string_view text);

// A byte as Windows-1252; the five unassigned bytes map to the C1 control of equal value.
char32_t FromWindows1252(unsigned char byte);

} // namespace orvane::text
