#include "settings/NumericText.h"

#include "frame/RuntimeError.h"

#include <gtest/gtest.h>

#include <optional>

namespace orvane {
namespace {

struct LongCase {
    const char* Text;
    std::optional<std::int32_t> Expected; // nullopt: not numeric
};

void PrintTo(const LongCase& c, std::ostream* os) {
    *os << '"' << c.Text << '"';
}

class ToLong : public ::testing::TestWithParam<LongCase> {};

TEST_P(ToLong, TestsAndRounds) {
    const LongCase& c = GetParam();
    EXPECT_EQ(IsNumeric(c.Text), c.Expected.has_value());
    if (c.Expected) {
        EXPECT_EQ(ToLongRounded(c.Text), *c.Expected);
    } else {
        try {
            ToLongRounded(c.Text);
            ADD_FAILURE() << "no error";
        } catch (const RuntimeError& e) {
            EXPECT_EQ(e.Number, err::TypeMismatch);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ToLong,
    ::testing::Values(LongCase{"79", 79}, LongCase{" \t-12 ", -12}, LongCase{"+3", 3},
                      LongCase{"2.5", 2}, LongCase{"3.5", 4}, LongCase{"-2.5", -2},
                      LongCase{"2.51", 3}, LongCase{".5", 0}, LongCase{"7.", 7},
                      LongCase{"1e2", 100}, LongCase{"1.5D1", 15}, LongCase{"25E-1", 2},
                      LongCase{"-0", 0}, LongCase{"0000000000000000000042", 42},
                      LongCase{"2147483647", 2147483647}, LongCase{"-2147483648", -2147483648},
                      LongCase{"2147483647.4", 2147483647}, LongCase{"", std::nullopt},
                      LongCase{"  ", std::nullopt}, LongCase{"abc", std::nullopt},
                      LongCase{"12abc", std::nullopt}, LongCase{"1 2", std::nullopt},
                      LongCase{"1e", std::nullopt}, LongCase{"1e+", std::nullopt},
                      LongCase{".", std::nullopt}, LongCase{"+", std::nullopt},
                      LongCase{"--1", std::nullopt}, LongCase{"0x10", std::nullopt},
                      LongCase{"9.5pt", std::nullopt}));

TEST(ToLongOverflow, RaisesErrorSix) {
    for (const char* text : {"2147483648", "2147483647.5", "-2147483649", "1e10", "1e999"}) {
        try {
            ToLongRounded(text);
            ADD_FAILURE() << text;
        } catch (const RuntimeError& e) {
            EXPECT_EQ(e.Number, err::Overflow) << text;
        }
    }
}

TEST(LeadingNumberTest, TakesLeadingNumber) {
    const std::pair<const char*, double> cases[] = {{"9.5pt", 9.5}, {"8", 8},      {"", 0},
                                                    {"pt", 0},      {" 1 2 ", 12}, {"-1.5e1x", -15},
                                                    {"3e", 3},      {"2D2", 200},  {"\t+.25", 0.25},
                                                    {"1e-400", 0},  {"10,5", 10},  {"1.2.3", 1.2}};
    for (const auto& [text, expected] : cases)
        EXPECT_DOUBLE_EQ(LeadingNumber(text), expected) << text;
    EXPECT_THROW(LeadingNumber("1e400"), RuntimeError);
}

} // namespace
} // namespace orvane
