// GNU diff and GNU patch as oracles: on every pair our normal output must rebuild the Revised
// file byte for byte through `patch`, and never mark more lines than `diff` does with the same
// switches (nor, on small pairs, more than `diff --minimal`).
#include "FileDiff.h"
#include "TestSupport.h"
#include "support/Process.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

namespace {

using linediff::Options;
using linediff_test::ChangedLines;
using orvane::test::RunProgram;
using orvane::test::TempDir;

class LineDiffGnuOracle : public testing::Test {
  protected:
    void SetUp() override {
        if (RunProgram({"diff", "--version"}).exitCode != 0 ||
            RunProgram({"patch", "--version"}).exitCode != 0)
            GTEST_SKIP() << "GNU diff and GNU patch are needed";
    }

    // Compares the pair both ways and checks everything the oracles can tell.
    void Check(const std::string& a, const std::string& b, Options o = {}, bool minimal = false) {
        std::string pa = dir.Write("a", a), pb = dir.Write("b", b);
        linediff::OutputLines out;
        int status = linediff::CompareFiles(pa, pb, o, out);
        std::vector<std::string> gnu{"diff"};
        if (o.ignoreCase) gnu.push_back("-i");
        if (o.ignoreWhiteSpace) gnu.push_back("-w");
        if (o.forceText) gnu.push_back("-a");
        gnu.insert(gnu.end(), {pa, pb});
        auto reference = RunProgram(gnu);
        ASSERT_EQ(status, reference.exitCode);
        ASSERT_LE(ChangedLines(out.Text()), ChangedLines(reference.out));
        ASSERT_EQ(linediff_test::CheckHunks(a, b, out.Text(), o), "");
        if (minimal) {
            gnu.insert(gnu.begin() + 1, "--minimal");
            ASSERT_LE(ChangedLines(out.Text()), ChangedLines(RunProgram(gnu).out));
        }
        if (status != linediff::kDiffer || o.ignoreCase || o.ignoreWhiteSpace) return;
        std::string patch = dir.Write("p", out.Text()), rebuilt = dir.Path() + "rebuilt";
        ASSERT_EQ(RunProgram({"patch", "-f", "-s", "-o", rebuilt, pa, patch}).exitCode, 0);
        ASSERT_EQ(linediff_test::ReadFile(rebuilt), b);
    }

    // Runs `rounds` random pairs of the alphabet, reporting the seed of a failure.
    void RandomRounds(std::uint64_t seed, int rounds, const std::vector<std::string>& alphabet,
                      std::size_t maxLines, Options o = {}, bool minimal = false) {
        std::mt19937_64 rng(seed);
        for (int round = 0; round < rounds && !HasFatalFailure(); ++round) {
            auto pair = linediff_test::RandomPair(rng, alphabet, maxLines);
            SCOPED_TRACE(testing::Message() << "seed " << seed << " round " << round);
            Check(pair.a, pair.b, o, minimal);
        }
    }

    TempDir dir;
};

const std::vector<std::string> kLetters{"a", "b", "c"};
const std::vector<std::string> kTags{
    "<div>", "</div>", "<p>", "</p>", "", "  some text", "x\r", " ", "\\ No newline at end of file",
    "---"};
const std::vector<std::string> kVariants{"a", "A", " a", "a ", "a\r", "b", "B b", "bb", "\t", ""};

TEST_F(LineDiffGnuOracle, SmallRandomPairsAreMinimalAndRebuildTheRevised) {
    RandomRounds(1, 150, kLetters, 12, {}, true);
    RandomRounds(2, 150, kTags, 40, {}, true);
}

TEST_F(LineDiffGnuOracle, LargerRandomPairsWithManyRepeats) {
    RandomRounds(3, 12, kLetters, 3000);
    RandomRounds(4, 12, kTags, 4000);
}

TEST_F(LineDiffGnuOracle, SwitchesAloneAndCombined) {
    const Options combos[] = {{true, false, false}, {false, true, false}, {true, true, false}};
    std::uint64_t seed = 10;
    for (const Options& o : combos)
        RandomRounds(seed++, 120, kVariants, 25, o);
}

TEST_F(LineDiffGnuOracle, NamedEdgeCases) {
    std::string longLine(200000, 'x'), nul("a\0b\n\0\n", 6);
    const std::pair<std::string, std::string> cases[] = {
        {"", ""},
        {"", "a\n"},
        {"a\n", ""},
        {"a", ""},
        {"a", "a"},
        {"a", "a\n"},
        {"a\nb", "a\nc"},
        {"\n", ""},
        {"\n\n\n", "\n"},
        {"a\r\nb\r\nc\r\n", "a\r\nB\r\nc\r\n"},
        {"a\r\nb\r\n", "a\nb\n"},
        {"\r\n\r", "\r"},
        {longLine + "\n" + longLine, longLine + "y\n" + longLine},
        {"x\nx\nx\nx\n", "x\nx\n"},
        {"x\ny\nx\ny\nx\n", "y\nx\ny\nx\ny\n"},
        {"1\n2\n3\n", "1\n2\n3\n"},
        {"1\n2\n3\n", "4\n5\n6\n7"},
    };
    for (std::size_t i = 0; i < std::size(cases) && !HasFatalFailure(); ++i) {
        SCOPED_TRACE(testing::Message() << "case " << i);
        Check(cases[i].first, cases[i].second, {}, true);
        Check(cases[i].first, cases[i].second, {true, true, false});
    }
    Check(nul, "a\nb\n\0\n", {false, false, true});
    Check("a\0\n", std::string("a\0", 2), {false, false, true});
}

} // namespace
