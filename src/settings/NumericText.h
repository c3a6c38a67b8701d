#pragma once
// Numbers typed into the settings file by hand, read the way the program always read them.
// All three are independent of the C locale (a Qt program runs under the user's locale).
#include <cstdint>
#include <string>

namespace orvane {

// True for a decimal number with optional surrounding blanks, sign, decimal point and exponent
// ("E" or "D"): " -1.5e3 ", "+.5", "7." are numbers; "", "1 2", "0x10", "1e" are not.
bool IsNumeric(const std::string& text);

// A numeric text as a 32-bit integer, rounded to the nearest, halves to the even neighbour.
// Throws RuntimeError Type mismatch (13) for a text that is not numeric and Overflow (6) for a
// value outside the 32-bit range.
std::int32_t ToLongRounded(const std::string& text);

// The leading number of a text: blanks (space, tab, LF) are skipped anywhere and the first
// character that cannot continue the number ends it; "9.5pt" gives 9.5 and "pt" gives 0.
// Throws RuntimeError Overflow (6) for a number beyond the range of a double.
double LeadingNumber(const std::string& text);

} // namespace orvane
