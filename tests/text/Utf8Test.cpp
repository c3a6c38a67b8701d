#include "text/Utf8.h"

#include <gtest/gtest.h>

namespace orvane::text {
namespace {

struct DecodeCase {
    const char* name;
    std::string bytes;
    bool valid;
    std::u32string decoded; // U+FFFD for each maximal invalid subsequence
};

void PrintTo(const DecodeCase& c, std::ostream* os) {
    *os << c.name;
}

class Decode : public ::testing::TestWithParam<DecodeCase> {};

TEST_P(Decode, ValidityAndCharactersAgree) {
    const DecodeCase& c = GetParam();
    EXPECT_EQ(IsValidUtf8(c.bytes), c.valid);
    EXPECT_EQ(DecodeUtf8(c.bytes), c.decoded);
    if (c.valid) {
        EXPECT_EQ(EncodeUtf8(c.decoded), c.bytes);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Sequences, Decode,
    ::testing::Values(DecodeCase{"Ascii", "a\tz", true, U"a\tz"},
                      DecodeCase{"Empty", "", true, U""},
                      DecodeCase{"TwoBytes", "\xC3\xA9", true, U"\u00E9"},
                      DecodeCase{"ThreeBytes", "\xE2\x82\xAC", true, U"\u20AC"},
                      DecodeCase{"FourBytes", "\xF0\x9F\x98\x80", true, U"\U0001F600"},
                      DecodeCase{"LastCodePoint", "\xF4\x8F\xBF\xBF", true, U"\U0010FFFF"},
                      DecodeCase{"OverlongTwo", "\xC0\xAF", false, U"\uFFFD\uFFFD"},
                      DecodeCase{"OverlongThree", "\xE0\x80\xAF", false, U"\uFFFD\uFFFD\uFFFD"},
                      DecodeCase{"Surrogate", "\xED\xA0\x80", false, U"\uFFFD\uFFFD\uFFFD"},
                      DecodeCase{"PastLastCodePoint", "\xF4\x90\x80\x80", false,
                                 U"\uFFFD\uFFFD\uFFFD\uFFFD"},
                      DecodeCase{"LoneContinuation", "a\x80z", false, U"a\uFFFDz"},
                      DecodeCase{"TruncatedAtEnd", "a\xE2\x82", false, U"a\uFFFD"},
                      DecodeCase{"TruncatedBeforeAscii", "\xE2\x82z", false, U"\uFFFDz"},
                      DecodeCase{"Windows1252Byte", "caf\xE9", false, U"caf\uFFFD"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(Encode, OutOfRangeValuesBecomeTheReplacementCharacter) {
    EXPECT_EQ(EncodeUtf8(U"\xD800"), "\xEF\xBF\xBD");
    EXPECT_EQ(EncodeUtf8(std::u32string(1, char32_t{0x110000})), "\xEF\xBF\xBD");
}

TEST(SequenceAt, GivesTheLengthOrZero) {
    char32_t value = 0;
    EXPECT_EQ(Utf8SequenceAt("x\xE2\x82\xAC", 1, value), 3u);
    EXPECT_EQ(value, U'\u20AC');
    EXPECT_EQ(Utf8SequenceAt("\xE2\x82", 0, value), 0u);
}

TEST(Windows1252, HighControlsMapToTheirCharacters) {
    EXPECT_EQ(FromWindows1252(0x80), U'\u20AC');
    EXPECT_EQ(FromWindows1252(0x9F), U'\u0178');
    EXPECT_EQ(FromWindows1252(0x81), char32_t{0x81}); // unassigned: the C1 control itself
    EXPECT_EQ(FromWindows1252(0xE9), U'\u00E9');
    EXPECT_EQ(FromWindows1252('A'), U'A');
}

} // namespace
} // namespace orvane::text
