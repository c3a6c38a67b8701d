#pragma once
// Writes the changes in the classic normal format: per changed region a hunk line ("5a6,7",
// "3,4d2", "8c8,9"), the Original lines as "< " + line, "---", the Revised lines as "> " + line,
// and "\ No newline at end of file" after a last line that has no LF.
#include "LineTable.h"
#include "OutputLines.h"

#include <cstdint>

namespace linediff {

// Returns the number of hunks.
std::size_t WriteNormalFormat(const LineTable& a, const LineTable& b,
                              const BigVector<std::uint8_t>& changedA,
                              const BigVector<std::uint8_t>& changedB, OutputLines& out);

} // namespace linediff
