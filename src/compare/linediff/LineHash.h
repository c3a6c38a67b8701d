#pragma once
// Line hashing and equality under the switches. A line's hash is taken over its normalized bytes
// (letters folded with IgnoreCase, white space left out with IgnoreWhiteSpace), so lines that are
// equal under the switches always hash alike; equality is then confirmed on the bytes.
#include "Options.h"

#include <cstdint>
#include <string_view>

namespace linediff {

std::uint64_t HashLine(std::string_view line, const Options& options);
bool LinesEqual(std::string_view a, std::string_view b, const Options& options);

// The white space that IgnoreWhiteSpace leaves out (LF never occurs inside a line).
inline bool IsBlank(unsigned char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\v' || c == '\f';
}

} // namespace linediff
