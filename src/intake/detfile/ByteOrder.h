#pragma once
// Little- and big-endian numbers inside a byte string; zero where the bytes run out, so that a
// truncated header reads as an implausible one instead of overrunning.
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace orvane::detfile {

inline std::uint32_t ReadLE(std::string_view b, std::size_t at, int width) {
    if (at + static_cast<std::size_t>(width) > b.size()) return 0;
    std::uint32_t v = 0;
    for (int k = width - 1; k >= 0; --k)
        v = (v << 8) | static_cast<unsigned char>(b[at + k]);
    return v;
}

inline std::uint32_t ReadBE(std::string_view b, std::size_t at, int width) {
    if (at + static_cast<std::size_t>(width) > b.size()) return 0;
    std::uint32_t v = 0;
    for (int k = 0; k < width; ++k)
        v = (v << 8) | static_cast<unsigned char>(b[at + k]);
    return v;
}

// Up to `count` bytes from `at`; none where `at` lies beyond the end.
inline std::string_view BytesAt(std::string_view b, std::size_t at, std::size_t count) {
    return at <= b.size() ? b.substr(at, count) : std::string_view();
}

inline bool HasAt(std::string_view b, std::size_t at, std::string_view magic) {
    return at <= b.size() && b.substr(at).starts_with(magic);
}

} // namespace orvane::detfile
