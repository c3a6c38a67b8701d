#include "frame/NumericSort.h"

#include <charconv>
#include <utility>

namespace orvane {

// from_chars, not strtod: the user's locale must not turn "9.5" into 9.
double Val(const std::string& Text) {
    std::string digits;
    for (char c : Text)
        if (c != ' ' && c != '\t' && c != '\n' && c != '\r') digits += c;
    const char* first = digits.data();
    const char* last = first + digits.size();
    if (first != last && *first == '+') ++first;
    double value = 0;
    const auto result = std::from_chars(first, last, value, std::chars_format::general);
    return result.ec == std::errc() ? value : 0;
}

void QuickSortStrings(std::vector<std::string>& Items, long Low, long High) {
    if (High <= Low) return;
    auto at = [&](long i) -> std::string& { return Items[static_cast<std::size_t>(i - 1)]; };
    const double pivot = Val(at((Low + High) / 2));
    long i = Low, j = High;
    while (i <= j) {
        while (Val(at(i)) < pivot && i != High)
            ++i;
        while (pivot < Val(at(j)) && j != Low)
            --j;
        if (i <= j) {
            std::swap(at(i), at(j));
            ++i, --j;
        }
    }
    if (j > Low) QuickSortStrings(Items, Low, j);
    if (i < High) QuickSortStrings(Items, i, High);
}

void SortLongCollection(std::vector<long>& Items) {
    if (Items.size() < 2) return;
    std::vector<std::string> text;
    text.reserve(Items.size());
    for (long v : Items)
        text.push_back(std::to_string(v));
    QuickSortStrings(text, 1, static_cast<long>(text.size()));
    std::vector<long> sorted;
    sorted.reserve(text.size());
    for (const std::string& t : text)
        sorted.push_back(std::stol(t));
    Items = std::move(sorted);
}

} // namespace orvane
