#include "NormalFormat.h"

#include <charconv>
#include <string>

namespace linediff {
namespace {

constexpr std::string_view kNoNewline = "\\ No newline at end of file";

// Lines first .. last counted from 1: "7" or "7,9".
void AppendRange(std::string& s, std::size_t first, std::size_t last) {
    char digits[24];
    s.append(digits, std::to_chars(digits, digits + sizeof digits, first).ptr);
    if (last == first) return;
    s.push_back(',');
    s.append(digits, std::to_chars(digits, digits + sizeof digits, last).ptr);
}

// Original lines [i0, i1) become Revised lines [j0, j1); at least one side is not empty.
std::string HunkLine(std::size_t i0, std::size_t i1, std::size_t j0, std::size_t j1) {
    std::string s;
    if (i0 == i1) s += std::to_string(i0);
    else AppendRange(s, i0 + 1, i1);
    s.push_back(i0 == i1 ? 'a' : j0 == j1 ? 'd' : 'c');
    if (j0 == j1) s += std::to_string(j0);
    else AppendRange(s, j0 + 1, j1);
    return s;
}

void AddText(const LineTable& t, std::size_t from, std::size_t to, std::string_view prefix,
             OutputLines& out) {
    for (std::size_t i = from; i < to; ++i) {
        out.Add(prefix, t.Line(i));
        if (t.Incomplete(i)) out.Add(kNoNewline);
    }
}

} // namespace

std::size_t WriteNormalFormat(const LineTable& a, const LineTable& b,
                              const BigVector<std::uint8_t>& changedA,
                              const BigVector<std::uint8_t>& changedB, OutputLines& out) {
    const std::size_t n = a.Count(), m = b.Count();
    std::size_t i = 0, j = 0, hunks = 0;
    while (i < n || j < m) {
        if (i < n && j < m && !changedA[i] && !changedB[j]) {
            ++i, ++j;
            continue;
        }
        std::size_t i0 = i, j0 = j;
        while (i < n && changedA[i]) ++i;
        while (j < m && changedB[j]) ++j;
        if (i == i0 && j == j0) break; // unequal numbers of unchanged lines: cannot happen
        out.Add(HunkLine(i0, i, j0, j));
        AddText(a, i0, i, "< ", out);
        if (i0 != i && j0 != j) out.Add("---");
        AddText(b, j0, j, "> ", out);
        ++hunks;
    }
    return hunks;
}

} // namespace linediff
