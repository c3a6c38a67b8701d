#pragma once
// The lines of one file as the differ sees them: where each begins and its hash under the
// switches. Lines are cut exactly as the grids cut them (LineSplitter.h).
#include "BigBuffer.h"
#include "Options.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace linediff {

struct LineTable {
    std::string_view text;
    // Line i is text[starts[i], starts[i + 1] - 1); the last entry is one past the final LF, or
    // two past the last byte when that line has no LF, so every line drops one ending byte.
    BigVector<std::size_t> starts;
    BigVector<std::uint64_t> hashes;
    bool lastIncomplete = false;

    std::size_t Count() const { return starts.empty() ? 0 : starts.size() - 1; }
    std::string_view Line(std::size_t i) const {
        return text.substr(starts[i], starts[i + 1] - 1 - starts[i]);
    }
    bool Incomplete(std::size_t i) const { return lastIncomplete && i + 1 == Count(); }
};

LineTable BuildLineTable(std::string_view text, const Options& options);

// Whether the missing final LF makes a line differ from the same text with one. White space
// includes the line end when it is ignored, so then it does not.
inline bool EndMatters(const Options& options) {
    return !options.ignoreWhiteSpace;
}

} // namespace linediff
