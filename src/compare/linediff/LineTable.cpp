#include "LineTable.h"

#include "LineHash.h"
#include "LineSplitter.h"

namespace linediff {
namespace {
// Sets the hash of a final line without LF apart from the same text with one.
constexpr std::uint64_t kIncompleteTag = 0x6a09e667f3bcc909ull;
// HTML sources average some 40 bytes a line; a close guess spares regrowing the arrays.
constexpr std::size_t kGuessBytesPerLine = 32;
} // namespace

LineTable BuildLineTable(std::string_view text, const Options& options) {
    LineTable table;
    table.text = text;
    std::size_t guess = text.size() / kGuessBytesPerLine + 2;
    table.starts.reserve(guess);
    table.hashes.reserve(guess);
    ForEachLine(text, [&](std::string_view line) {
        table.starts.push_back(static_cast<std::size_t>(line.data() - text.data()));
        table.hashes.push_back(HashLine(line, options));
    });
    if (table.hashes.empty()) return table;
    table.lastIncomplete = text.back() != '\n';
    table.starts.push_back(text.size() + (table.lastIncomplete ? 1 : 0));
    if (table.lastIncomplete && EndMatters(options)) table.hashes.back() ^= kIncompleteTag;
    return table;
}

} // namespace linediff
