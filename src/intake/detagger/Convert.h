#pragma once
// The detagger engine: an HTML page in, its text out, under the named policies.
#include "intake/detagger/Policies.h"

#include <string>
#include <string_view>

namespace detagger {

// Pages above this size are refused rather than parsed: far beyond any real page, and it keeps
// the memory of one conversion within a few hundred megabytes.
inline constexpr std::size_t kMaxInputBytes = 64u << 20;

// The page's bytes in any encoding the page declares or that can be sniffed; UTF-8 text out.
std::string ConvertHtml(std::string_view bytes, const Policies& policies);

// kNoHtmlFile / kNoTextFile for an empty path, kFileNotFound, kFileNotOpened (input unreadable
// or output not writable), kConversionFailed (input too large, out of memory).
ErrorCode ConvertFile(const std::string& input, const std::string& output,
                      const Policies& policies);

} // namespace detagger
