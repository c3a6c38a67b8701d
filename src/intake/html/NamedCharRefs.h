#pragma once

#include <cstddef>
#include <string_view>

namespace html {

struct NamedCharRef {
    std::string_view name; // without the '&'; ends in ';' except for the legacy names
    char32_t first;
    char32_t second; // 0 when the name stands for one character
};

// The longest name in the table that `text` starts with, or nullptr. Work is bounded by the
// longest name (32 characters), whatever follows in `text`.
const NamedCharRef* MatchNamedCharRef(std::u32string_view text);

std::size_t NamedCharRefCount();

} // namespace html
