#include "results/GridFind.h"

#include <algorithm>
#include <cctype>

namespace orvane {
namespace {

std::string Lower(std::string s) {
    std::transform(s.begin(), s.end(), s.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return s;
}

// The search text in a grid's own bytes: Windows-1252 grids hold Latin characters as one byte.
std::string InEncodingOf(const FlexGrid& grid, const std::string& utf8) {
    if (grid.Encoding() == TextEncoding::Utf8) return utf8;
    std::string out;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const unsigned char c = static_cast<unsigned char>(utf8[i]);
        if (c < 0x80)
            out += static_cast<char>(c);
        else if ((c & 0xE0) == 0xC0 && i + 1 < utf8.size() && c <= 0xC3)
            out += static_cast<char>(((c & 0x03) << 6) | (utf8[++i] & 0x3F)); // U+0080..U+00FF
        else
            return {}; // a character this grid cannot hold: no match there
    }
    return out;
}

class Scan {
  public:
    Scan(const FlexGrid& grid, const std::string& text)
        : grid_(grid), needle_(Lower(InEncodingOf(grid, text))) {}

    // Rows from `from` towards `to` inclusive, either way; the first match or -1.
    long Run(long from, long to) const {
        if (needle_.empty()) return -1;
        const long step = from <= to ? 1 : -1;
        for (long r = from; step > 0 ? r <= to : r >= to; r += step)
            if (Lower(grid_.RowText(r)).find(needle_) != std::string::npos) return r;
        return -1;
    }

  private:
    const FlexGrid& grid_;
    std::string needle_;
};

bool Take(long row, long& found) {
    if (row < 0) return false;
    found = row;
    return true;
}

} // namespace

bool FindInGrids(const FlexGrid& original, const FlexGrid& revised, const std::string& SearchText,
                 const std::string& Direction, long& FoundRow) {
    const std::string direction = Lower(Direction);
    const long r = original.Row(), t = original.Rows();
    const Scan inOriginal(original, SearchText), inRevised(revised, SearchText);
    auto forward = [&] {
        return Take(inOriginal.Run(r + 1, t - 1), FoundRow) ||
               Take(inRevised.Run(r + 1, std::min(t, revised.Rows()) - 1), FoundRow);
    };
    auto backward = [&] {
        return Take(inOriginal.Run(r - 1, 1), FoundRow) ||
               Take(inRevised.Run(std::min(r - 1, revised.Rows() - 1), 1), FoundRow);
    };
    if (direction == "next") return r + 1 <= t && forward();
    if (direction == "previous") return r - 1 >= 1 && backward();
    if (direction == "both") return r + 1 <= t && (forward() || (r - 1 >= 1 && backward()));
    return false;
}

} // namespace orvane
