#pragma once
// Files that are not text: found by a NUL byte near the start, and told apart by bytes only.
#include <string>
#include <string_view>

namespace linediff {

// A NUL byte in the first 32 KiB marks a file as binary, as common line differs decide it.
bool LooksBinary(std::string_view content);

// The one output line for two files that differ and are not both text. No word between the two
// paths: the program searches for exactly this text.
std::string BinaryNotice(const std::string& originalPath, const std::string& revisedPath);

} // namespace linediff
