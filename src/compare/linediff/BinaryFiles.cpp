#include "BinaryFiles.h"

#include <algorithm>
#include <cstring>

namespace linediff {

namespace {
constexpr std::size_t kBinaryProbeBytes = 32 * 1024;
}

bool LooksBinary(std::string_view content) {
    std::size_t n = std::min(content.size(), kBinaryProbeBytes);
    return n && std::memchr(content.data(), 0, n) != nullptr;
}

std::string BinaryNotice(const std::string& originalPath, const std::string& revisedPath) {
    return "Binary files " + originalPath + " " + revisedPath + " differ";
}

} // namespace linediff
