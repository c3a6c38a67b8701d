#pragma once
#include <string>
#include <string_view>

namespace orvane {

// Reads a whole file. Throws RuntimeError (53 file not found, 75 access error, with errno as the
// system error) when it cannot.
std::string ReadFileBytes(const std::string& path);

// True when the bytes are well-formed UTF-8 (no overlongs, no surrogates).
bool IsValidUtf8(std::string_view bytes);

} // namespace orvane
