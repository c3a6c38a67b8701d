#include "intake/detagger/CharacterPolicy.h"

#include <algorithm>
#include <array>

namespace detagger {
namespace {

struct Alternative {
    char32_t c;
    std::u32string_view text; // empty: the character is dropped
};

// Sorted by code point.
constexpr std::array<Alternative, 24> kAlternatives = {{
    {0x00A0, U" "},  {0x00AD, U""},   {0x2002, U" "},  {0x2003, U" "}, {0x2009, U" "},
    {0x200B, U""},   {0x200C, U""},   {0x200D, U""},   {0x2010, U"-"}, {0x2011, U"-"},
    {0x2013, U"-"},  {0x2014, U"--"}, {0x2018, U"'"},  {0x2019, U"'"}, {0x201A, U","},
    {0x201C, U"\""}, {0x201D, U"\""}, {0x201E, U"\""}, {0x2022, U"*"}, {0x2026, U"..."},
    {0x2032, U"'"},  {0x2033, U"\""}, {0x2212, U"-"},  {0xFEFF, U""},
}};

const Alternative* FindAlternative(char32_t c) {
    const auto it = std::lower_bound(kAlternatives.begin(), kAlternatives.end(), c,
                                     [](const Alternative& a, char32_t x) { return a.c < x; });
    return it != kAlternatives.end() && it->c == c ? &*it : nullptr;
}

} // namespace

void AppendMapped(std::u32string& out, char32_t c, bool allow8Bit, bool allowAlternatives) {
    if (c < 0x80) {
        out.push_back(c);
        return;
    }
    if (allowAlternatives) {
        if (const Alternative* alt = FindAlternative(c)) {
            out.append(alt->text);
            return;
        }
    }
    out.push_back(allow8Bit ? c : U'?');
}

std::u32string MapCharacters(std::u32string_view text, bool allow8Bit, bool allowAlternatives) {
    std::u32string out;
    out.reserve(text.size());
    for (char32_t c : text)
        AppendMapped(out, c, allow8Bit, allowAlternatives);
    return out;
}

} // namespace detagger
