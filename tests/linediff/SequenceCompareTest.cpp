// The core's promise: a shortest edit script whenever the search is exact (every strategy but
// the last-resort cut), and a valid one always. Checked against a quadratic LCS on random
// sequences over small alphabets, with the search tuned to force each strategy.
#include "SequenceCompare.h"
#include "AnchorSplit.h"
#include "BoundaryShift.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

using linediff::BigVector;
using linediff::Pos;
using linediff::SearchTuning;
using Seq = BigVector<std::uint32_t>;

std::size_t LcsLength(const Seq& a, const Seq& b) {
    std::vector<std::size_t> row(b.size() + 1, 0), next(b.size() + 1, 0);
    for (std::uint32_t x : a) {
        for (std::size_t j = 0; j < b.size(); ++j)
            next[j + 1] = x == b[j] ? row[j] + 1 : std::max(row[j + 1], next[j]);
        std::swap(row, next);
    }
    return row[b.size()];
}

struct Outcome {
    std::size_t changed = 0;
    bool valid = true; // the unchanged items pair up equal, in order
};

Outcome Compare(const Seq& a, const Seq& b, std::uint32_t classes, const SearchTuning& tuning) {
    BigVector<std::uint8_t> ca(a.size(), 0), cb(b.size(), 0);
    linediff::CompareSequences(a, b, classes, ca, cb, tuning);
    Outcome o;
    Seq keptA, keptB;
    for (std::size_t i = 0; i < a.size(); ++i)
        ca[i] ? ++o.changed : (keptA.push_back(a[i]), 0);
    for (std::size_t j = 0; j < b.size(); ++j)
        cb[j] ? ++o.changed : (keptB.push_back(b[j]), 0);
    o.valid = keptA == keptB;
    return o;
}

Seq RandomSeq(std::mt19937_64& rng, std::size_t n, std::uint32_t alphabet) {
    Seq s(n);
    for (auto& x : s)
        x = std::uniform_int_distribution<std::uint32_t>(0, alphabet - 1)(rng);
    return s;
}

// A copy with scattered insertions, deletions and substitutions.
Seq Edited(std::mt19937_64& rng, Seq s, std::uint32_t alphabet, std::size_t edits) {
    auto below = [&](std::size_t n) {
        return std::uniform_int_distribution<std::size_t>(0, n - 1)(rng);
    };
    for (; edits > 0; --edits) {
        std::size_t at = below(s.size() + 1);
        std::uint32_t v = std::uniform_int_distribution<std::uint32_t>(0, alphabet - 1)(rng);
        if (at == s.size() || below(3) == 0)
            s.insert(s.begin() + std::ptrdiff_t(at), v);
        else if (below(2) == 0)
            s.erase(s.begin() + std::ptrdiff_t(at));
        else
            s[at] = v;
    }
    return s;
}

struct Strategy {
    const char* name;
    SearchTuning tuning;
    bool exact;
};

const Strategy kStrategies[] = {
    {"measured defaults", {}, true},
    // Hands every box to the bit-parallel split after one step of the O(ND) search.
    {"bit-parallel splits", {0, 0.0, std::uint64_t(1) << 40}, true},
    // The bit-parallel split refuses for want of mask memory: the O(ND) search must resume.
    {"no mask memory", {0, 0.0, std::uint64_t(1) << 40, 0}, true},
    // Tiny cost cap, no bit-parallel: unique-line anchors or the furthest point decide.
    {"cost cap of 2", {2, 0.4, 0}, false},
    {"cost cap of 7", {7, 0.4, 0}, false},
};

void PrintTo(const Strategy& s, std::ostream* os) {
    *os << s.name;
}

class LineDiffSearch : public testing::TestWithParam<Strategy> {};

TEST_P(LineDiffSearch, RandomPairsAreMinimalWhereExactAndAlwaysValid) {
    const Strategy& s = GetParam();
    std::mt19937_64 rng(20240611);
    for (int round = 0; round < 700; ++round) {
        std::uint32_t alphabet = 1 + static_cast<std::uint32_t>(rng() % 12);
        std::size_t n = rng() % (round < 300 ? 12 : round < 600 ? 150 : 1200);
        Seq a = RandomSeq(rng, n, alphabet);
        Seq b = round % 3 ? Edited(rng, a, alphabet, rng() % (n / 2 + 2))
                          : RandomSeq(rng, rng() % 150, alphabet);
        Outcome o = Compare(a, b, alphabet, s.tuning);
        SCOPED_TRACE(testing::Message() << s.name << ", round " << round);
        ASSERT_TRUE(o.valid);
        if (s.exact) {
            ASSERT_EQ(o.changed, a.size() + b.size() - 2 * LcsLength(a, b));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Strategies, LineDiffSearch, testing::ValuesIn(kStrategies),
                         [](const auto& info) { return std::to_string(info.index); });

// Boxes of thousands of items with several words per bit row, against the quadratic LCS.
TEST(LineDiffSearchLarge, BitParallelSplitsStayExactOnLargeBoxes) {
    std::mt19937_64 rng(7);
    for (std::uint32_t alphabet : {2u, 4u, 30u}) {
        Seq a = RandomSeq(rng, 1500 + rng() % 700, alphabet);
        Seq b = Edited(rng, a, alphabet, 900);
        Outcome o = Compare(a, b, alphabet, kStrategies[1].tuning);
        ASSERT_TRUE(o.valid);
        EXPECT_EQ(o.changed, a.size() + b.size() - 2 * LcsLength(a, b)) << alphabet;
    }
}

// The last-resort cut goes around the longest run of equal items through a pair of items unique
// on both sides, and only through pairs that keep their order.
TEST(LineDiffAnchors, CutsAroundTheLongestRunThroughAUniquePair) {
    // 7 and 8 swap places (one can stay); the run 20..25 with 1s around it is the longest.
    Seq a{1, 7, 2, 8, 1, 20, 21, 22, 23, 24, 25, 1, 3, 30, 31};
    Seq b{8, 2, 7, 1, 20, 21, 22, 23, 24, 25, 1, 3, 2, 30, 31, 9};
    linediff::AnchorFinder finder(40);
    auto split = finder.Find(a.data(), b.data(), {0, Pos(a.size()), 0, Pos(b.size())});
    ASSERT_TRUE(split.has_value());
    EXPECT_EQ(split->x1, 4);
    EXPECT_EQ(split->y1, 3);
    EXPECT_EQ(split->x2, 13);
    EXPECT_EQ(split->y2, 12);
    Seq none{1, 1, 2, 2};
    EXPECT_FALSE(finder.Find(none.data(), none.data(), {0, 4, 0, 4}).has_value());
}

} // namespace

namespace {

struct ShiftCase {
    const char* name;
    std::vector<std::uint32_t> ids;
    std::vector<std::uint8_t> changed, other, expected;
};

// Flags as a search may leave them, and where the runs must end up.
const ShiftCase kShifts[] = {
    {"slides to the lowest place", {0, 1, 0, 1}, {1, 1, 0, 0}, {0, 0}, {0, 0, 1, 1}},
    {"merges two runs", {0, 0, 5}, {1, 0, 1}, {0}, {0, 1, 1}},
    {"stops opposite a change",
     {5, 0, 1, 0, 1, 6},
     {0, 1, 1, 0, 0, 0},
     {0, 1, 0, 0, 0},
     {0, 1, 1, 0, 0, 0}},
    {"cannot move", {0, 1, 2}, {0, 1, 0}, {0, 0}, {0, 1, 0}},
};

TEST(LineDiffShift, RunsMergeAndFaceTheOtherFilesChanges) {
    for (const ShiftCase& c : kShifts) {
        BigVector<std::uint32_t> ids(c.ids.begin(), c.ids.end());
        BigVector<std::uint8_t> changed(c.changed.begin(), c.changed.end());
        BigVector<std::uint8_t> other(c.other.begin(), c.other.end());
        linediff::ShiftBoundaries(ids, changed, other);
        EXPECT_EQ(std::vector<std::uint8_t>(changed.begin(), changed.end()), c.expected) << c.name;
    }
}

} // namespace
