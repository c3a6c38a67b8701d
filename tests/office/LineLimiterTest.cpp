// The line limiter: where lines break, what counts as a character, and the library's C entry.
#include "intake/doctxt/LineLimiter.h"

#include "frame/EngineLibraries.h"

#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <iterator>

namespace orvane::test {
namespace {

struct LimitCase {
    const char* name;
    std::string text;
    int maxChars;
    std::string expected;
};

void PrintTo(const LimitCase& c, std::ostream* os) {
    *os << c.name;
}

class LimitLines : public ::testing::TestWithParam<LimitCase> {};

TEST_P(LimitLines, BreaksAsExpected) {
    EXPECT_EQ(doctxt::LimitLines(GetParam().text, GetParam().maxChars), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, LimitLines,
    ::testing::Values(
        LimitCase{"ShortLinesUnchanged", "one two\r\nthree\r\n", 79, "one two\r\nthree\r\n"},
        LimitCase{"ExactlyAtTheLimit", "abcde\r\n", 5, "abcde\r\n"},
        LimitCase{"BreaksAtTheLastBlankWithin", "aa bb cc dd\r\n", 7, "aa bb\r\ncc dd\r\n"},
        LimitCase{"BlankRightAfterTheLimitKeepsTheWholeWidth", "abc def ghi\r\n", 7,
                  "abc def\r\nghi\r\n"},
        LimitCase{"RunOfBlanksAtTheBreakDropped", "abc    def\r\n", 5, "abc\r\ndef\r\n"},
        LimitCase{"LongWordCutAtTheLimit", "abcdefghij\r\n", 4, "abcd\r\nefgh\r\nij\r\n"},
        LimitCase{"LongWordAfterShortOne", "a bcdefghij\r\n", 4, "a\r\nbcde\r\nfghi\r\nj\r\n"},
        LimitCase{"LeadingBlanksAreNoBreak", "   abcdefg\r\n", 5, "   ab\r\ncdefg\r\n"},
        LimitCase{"LfLineEndsKept", "aa bb\ncc\n", 3, "aa\nbb\ncc\n"},
        LimitCase{"MixedLineEndsKeptPerLine", "aa bb\ncc dd\r\n", 3, "aa\nbb\ncc\r\ndd\r\n"},
        LimitCase{"LastLineWithoutEndStaysWithout", "aa bb cc", 5, "aa bb\r\ncc"},
        LimitCase{"LastLineTakesThePreviousLineEnd", "x\naa bb", 3, "x\naa\nbb"},
        LimitCase{"EmptyLinesKept", "\r\n\r\nab\r\n", 1, "\r\n\r\na\r\nb\r\n"},
        LimitCase{"TabIsABlank", "ab\tcd\r\n", 3, "ab\r\ncd\r\n"},
        LimitCase{"Utf8CountsCharacters", "\xC3\xA9\xC3\xA9\xC3\xA9 \xC3\xA9\r\n", 5,
                  "\xC3\xA9\xC3\xA9\xC3\xA9 \xC3\xA9\r\n"},
        LimitCase{"Utf8CutNeverSplitsACharacter", "\xC3\xA9\xC3\xA9\xC3\xA9\r\n", 2,
                  "\xC3\xA9\xC3\xA9\r\n\xC3\xA9\r\n"},
        LimitCase{"ByteOrderMarkKeptAndNotCounted",
                  "\xEF\xBB\xBF"
                  "abc def\r\n",
                  3,
                  "\xEF\xBB\xBF"
                  "abc\r\ndef\r\n"},
        LimitCase{"SingleByteCodePageCountsBytes", "caf\xE9 caf\xE9\r\n", 4,
                  "caf\xE9\r\ncaf\xE9\r\n"},
        LimitCase{"NoLimitBelowOne", "abc def\r\n", 0, "abc def\r\n"},
        LimitCase{"EmptyText", "", 5, ""}));

std::string Slurp(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// The library as the program loads it, by name from its folder.
class LimiterLibrary : public ::testing::Test {
  protected:
    using LimitFn = std::int16_t(const char*, std::int32_t, const char*);
    void SetUp() override { ASSERT_TRUE(LoadEngine(Engine::DocTxt, ORVANE_BIN_DIR)); }
    int Limit(const std::string& source, int maxChars, const std::string& target) {
        auto* fn =
            reinterpret_cast<LimitFn*>(EngineSymbol(Engine::DocTxt, "LimitTextFileLineLength"));
        return fn(source.c_str(), maxChars, target.c_str());
    }
    TempDir dir;
};

TEST_F(LimiterLibrary, WritesTheTargetAndLeavesTheSource) {
    const std::string source = dir.Write("in.txt", "one two three\r\n");
    EXPECT_NE(Limit(source, 8, dir.Path() + "out.txt"), 0);
    EXPECT_EQ(Slurp(dir.Path() + "out.txt"), "one two\r\nthree\r\n");
    EXPECT_EQ(Slurp(source), "one two three\r\n");
}

TEST_F(LimiterLibrary, ZeroWhenNothingCanBeWritten) {
    EXPECT_EQ(Limit(dir.Path() + "missing.txt", 8, dir.Path() + "out.txt"), 0);
    EXPECT_FALSE(std::filesystem::exists(dir.Path() + "out.txt"));
    EXPECT_EQ(Limit(dir.Write("in.txt", "x"), 8, dir.Path() + "no/such/folder/out.txt"), 0);
    EXPECT_EQ(Limit(dir.Write("in.txt", "x"), 8, ""), 0);
}

} // namespace
} // namespace orvane::test
