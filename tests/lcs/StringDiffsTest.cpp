// The character and word differences of a line pair, their limits and their error reports.
#include "compare/StringDiffs.h"
#include "RandomPairs.h"
#include "compare/Words.h"
#include "compare/lcs/CodePoints.h"
#include "compare/lcs/FirstLastDiff.h"
#include "frame/ProgramFolder.h"
#include "frame/RuntimeError.h"
#include "support/RecordingPrompter.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <unordered_map>

namespace orvane {
namespace {

using modDiff::StringDiffsCharLevel;
using modDiff::StringDiffsWordLevel;

std::string Digits(const lcs::Marks& marks) {
    std::string out;
    for (bool m : marks)
        out += m ? '1' : '0';
    return out;
}

struct DiffCase {
    bool words;
    const char32_t* a;
    const char32_t* b;
    bool ignoreCase;
    const char* marksA;
    const char* marksB;
    std::int32_t result;
};

void PrintTo(const DiffCase& c, std::ostream* os) {
    *os << (c.words ? "words: " : "chars: ") << std::u32string(c.a).size() << "/"
        << std::u32string(c.b).size();
}

class LineDiffTest : public ::testing::TestWithParam<DiffCase> {};

TEST_P(LineDiffTest, MarksEachElement) {
    const DiffCase& c = GetParam();
    test::ScopedRecordingPrompter prompter;
    lcs::Marks marksA{true}, marksB{true};
    const std::int32_t result = c.words
                                    ? StringDiffsWordLevel(c.a, c.b, c.ignoreCase, marksA, marksB)
                                    : StringDiffsCharLevel(c.a, c.b, c.ignoreCase, marksA, marksB);
    EXPECT_EQ(result, c.result);
    EXPECT_EQ(Digits(marksA), c.marksA);
    EXPECT_EQ(Digits(marksB), c.marksB);
    EXPECT_TRUE(prompter->boxes.empty());
}

constexpr bool kChars = false, kWords = true;

INSTANTIATE_TEST_SUITE_P(
    Cases, LineDiffTest,
    ::testing::Values(
        DiffCase{kChars, U"", U"", false, "", "", 0},
        DiffCase{kChars, U"", U"abc", false, "", "000", 0},
        DiffCase{kChars, U"ab", U"abc", false, "11", "110", 0},
        DiffCase{kChars, U"abc", U"abXc", false, "111", "1101", 1},
        DiffCase{kChars, U"ab", U"ba", false, "10", "01", 1},
        // Equal lines go through the table whole.
        DiffCase{kChars, U"abc", U"abc", false, "111", "111", 3},
        DiffCase{kChars, U"Abc", U"aBC", true, "111", "111", 3},
        DiffCase{kChars, U"Abc", U"aBC", false, "000", "000", 0},
        DiffCase{kChars, U"ab cd", U"ab xd", false, "11101", "11101", 0},
        // The shorter side's first mismatch is left to the table, which keeps it.
        DiffCase{kChars, U"ab", U"aXb", false, "11", "101", 1},
        DiffCase{kChars, U"abcab", U"abab", false, "11011", "1111", 1},
        DiffCase{kChars, U"café crème", U"CAFE CRÈME", true, "1110111111", "1110111111", 0},
        DiffCase{kChars, U"\U0001F600x", U"\U0001F601x", false, "01", "01", 0},
        DiffCase{kWords, U"ab cd", U"ab xd", false, "10", "10", 1},
        DiffCase{kWords, U"Word up", U"word up", false, "01", "01", 1},
        DiffCase{kWords, U"Word up", U"word UP", true, "11", "11", 2},
        DiffCase{kWords, U"  a   b  ", U"a b", false, "11", "11", 2},
        DiffCase{kWords, U"", U"a b", false, "", "00", 0},
        DiffCase{kWords, U"a b", U"   ", false, "00", "", 0},
        DiffCase{kWords, U"a b", U"b a", false, "10", "01", 1},
        DiffCase{kWords, U"<p>one two</p>", U"<p>one three two</p>", false, "11", "101", 2}));

// The character-level steps with the textbook table in place of the fast walk.
int ReferenceCharLevel(std::span<const char32_t> a, std::span<const char32_t> b, lcs::Marks& marksA,
                       lcs::Marks& marksB) {
    marksA.assign(a.size(), false);
    marksB.assign(b.size(), false);
    const lcs::FirstLastDiff ends = lcs::GetLocFirstLastDiff(a, b, marksA, marksB);
    if (ends.Finished) return 0;
    const std::ptrdiff_t midA =
        ends.LastA == -1 ? std::ssize(a) - ends.FirstA : ends.LastA - ends.FirstA + 1;
    const std::ptrdiff_t midB =
        ends.LastB == -1 ? std::ssize(b) - ends.FirstB : ends.LastB - ends.FirstB + 1;
    if (midA < 1 || midB < 1) return 0;
    const test::TableWalk w =
        test::WalkTable(a.subspan(ends.FirstA, midA), b.subspan(ends.FirstB, midB));
    for (std::ptrdiff_t i = 0; i < midA; ++i)
        marksA[ends.FirstA + i] = w.a[i];
    for (std::ptrdiff_t j = 0; j < midB; ++j)
        marksB[ends.FirstB + j] = w.b[j];
    return w.length;
}

TEST(StringDiffsTest, CharLevelMatchesTheTableOnRandomLines) {
    test::PairMaker maker(2024);
    for (int k = 0; k < 600; ++k) {
        const auto [a, b] = maker.Pair();
        lcs::Marks expectedA, expectedB, marksA, marksB;
        const int expected = ReferenceCharLevel(a, b, expectedA, expectedB);
        const std::u32string textA(a.begin(), a.end()), textB(b.begin(), b.end());
        ASSERT_EQ(StringDiffsCharLevel(textA, textB, false, marksA, marksB), expected) << k;
        ASSERT_EQ(marksA, expectedA) << k;
        ASSERT_EQ(marksB, expectedB) << k;
    }
}

std::u32string Words(int count, const char32_t* word) {
    std::u32string line;
    for (int k = 0; k < count; ++k)
        line += (k ? U" " : U"") + std::u32string(word);
    return line;
}

std::string ReadAll(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}

class WordLimitTest : public ::testing::Test {
  protected:
    void SetUp() override { gAppPath = dir.Path(); }
    std::string Detail() const { return ReadAll(dir.Path() + "ERR_DETAIL.TXT"); }

    test::TempDir dir;
    test::ScopedRecordingPrompter prompter;
};

TEST_F(WordLimitTest, ALineOf1001WordsPasses) {
    lcs::Marks marksA, marksB;
    EXPECT_EQ(StringDiffsWordLevel(Words(1001, U"w"), Words(1000, U"w"), false, marksA, marksB),
              1000);
    EXPECT_EQ(marksA.size(), 1001u);
    EXPECT_EQ(marksB.size(), 1000u);
    EXPECT_TRUE(prompter->boxes.empty());
}

TEST_F(WordLimitTest, ALineOf1002WordsIsReportedWithBothLines) {
    for (int side = 0; side < 2; ++side) {
        const std::u32string longLine = Words(1002, U"wörd"), shortLine = U"short line";
        const std::u32string& a = side == 0 ? longLine : shortLine;
        const std::u32string& b = side == 0 ? shortLine : longLine;
        lcs::Marks marksA{true}, marksB{true};
        EXPECT_EQ(StringDiffsWordLevel(a, b, false, marksA, marksB), 0);
        EXPECT_TRUE(marksA.empty() && marksB.empty());
        ASSERT_EQ(prompter->boxes.size(), side + 1u);
        const test::RecordedBox& box = prompter->boxes.back();
        EXPECT_EQ(box.title, "Unexpected Error in modDiff.StringDiffsWordLevel()");
        EXPECT_EQ(box.text.rfind("Error: Subscript out of range\r\n"
                                 "Source: modDiff.StringDiffsWordLevel()\r\nNo: 9\r\n",
                                 0),
                  0u)
            << box.text;
        const std::string utf8Long = lcs::EncodeUtf8(longLine);
        const std::string pair =
            side == 0 ? utf8Long + "\r\nshort line" : "short line\r\n" + utf8Long;
        EXPECT_NE(Detail().find("- More Information - \r\n" + pair + "\r\n"), std::string::npos);
    }
}

// Out of memory (and a subscript out of range) brings both lines into the detail file; other
// errors only the box. The yield hook is where the failures are made to happen.
TEST_F(WordLimitTest, CharLevelErrorsAreReported) {
    test::PairMaker maker(3);
    const test::Seq a = maker.Random(30000, 4), b = maker.Random(30000, 4);
    const std::u32string textA(a.begin(), a.end()), textB(b.begin(), b.end());
    lcs::Marks marksA, marksB;
    StringDiffsCharLevel(textA, textB, false, marksA, marksB,
                         [] { throw RuntimeError(err::InvalidCall); });
    EXPECT_FALSE(std::filesystem::exists(dir.Path() + "ERR_DETAIL.TXT"));
    EXPECT_EQ(
        StringDiffsCharLevel(textA, textB, false, marksA, marksB, [] { throw std::bad_alloc(); }),
        0);
    ASSERT_EQ(prompter->boxes.size(), 2u);
    EXPECT_NE(prompter->boxes[0].text.find("No: 5\r\n"), std::string::npos);
    EXPECT_EQ(prompter->boxes[1].title, "Unexpected Error in modDiff.StringDiffsCharLevel()");
    EXPECT_NE(prompter->boxes[1].text.find("No: 7\r\n"), std::string::npos);
    EXPECT_NE(Detail().find(lcs::EncodeUtf8(textA) + "\r\n" + lcs::EncodeUtf8(textB)),
              std::string::npos);
}

TEST(StringDiffsTest, WordsWithOneValueStillDiffer) {
    std::unordered_map<std::int32_t, std::u32string> seen;
    std::u32string first, second;
    for (int k = 0; second.empty() && k < 4000000; ++k) {
        std::u32string word = U"w";
        for (char c : std::to_string(k))
            word += static_cast<char32_t>(c);
        const auto [it, fresh] = seen.try_emplace(strutil::WordValue(word), word);
        if (!fresh) std::tie(first, second) = std::pair{it->second, word};
    }
    ASSERT_FALSE(second.empty()) << "no two words share a value";
    lcs::Marks marksA, marksB;
    EXPECT_EQ(StringDiffsWordLevel(U"x " + first, U"x " + second, false, marksA, marksB), 1);
    EXPECT_EQ(Digits(marksA), "10");
    EXPECT_EQ(Digits(marksB), "10");
}

} // namespace
} // namespace orvane
