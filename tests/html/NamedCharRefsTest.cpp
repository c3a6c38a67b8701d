// The generated table and the longest-prefix rule it is matched by.
#include "intake/html/NamedCharRefs.h"
#include "TokenizerCases.h"

#include <gtest/gtest.h>

namespace {

TEST(NamedCharRefs, TableHoldsEveryNameOfTheStandard) {
    EXPECT_EQ(html::NamedCharRefCount(), 2231u);
}

struct MatchCase {
    const char32_t* text;
    const char* name; // nullptr: no match
    char32_t first;
    char32_t second;
};

void PrintTo(const MatchCase& c, std::ostream* os) {
    *os << Slug(c.text);
}

class LongestMatch : public testing::TestWithParam<MatchCase> {};

TEST_P(LongestMatch, TakesTheLongestNameTheTextStartsWith) {
    const MatchCase& c = GetParam();
    const html::NamedCharRef* ref = html::MatchNamedCharRef(c.text);
    if (c.name == nullptr) {
        EXPECT_EQ(ref, nullptr);
        return;
    }
    ASSERT_NE(ref, nullptr);
    EXPECT_EQ(ref->name, c.name);
    EXPECT_EQ(ref->first, c.first);
    EXPECT_EQ(ref->second, c.second);
}

INSTANTIATE_TEST_SUITE_P(
    Names, LongestMatch,
    testing::Values(MatchCase{U"notin;x", "notin;", 0x2209, 0},
                    MatchCase{U"notit;", "not", 0xAC, 0}, // legacy name, no semicolon
                    MatchCase{U"amp", "amp", 0x26, 0},    // text ends inside the name
                    MatchCase{U"ampx;", "amp", 0x26, 0},
                    MatchCase{U"NotEqualTilde;", "NotEqualTilde;", 0x2242, 0x338},
                    MatchCase{U"CounterClockwiseContourIntegral;",
                              "CounterClockwiseContourIntegral;", 0x2233, 0},
                    MatchCase{U"CounterClockwiseContourIntegra", nullptr, 0, 0},
                    MatchCase{U"AMP;", "AMP;", 0x26, 0}, MatchCase{U"Amp;", nullptr, 0, 0},
                    MatchCase{U"n\u00F6t;", nullptr, 0, 0}, MatchCase{U"", nullptr, 0, 0}));

} // namespace
