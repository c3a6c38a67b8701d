#include "LineHash.h"

#include <bit>
#include <cstring>

namespace linediff {
namespace {

// Words are read little-endian: the tail loads below drop their leading bytes by shifting.
static_assert(std::endian::native == std::endian::little);

constexpr std::uint64_t kOnes = 0x0101010101010101ull;
constexpr std::uint64_t kHigh = 0x8080808080808080ull;
constexpr std::uint64_t kMul = 0x9E3779B97F4A7C15ull;

// Folds the ASCII capitals of eight bytes at once; bytes >= 0x80 are left alone.
inline std::uint64_t FoldWord(std::uint64_t w) {
    std::uint64_t low7 = w & ~kHigh;
    std::uint64_t atLeastA = low7 + kOnes * (0x80 - 'A');
    std::uint64_t aboveZ = low7 + kOnes * (0x80 - 'Z' - 1);
    std::uint64_t upper = atLeastA & ~aboveZ & ~w & kHigh;
    return w | (upper >> 2);
}

inline unsigned char FoldByte(unsigned char c) {
    return (c >= 'A' && c <= 'Z') ? static_cast<unsigned char>(c | 0x20) : c;
}

inline std::uint64_t Mix(std::uint64_t h, std::uint64_t w) {
    return (std::rotl(h, 23) ^ w) * kMul;
}

inline std::uint64_t Finish(std::uint64_t h, std::uint64_t length) {
    h ^= length * kMul;
    h ^= h >> 33;
    h *= 0xff51afd7ed558ccdull;
    h ^= h >> 33;
    h *= 0xc4ceb9fe1a85ec53ull;
    return h ^ (h >> 33);
}

inline std::uint64_t Load8(const char* p) {
    std::uint64_t w;
    std::memcpy(&w, p, 8);
    return w;
}

inline std::uint64_t Load4(const char* p) {
    std::uint32_t w;
    std::memcpy(&w, p, 4);
    return w;
}

inline std::uint64_t Load2(const char* p) {
    std::uint16_t w;
    std::memcpy(&w, p, 2);
    return w;
}

// The last 1..7 bytes of a run of `total` bytes that ends at `end`, as a zero-padded
// little-endian word, read with whole loads (byte by byte the word stalls on its way back).
inline std::uint64_t LoadTail(const char* end, std::size_t n, std::size_t total) {
    if (total >= 8) return Load8(end - 8) >> (8 * (8 - n));
    const char* p = end - n;
    if (n >= 4) return Load4(p) | (Load4(end - 4) << (8 * (n - 4)));
    if (n >= 2) return Load2(p) | (Load2(end - 2) << (8 * (n - 2)));
    return static_cast<unsigned char>(*p);
}

// Bytes taken eight at a time as little-endian words: the same value as packing them one by one.
template <bool Fold> std::uint64_t HashWords(std::string_view line) {
    std::uint64_t h = 0;
    const char* p = line.data();
    std::size_t n = line.size();
    for (; n >= 8; p += 8, n -= 8)
        h = Mix(h, Fold ? FoldWord(Load8(p)) : Load8(p));
    if (n) {
        std::uint64_t w = LoadTail(p + n, n, line.size());
        h = Mix(h, Fold ? FoldWord(w) : w);
    }
    return Finish(h, line.size());
}

std::uint64_t HashWithoutBlanks(std::string_view line, bool fold) {
    std::uint64_t h = 0, word = 0;
    std::size_t kept = 0;
    for (unsigned char c : line) {
        if (IsBlank(c)) continue;
        word |= std::uint64_t(fold ? FoldByte(c) : c) << (8 * (kept & 7));
        if ((++kept & 7) == 0) h = Mix(h, word), word = 0;
    }
    if (kept & 7) h = Mix(h, word);
    return Finish(h, kept);
}

// Equal lengths assumed; with Fold, ASCII letters compare without regard to case.
template <bool Fold> bool EqualWords(const char* p, const char* q, std::size_t total) {
    std::size_t n = total;
    for (; n >= 8; p += 8, q += 8, n -= 8) {
        std::uint64_t x = Load8(p), y = Load8(q);
        if (x != y && (!Fold || FoldWord(x) != FoldWord(y))) return false;
    }
    if (n == 0) return true;
    std::uint64_t x = LoadTail(p + n, n, total), y = LoadTail(q + n, n, total);
    return x == y || (Fold && FoldWord(x) == FoldWord(y));
}

bool EqualWithoutBlanks(std::string_view a, std::string_view b, bool fold) {
    std::size_t i = 0, j = 0;
    for (;;) {
        while (i < a.size() && IsBlank(static_cast<unsigned char>(a[i])))
            ++i;
        while (j < b.size() && IsBlank(static_cast<unsigned char>(b[j])))
            ++j;
        if (i == a.size() || j == b.size()) return i == a.size() && j == b.size();
        unsigned char x = static_cast<unsigned char>(a[i++]);
        unsigned char y = static_cast<unsigned char>(b[j++]);
        if (x != y && (!fold || FoldByte(x) != FoldByte(y))) return false;
    }
}

} // namespace

std::uint64_t HashLine(std::string_view line, const Options& options) {
    if (options.ignoreWhiteSpace) return HashWithoutBlanks(line, options.ignoreCase);
    return options.ignoreCase ? HashWords<true>(line) : HashWords<false>(line);
}

bool LinesEqual(std::string_view a, std::string_view b, const Options& options) {
    if (options.ignoreWhiteSpace) return EqualWithoutBlanks(a, b, options.ignoreCase);
    if (a.size() != b.size()) return false;
    if (options.ignoreCase) return EqualWords<true>(a.data(), b.data(), a.size());
    return EqualWords<false>(a.data(), b.data(), a.size());
}

} // namespace linediff
