#pragma once
// Rewrapping a text file to a maximal line length, after the office suite has saved it.
#include <string>
#include <string_view>

namespace doctxt {

// Lines of `text` no longer than `maxChars`: a long line breaks at its last blank within the
// limit (the blanks there dropped), and a word longer than the limit is cut at the limit. Each
// piece ends with the line end of the line it came from. Characters are UTF-8 code points when
// the whole text is valid UTF-8, bytes otherwise (the single-byte code pages). A UTF-8 byte
// order mark is kept and not counted. `maxChars` below 1 leaves the text as it is.
std::string LimitLines(std::string_view text, int maxChars);

// Reads `source`, writes `target` with LimitLines; false when either file fails.
bool LimitFile(const std::string& source, int maxChars, const std::string& target);

} // namespace doctxt
