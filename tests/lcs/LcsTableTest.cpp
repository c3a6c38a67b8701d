// The reference table and the head and tail scan, checked by hand: everything else is held to
// them.
#include "compare/lcs/LcsTable.h"
#include "compare/lcs/FirstLastDiff.h"

#include <gtest/gtest.h>

#include <string>

namespace orvane {
namespace {

using lcs::LcsMatrix;

std::span<const char> Span(const std::string& s) {
    return {s.data(), s.size()};
}

std::string Digits(const lcs::Marks& marks) {
    std::string out;
    for (bool m : marks)
        out += m ? '1' : '0';
    return out;
}

TEST(LcsTableTest, EqualNeighboursSendTheWalkUp) {
    const std::string a = "ab", b = "ba";
    LcsMatrix matrix(2, 2);
    EXPECT_EQ(lcs::FillLCSMatrix(Span(a), Span(b), matrix), 1);
    EXPECT_EQ(matrix(1, 1).Direction, lcs::DirUp);
    EXPECT_EQ(matrix(1, 2).Direction, lcs::DirDiagonal);
    EXPECT_EQ(matrix(2, 1).Direction, lcs::DirDiagonal);
    EXPECT_EQ(matrix(2, 2).Direction, lcs::DirUp);
    lcs::Marks marksA(2, false), marksB(2, false);
    lcs::GetLocationOfDiffs(matrix, marksA, marksB, 2, 2);
    EXPECT_EQ(Digits(marksA), "10");
    EXPECT_EQ(Digits(marksB), "01");
}

TEST(LcsTableTest, ALongerLeftNeighbourSendsTheWalkLeft) {
    const std::string a = "xa", b = "ay";
    LcsMatrix matrix(2, 2);
    EXPECT_EQ(lcs::FillLCSMatrix(Span(a), Span(b), matrix), 1);
    EXPECT_EQ(matrix(2, 2).Direction, lcs::DirLeft);
    EXPECT_EQ(matrix(2, 2).Length, 1);
    lcs::Marks marksA(2, false), marksB(2, false);
    lcs::GetLocationOfDiffs(matrix, marksA, marksB, 2, 2);
    EXPECT_EQ(Digits(marksA), "01");
    EXPECT_EQ(Digits(marksB), "10");
}

struct EndsCase {
    const char* a;
    const char* b;
    bool finished;
    std::ptrdiff_t first, lastA, lastB;
    const char* marksA;
    const char* marksB;
};

void PrintTo(const EndsCase& c, std::ostream* os) {
    *os << c.a << " / " << c.b;
}

class FirstLastDiffTest : public ::testing::TestWithParam<EndsCase> {};

TEST_P(FirstLastDiffTest, MarksTheEndsAndGivesTheMiddle) {
    const EndsCase& c = GetParam();
    const std::string a = c.a, b = c.b;
    lcs::Marks marksA(a.size(), false), marksB(b.size(), false);
    const lcs::FirstLastDiff r = lcs::GetLocFirstLastDiff(Span(a), Span(b), marksA, marksB);
    EXPECT_EQ(r.Finished, c.finished);
    EXPECT_EQ(r.FirstA, c.first);
    EXPECT_EQ(r.FirstB, c.first);
    EXPECT_EQ(r.LastA, c.lastA);
    EXPECT_EQ(r.LastB, c.lastB);
    EXPECT_EQ(Digits(marksA), c.marksA);
    EXPECT_EQ(Digits(marksB), c.marksB);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, FirstLastDiffTest,
    ::testing::Values(EndsCase{"", "", false, 0, -1, -1, "", ""},
                      EndsCase{"", "abc", true, 0, 0, 0, "", "000"},
                      EndsCase{"ab", "abc", true, 0, 0, 0, "11", "110"},
                      EndsCase{"abc", "ab", true, 0, 0, 0, "110", "11"},
                      EndsCase{"abc", "abc", false, 0, -1, -1, "111", "111"},
                      EndsCase{"abc", "abXc", false, 2, 2, 3, "110", "1100"},
                      EndsCase{"abcd", "abXd", false, 2, 2, 2, "1101", "1101"},
                      EndsCase{"xab", "yab", false, 0, 0, 0, "011", "011"},
                      // The tail scan stops where the shorter side reaches First.
                      EndsCase{"abcab", "abab", false, 2, 3, 2, "11001", "1101"},
                      EndsCase{"abab", "abcab", false, 2, 2, 3, "1101", "11001"}));

} // namespace
} // namespace orvane
