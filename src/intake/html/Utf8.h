#pragma once

#include <string>
#include <string_view>

namespace html {

// UTF-8 as the Encoding Standard decodes it: each maximal invalid subsequence becomes one
// U+FFFD, so any byte string decodes and the same bytes always give the same characters.
std::u32string DecodeUtf8(std::string_view bytes);
bool IsValidUtf8(std::string_view bytes);

// Surrogates and values above U+10FFFF (which a tokenizer may pass through) become U+FFFD.
std::string EncodeUtf8(std::u32string_view text);
void AppendUtf8(std::string& out, char32_t c);

} // namespace html
