#pragma once
// What differs inside a changed line: one mark per character or per word, true for an element
// of the longest common subsequence of the two lines, false for one that differs.
#include "compare/lcs/Marks.h"

#include <cstdint>
#include <functional>
#include <string_view>

namespace orvane::modDiff {

using lcs::Marks;

// Characters are code points (see lcs/CodePoints.h for decoding a line's bytes). Returns the
// length of the common subsequence of the middle part that the common head and tail leave, 0
// where the ends alone settle it. Failures are reported, and the marks then stay as far as they
// got. yield, when given, is called between blocks of columns of a long comparison.
std::int32_t StringDiffsCharLevel(std::u32string_view Text1, std::u32string_view Text2,
                                  bool IgnoreCase, Marks& Marks1, Marks& Marks2,
                                  const std::function<void()>& yield = {});

// Words as strutil::ParseWords splits at one blank, at most 1001 per line; a line with more is
// reported with both lines in the detail file. A side without words gets no marks. Returns the
// length of the common subsequence in words.
std::int32_t StringDiffsWordLevel(std::u32string_view Text1, std::u32string_view Text2,
                                  bool IgnoreCase, Marks& Marks1, Marks& Marks2);

} // namespace orvane::modDiff
