#pragma once
// The one definition of "a line" shared by the differ and the grids, so that line n of a hunk is
// always the nth line shown. A line ends at LF; its bytes (a CR before the LF included) are its
// content. A final line without LF is a line; an empty file has no lines.
#include <cstddef>
#include <string_view>
#include <vector>

namespace linediff {

template <typename Fn> void ForEachLine(std::string_view text, Fn&& fn) {
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        if (end == std::string_view::npos) {
            fn(text.substr(start));
            return;
        }
        fn(text.substr(start, end - start));
        start = end + 1;
    }
}

inline std::vector<std::string_view> SplitLines(std::string_view text) {
    std::vector<std::string_view> lines;
    ForEachLine(text, [&](std::string_view line) { lines.push_back(line); });
    return lines;
}

// What a viewer shows of a line: its content without the CR of a CRLF ending.
inline std::string_view DisplayText(std::string_view line) {
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    return line;
}

} // namespace linediff
