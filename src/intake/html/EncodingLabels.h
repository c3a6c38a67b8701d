#pragma once

#include <string_view>
#include <vector>

namespace html {

// The Encoding Standard's "get an encoding": surrounding ASCII whitespace is dropped, case is
// ignored, and the label's encoding name ("windows-1252", "utf-8", ...) is returned; an
// unknown label gives an empty view. The names live as long as the program.
std::string_view GetEncoding(std::string_view label);

// Every encoding name a label can give, each once, sorted.
std::vector<std::string_view> EncodingNames();

} // namespace html
