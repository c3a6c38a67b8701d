#include "intake/html/EncodingLabels.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace html {
namespace {

struct Label {
    std::string_view label;
    std::string_view encoding;
};

constexpr Label kLabels[] = {
#include "intake/html/EncodingLabelTable.inc"
};

bool IsAsciiWhitespace(char c) {
    return c == '\t' || c == '\n' || c == '\f' || c == '\r' || c == ' ';
}

std::string Normalize(std::string_view label) {
    while (!label.empty() && IsAsciiWhitespace(label.front()))
        label.remove_prefix(1);
    while (!label.empty() && IsAsciiWhitespace(label.back()))
        label.remove_suffix(1);
    std::string out(label);
    for (char& c : out)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return out;
}

} // namespace

std::string_view GetEncoding(std::string_view label) {
    const std::string key = Normalize(label);
    const auto it =
        std::lower_bound(std::begin(kLabels), std::end(kLabels), key,
                         [](const Label& l, const std::string& k) { return l.label < k; });
    if (it == std::end(kLabels) || it->label != key) return {};
    return it->encoding;
}

std::vector<std::string_view> EncodingNames() {
    std::vector<std::string_view> names;
    for (const Label& l : kLabels)
        names.push_back(l.encoding);
    std::sort(names.begin(), names.end());
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
}

} // namespace html
