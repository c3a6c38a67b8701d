#include "app/StartOptions.h"
#include "frame/CommandLine.h"

#include <gtest/gtest.h>

namespace orvane::test {
namespace {

using Args = std::vector<std::string>;

struct StartCase {
    const char* name;
    Args arguments;
    bool exitNow;
    int status;
    Args windowArguments; // the tokens the window gets when it starts
    const char* errContains;
};

class Start : public ::testing::TestWithParam<StartCase> {};

TEST_P(Start, OptionsDecideBeforeAnyWindow) {
    const StartCase& c = GetParam();
    const StartDecision d = DecideStart(c.arguments);
    EXPECT_EQ(d.ExitNow, c.exitNow);
    EXPECT_EQ(d.Status, c.status);
    EXPECT_EQ(d.Arguments, c.windowArguments);
    if (*c.errContains)
        EXPECT_NE(d.Err.find(c.errContains), std::string::npos) << d.Err;
    else
        EXPECT_EQ(d.Err, "");
}

INSTANTIATE_TEST_SUITE_P(
    Table, Start,
    ::testing::Values(
        StartCase{"None", {}, false, 0, {}, ""}, StartCase{"Help", {"--help"}, true, 0, {}, ""},
        StartCase{"ShortHelp", {"-h", "a.html"}, true, 0, {}, ""},
        StartCase{"Version", {"--version"}, true, 0, {}, ""},
        StartCase{"UnknownOption", {"--frobnicate"}, true, 2, {}, "unrecognized option"},
        // the three tokens keep their meaning: the report run is the window's decision
        StartCase{"ThreeTokens",
                  {"a.html", "b.html", "r.html"},
                  false,
                  0,
                  {"a.html", "b.html", "r.html"},
                  ""},
        StartCase{"OpenOne", {"--open", "/p/a.html"}, false, 0, {"/p/a.html"}, ""},
        StartCase{"OpenTwo",
                  {"--open", "/p/a.html", "/p/b.html"},
                  false,
                  0,
                  {"/p/a.html", "/p/b.html"},
                  ""},
        StartCase{"OpenThreeNeverReports",
                  {"--open", "/p/a.html", "/p/b.html", "/p/c.html"},
                  false,
                  0,
                  {"/p/a.html", "/p/b.html"},
                  "ignoring \"/p/c.html\""},
        StartCase{"OpenNone", {"--open"}, false, 0, {}, ""},
        StartCase{"OpenRefusesAQuoteInAName",
                  {"--open", "a\" \"b\" \"c", "/p/x.html"},
                  false,
                  0,
                  {"/p/x.html"},
                  "double quote"},
        StartCase{"OpenAFileNamedLikeAnOption", {"--open", "--help"}, false, 0, {"--help"}, ""}),
    [](const auto& info) { return std::string(info.param.name); });

// What --open hands on can never become a report-file run, whatever the names hold.
TEST(Start, OpenedFilesNeverGiveAReportFile) {
    for (const Args& files : {Args{"a\" \"b\" \"c", "x"}, Args{"a", "b", "c", "d"}}) {
        Args arguments{"--open"};
        arguments.insert(arguments.end(), files.begin(), files.end());
        std::string original, revised, report = "untouched";
        GetFilesFromCommandLine(JoinArgumentsAsCommandLine(DecideStart(arguments).Arguments),
                                original, revised, report);
        EXPECT_TRUE(report.empty() || report == "untouched") << report;
    }
}

TEST(Start, HelpAndVersionFollowTheGnuForms) {
    EXPECT_EQ(DecideStart({"--version"}).Out.rfind("orvane (Orvane) " ORVANE_VERSION "\n", 0), 0u);
    const std::string usage = DecideStart({"--help"}).Out;
    EXPECT_EQ(usage.rfind("Usage: orvane ", 0), 0u);
    for (const char* option : {"--open", "--help", "--version"})
        EXPECT_NE(usage.find(option), std::string::npos) << option;
}

} // namespace
} // namespace orvane::test
