#include "frame/NumericSort.h"

#include <algorithm>
#include <charconv>

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

// Bookmarks are row numbers: 9 comes before 10.
void SortLongCollection(std::vector<long>& Items) {
    std::ranges::sort(Items);
}

} // namespace orvane
