#pragma once
#include <string>
#include <string_view>

namespace orvane {

// Reads a whole file. Throws RuntimeError (53 file not found, 75 access error, with errno as the
// system error) when it cannot.
std::string ReadFileBytes(const std::string& path);

} // namespace orvane
