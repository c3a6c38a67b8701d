#pragma once
// Where each symbol occurs in the first sequence, one bit per element. The frequent symbols get
// a full row of bits; the others keep only their positions and build the words a column asks
// for, so a line of thousands of distinct characters does not cost thousands of full rows.
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace orvane::lcs {

using BitWord = std::uint64_t;
constexpr std::size_t kWordBits = 64;

inline std::size_t WordsFor(std::size_t bits) {
    return (bits + kWordBits - 1) / kWordBits;
}

class MatchMasks {
  public:
    // a holds symbol ids below alphabet. Full rows take at most budgetWords words in all.
    MatchMasks(std::span<const std::uint32_t> a, std::uint32_t alphabet, std::size_t budgetWords);

    // A symbol id at or above the alphabet occurs nowhere in the first sequence.
    bool Absent(std::uint32_t symbol) const { return symbol >= alphabet_; }

    // Words lo to hi (inclusive) of the symbol's row: element k is word lo + k. scratch must
    // hold hi - lo + 1 words; it is used only for symbols without a full row.
    const BitWord* Row(std::uint32_t symbol, std::size_t lo, std::size_t hi,
                       BitWord* scratch) const;

  private:
    void BuildFullRows(std::span<const std::uint32_t> a, const std::vector<std::size_t>& counts,
                       std::size_t budgetWords);
    void BuildPositions(std::span<const std::uint32_t> a, const std::vector<std::size_t>& counts);

    std::size_t words_;
    std::uint32_t alphabet_;
    std::vector<std::int64_t> fullRow_; // per symbol: its row, or -1 when it keeps positions
    std::vector<BitWord> rows_;
    std::vector<std::size_t> positionStart_; // per symbol, into positions_ (one extra at the end)
    std::vector<std::size_t> positions_;     // ascending within each symbol
};

} // namespace orvane::lcs
