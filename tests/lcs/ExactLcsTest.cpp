// The fast walk must give the very marks of the textbook table walk, whatever the tuning: band
// guesses that fail, checkpoints nested several levels deep, symbols without full mask rows.
#include "RandomPairs.h"
#include "compare/lcs/Lcs.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

struct Tuning {
    const char* name;
    lcs::ExactLcsOptions options;
};

lcs::ExactLcsOptions Tuned(std::size_t columnBudget, std::size_t maskBudget, std::size_t extra) {
    lcs::ExactLcsOptions o;
    o.columnBudgetWords = columnBudget;
    o.maskBudgetWords = maskBudget;
    o.firstExtra = extra;
    return o;
}

std::vector<Tuning> Tunings() {
    return {{"default", {}},
            {"nested checkpoints", Tuned(24, std::size_t{1} << 22, 128)},
            {"positions only", Tuned(std::size_t{1} << 23, 0, 128)},
            {"few full rows, one-column blocks", Tuned(1, 64, 3)},
            {"band from zero", Tuned(std::size_t{1} << 23, std::size_t{1} << 22, 0)}};
}

TEST(ExactLcsTest, RandomPairsGiveTheTableWalkMarks) {
    constexpr int kPairsPerTuning = 700;
    int checked = 0;
    for (const Tuning& tuning : Tunings()) {
        test::PairMaker maker(0x5eed + checked);
        for (int k = 0; k < kPairsPerTuning; ++k, ++checked) {
            const auto [a, b] = maker.Pair();
            const test::TableWalk expected =
                test::WalkTable(std::span<const char32_t>(a), std::span<const char32_t>(b));
            lcs::Marks marksA, marksB;
            const std::size_t length =
                lcs::LcsMarks(std::span<const char32_t>(a), std::span<const char32_t>(b), marksA,
                              marksB, tuning.options);
            ASSERT_EQ(length, static_cast<std::size_t>(expected.length))
                << tuning.name << ", pair " << k << ": " << a.size() << " x " << b.size();
            ASSERT_EQ(marksA, expected.a) << tuning.name << ", pair " << k;
            ASSERT_EQ(marksB, expected.b) << tuning.name << ", pair " << k;
        }
    }
    EXPECT_EQ(checked, 3500);
}

TEST(ExactLcsTest, TiesFollowTheTableNotTheMirror) {
    // With the first subscript along the first sequence, ab against ba keeps the a.
    const std::u32string a = U"ab", b = U"ba";
    lcs::Marks marksA, marksB;
    EXPECT_EQ(
        lcs::LcsMarks(std::span<const char32_t>(a), std::span<const char32_t>(b), marksA, marksB),
        1u);
    EXPECT_EQ(marksA, (lcs::Marks{true, false}));
    EXPECT_EQ(marksB, (lcs::Marks{false, true}));
}

TEST(ExactLcsTest, LongRunsCallTheYieldHook) {
    test::PairMaker maker(7);
    const test::Seq a = maker.Random(30000, 4), b = maker.Random(30000, 4);
    int yields = 0;
    lcs::ExactLcsOptions options;
    options.yield = [&] { ++yields; };
    lcs::Marks marksA, marksB;
    lcs::LcsMarks(std::span<const char32_t>(a), std::span<const char32_t>(b), marksA, marksB,
                  options);
    EXPECT_GT(yields, 0);
}

} // namespace
} // namespace orvane
