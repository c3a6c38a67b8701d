// Lines as characters, and lines as words.
#include "compare/Words.h"
#include "compare/lcs/CodePoints.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

using lcs::DecodeText;
using lcs::TextEncoding;

struct DecodeCase {
    const char* bytes;
    TextEncoding guessed;
    const char32_t* text;
};

void PrintTo(const DecodeCase& c, std::ostream* os) {
    *os << std::string(c.bytes).size() << " bytes";
}

class DecodeTest : public ::testing::TestWithParam<DecodeCase> {};

TEST_P(DecodeTest, GivesOneElementPerCharacter) {
    const DecodeCase& c = GetParam();
    EXPECT_EQ(lcs::GuessEncoding(c.bytes), c.guessed);
    EXPECT_EQ(DecodeText(c.bytes), std::u32string(c.text));
}

INSTANTIATE_TEST_SUITE_P(
    Cases, DecodeTest,
    ::testing::Values(DecodeCase{"plain", TextEncoding::Utf8, U"plain"},
                      DecodeCase{"w\xC3\xB6rld \xE2\x82\xAC", TextEncoding::Utf8, U"wörld €"},
                      DecodeCase{"\xF0\x9F\x98\x80!", TextEncoding::Utf8, U"\U0001F600!"},
                      DecodeCase{"caf\xE9 \x80\x93\x81", TextEncoding::Windows1252,
                                 U"café €“\u0081"},
                      // Overlong forms, surrogates and cut sequences are not UTF-8.
                      DecodeCase{"\xC0\xAF", TextEncoding::Windows1252, U"À¯"},
                      DecodeCase{"\xED\xA0\x80", TextEncoding::Windows1252, U"í\u00A0€"},
                      DecodeCase{"ab\xC3", TextEncoding::Windows1252, U"abÃ"},
                      DecodeCase{"\xF4\x90\x80\x80", TextEncoding::Windows1252, U"ô\u0090€€"}));

TEST(CodePointsTest, Utf8RoundTrips) {
    const std::u32string text = U"a é € \U0001F600";
    EXPECT_EQ(DecodeText(lcs::EncodeUtf8(text), TextEncoding::Utf8), text);
}

TEST(CodePointsTest, UpperCasesBeyondAscii) {
    EXPECT_EQ(lcs::UpperCased(U"abz é ÿ ω я ß 1"), U"ABZ É Ÿ Ω Я ß 1");
}

struct SplitCase {
    const char32_t* text;
    std::vector<std::u32string> words;
};

void PrintTo(const SplitCase& c, std::ostream* os) {
    *os << c.words.size() << " words";
}

class ParseWordsTest : public ::testing::TestWithParam<SplitCase> {};

TEST_P(ParseWordsTest, SplitsAtBlanksOnly) {
    strutil::WordTable table{U"stale"};
    EXPECT_EQ(strutil::ParseWords(GetParam().text, U" ", table),
              static_cast<long>(GetParam().words.size()));
    EXPECT_EQ(table, GetParam().words);
}

INSTANTIATE_TEST_SUITE_P(Cases, ParseWordsTest,
                         ::testing::Values(SplitCase{U"", {}}, SplitCase{U"   ", {}},
                                           SplitCase{U"ab cd", {U"ab", U"cd"}},
                                           SplitCase{U"  ab   cd  ", {U"ab", U"cd"}},
                                           SplitCase{U"a\tb\u00A0c d", {U"a\tb\u00A0c", U"d"}}));

TEST(ParseWordsTest, AnEmptyDelimiterFails) {
    strutil::WordTable table;
    EXPECT_EQ(strutil::ParseWords(U"a b", U"", table), -1);
    EXPECT_NE(strutil::LastErrorCode(), 0);
    EXPECT_EQ(strutil::ErrorText(strutil::LastErrorCode()), "The delimiter is empty");
}

} // namespace
} // namespace orvane
