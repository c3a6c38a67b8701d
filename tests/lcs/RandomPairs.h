#pragma once
// Random sequence pairs of the shapes that stress an LCS walk: unrelated, lightly and heavily
// edited, equal, one a prefix of the other, nothing in common, long runs of one symbol.
#include "compare/lcs/LcsTable.h"

#include <algorithm>
#include <random>
#include <span>
#include <vector>

namespace orvane::test {

using Seq = std::vector<char32_t>;

class PairMaker {
  public:
    explicit PairMaker(std::uint64_t seed) : rng_(seed) {}

    std::size_t Below(std::size_t n) {
        return std::uniform_int_distribution<std::size_t>(0, n - 1)(rng_);
    }

    // Mostly short, sometimes up to 2,000.
    std::size_t Length() { return Below(4) == 0 ? Below(2001) : Below(Below(3) == 0 ? 600 : 120); }

    std::uint32_t Alphabet() {
        static constexpr std::uint32_t kSizes[] = {1, 2, 3, 4, 8, 26, 95, 3000};
        return kSizes[Below(std::size(kSizes))];
    }

    Seq Random(std::size_t n, std::uint32_t alphabet, char32_t base = U'a') {
        Seq s(n);
        for (char32_t& c : s)
            c = base + static_cast<char32_t>(Below(alphabet));
        return s;
    }

    Seq Edited(Seq s, std::uint32_t alphabet, std::size_t edits) {
        for (; edits > 0; --edits) {
            const std::size_t at = Below(s.size() + 1);
            const char32_t c = U'a' + static_cast<char32_t>(Below(alphabet));
            const std::size_t kind = at == s.size() ? 0 : Below(3);
            if (kind == 0)
                s.insert(s.begin() + static_cast<std::ptrdiff_t>(at), c);
            else if (kind == 1)
                s.erase(s.begin() + static_cast<std::ptrdiff_t>(at));
            else
                s[at] = c;
        }
        return s;
    }

    // One pair of a randomly chosen shape.
    std::pair<Seq, Seq> Pair() {
        const std::uint32_t k = Alphabet();
        Seq a = Random(Length(), k);
        switch (Below(7)) {
        case 0:
            return {a, Random(Length(), k)};
        case 1:
            return {a, Edited(a, k, 1 + Below(8))};
        case 2:
            return {a, Edited(a, k, 1 + a.size() / (2 + Below(8)))};
        case 3:
            return {a, a};
        case 4: {
            Seq prefix(a.begin(), a.begin() + static_cast<std::ptrdiff_t>(Below(a.size() + 1)));
            return Below(2) ? std::pair{a, prefix} : std::pair{prefix, a};
        }
        case 5:
            return {a, Random(Length(), k, U'\x4e00')};
        default:
            return {Seq(Length(), U'a'), Edited(Seq(Length(), U'a'), 2, Below(6))};
        }
    }

  private:
    std::mt19937_64 rng_;
};

// The textbook: fill the whole table, walk back from the far corner.
struct TableWalk {
    lcs::Marks a, b;
    std::int32_t length = 0;
};

template <class T> TableWalk WalkTable(std::span<const T> a, std::span<const T> b) {
    lcs::LcsMatrix matrix(a.size(), b.size());
    TableWalk w;
    w.length = lcs::FillLCSMatrix(a, b, matrix);
    w.a.assign(a.size(), false);
    w.b.assign(b.size(), false);
    lcs::GetLocationOfDiffs(matrix, w.a, w.b, a.size(), b.size());
    return w;
}

} // namespace orvane::test
