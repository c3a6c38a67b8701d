#pragma once
// What a character becomes in the output under the two character policies: with alternatives
// allowed, typographic characters give their plain ASCII stand-ins (a space for a no-break
// space); without 8-bit output, anything else above ASCII becomes '?'.
#include <string>
#include <string_view>

namespace detagger {

void AppendMapped(std::u32string& out, char32_t c, bool allow8Bit, bool allowAlternatives);
std::u32string MapCharacters(std::u32string_view text, bool allow8Bit, bool allowAlternatives);

} // namespace detagger
