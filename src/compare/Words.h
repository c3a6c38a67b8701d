#pragma once
// Word splitting and word values for the word-level comparison and the detail pane. Both must
// split alike, since the marks are counted by word.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::strutil {

// The fixed table a line is split into holds indices 0 to 1000.
constexpr std::size_t kWordTableSize = 1001;

using WordTable = std::vector<std::u32string>;

// Fills words with the pieces of text between occurrences of delimiter. Empty pieces (from a
// leading, trailing or repeated delimiter) are not words. Returns the number of words, or -1
// when the delimiter is empty (LastErrorCode and ErrorText then say why). Throws RuntimeError 9
// (subscript out of range) when the text has more words than the table holds.
long ParseWords(std::u32string_view text, std::u32string_view delimiter, WordTable& words);

// Equal words give equal values; different words almost always give different values.
std::int32_t WordValue(std::u32string_view word);

// The error of the last failed ParseWords, 0 when none failed.
long LastErrorCode();
std::string ErrorText(long number);

} // namespace orvane::strutil
