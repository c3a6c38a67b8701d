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

// Lines [from, to) counted from 0; with none, the line they would follow (0: the top).
void AppendSide(std::string& s, std::size_t from, std::size_t to) {
    if (from == to)
        AppendRange(s, from, from);
    else
        AppendRange(s, from + 1, to);
}

// Original lines [i0, i1) become Revised lines [j0, j1); at least one side is not empty.
std::string HunkLine(std::size_t i0, std::size_t i1, std::size_t j0, std::size_t j1) {
    std::string s;
    AppendSide(s, i0, i1);
    s.push_back(i0 == i1 ? 'a' : j0 == j1 ? 'd' : 'c');
    AppendSide(s, j0, j1);
    return s;
}

void AddText(const LineTable& t, std::size_t from, std::size_t to, std::string_view prefix,
             OutputLines& out) {
    for (std::size_t i = from; i < to; ++i) {
        out.Add(prefix, t.Line(i));
        if (t.Incomplete(i)) out.Add(kNoNewline);
    }
}

// Calls fn(i0, i1, j0, j1) for each changed region: Original lines [i0, i1) against Revised
// lines [j0, j1), in order.
template <class Fn>
std::size_t ForEachHunk(const BigVector<std::uint8_t>& changedA,
                        const BigVector<std::uint8_t>& changedB, Fn&& fn) {
    const std::size_t n = changedA.size(), m = changedB.size();
    std::size_t i = 0, j = 0, hunks = 0;
    while (i < n || j < m) {
        if (i < n && j < m && !changedA[i] && !changedB[j]) {
            ++i, ++j;
            continue;
        }
        std::size_t i0 = i, j0 = j;
        while (i < n && changedA[i])
            ++i;
        while (j < m && changedB[j])
            ++j;
        if (i == i0 && j == j0) break; // unequal numbers of unchanged lines: cannot happen
        fn(i0, i, j0, j);
        ++hunks;
    }
    return hunks;
}

// Bytes of the lines [from, to) of a file as output lines ("< " + line + LF each).
std::size_t TextBytes(const LineTable& t, std::size_t from, std::size_t to) {
    if (from == to) return 0;
    std::size_t bytes = t.starts[to] - t.starts[from] + 2 * (to - from);
    return bytes + (t.Incomplete(to - 1) ? kNoNewline.size() + 1 : 0);
}

} // namespace

std::size_t WriteNormalFormat(const LineTable& a, const LineTable& b,
                              const BigVector<std::uint8_t>& changedA,
                              const BigVector<std::uint8_t>& changedB, OutputLines& out) {
    // Sized first, so that a big output is never copied while it grows.
    constexpr std::size_t kHunkLineBytes = 88; // four numbers of 20 digits at most, signs, LF
    std::size_t bytes = 0, lines = 0;
    ForEachHunk(changedA, changedB,
                [&](std::size_t i0, std::size_t i1, std::size_t j0, std::size_t j1) {
                    bytes += kHunkLineBytes + 4 + TextBytes(a, i0, i1) + TextBytes(b, j0, j1);
                    lines += 4 + (i1 - i0) + (j1 - j0);
                });
    out.Reserve(bytes, lines);
    return ForEachHunk(changedA, changedB,
                       [&](std::size_t i0, std::size_t i1, std::size_t j0, std::size_t j1) {
                           out.Add(HunkLine(i0, i1, j0, j1));
                           AddText(a, i0, i1, "< ", out);
                           if (i0 != i1 && j0 != j1) out.Add("---");
                           AddText(b, j0, j1, "> ", out);
                       });
}

} // namespace linediff
