#include "frame/CommandLine.h"
#include "frame/ProgramFolder.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

struct Tokens {
    std::string original, revised, report;
};

Tokens Parse(const std::string& line, const std::string& reportBefore = "kept") {
    gAppPath = ORVANE_BIN_DIR;
    Tokens t{"x", "y", reportBefore};
    GetFilesFromCommandLine(line, t.original, t.revised, t.report);
    return t;
}

struct Case {
    const char* line;
    const char* original;
    const char* revised;
    const char* report;
};

void PrintTo(const Case& c, std::ostream* os) {
    *os << c.line;
}

class CommandLineCases : public ::testing::TestWithParam<Case> {};

TEST_P(CommandLineCases, SplitsIntoTheThreeTokens) {
    const Case& c = GetParam();
    const Tokens t = Parse(c.line);
    EXPECT_EQ(t.original, c.original) << c.line;
    EXPECT_EQ(t.revised, c.revised) << c.line;
    EXPECT_EQ(t.report, c.report) << c.line;
}

INSTANTIATE_TEST_SUITE_P(
    Lines, CommandLineCases,
    ::testing::Values(
        Case{"", "", "", ""}, Case{"   ", "", "", ""},
        Case{"a.html b.html", "", "", ""},      // no quote at all: idle window
        Case{R"("a.html" b.html)", "", "", ""}, // unquoted second token voids the line
        Case{R"("a.html")", "a.html", "", ""},
        Case{R"(  "a b.html"   "c d.html"  )", "a b.html", "c d.html", ""},
        Case{R"("a.html" "b.html" report.html)", "a.html", "b.html", ""},
        Case{R"("a.html" "b.html" "out.html")", "a.html", "b.html", "out.html"},
        Case{R"("a.html" "b.html" "out.html)", "a.html", "b.html", "out.html"},
        Case{R"("http://x/a" "b.html" "r")", "http://x/a", "b.html", "r"},
        // The rest after the second token is taken from its first occurrence in the line, so a
        // second token equal to the first makes the report token the second token again.
        Case{R"("same" "same")", "same", "same", "same"}));

TEST(CommandLine, UnclosedTokensKeepTheCallersReportFile) {
    Tokens t = Parse(R"("a.html)");
    EXPECT_EQ(t.original, "a.html");
    EXPECT_EQ(t.revised, "");
    EXPECT_EQ(t.report, "kept");
    t = Parse(R"("a.html" "b.html)");
    EXPECT_EQ(t.revised, "b.html");
    EXPECT_EQ(t.report, "kept");
}

TEST(CommandLine, ArgumentsAreJoinedAsQuotedTokens) {
    EXPECT_EQ(JoinArgumentsAsCommandLine({}), "");
    EXPECT_EQ(JoinArgumentsAsCommandLine({"a b.html", "c.html"}), R"("a b.html" "c.html")");
    const Tokens t = Parse(JoinArgumentsAsCommandLine({"/tmp/my page.html", "b", "r.html"}));
    EXPECT_EQ(t.original, "/tmp/my page.html");
    EXPECT_EQ(t.revised, "b");
    EXPECT_EQ(t.report, "r.html");
}

} // namespace
} // namespace orvane
