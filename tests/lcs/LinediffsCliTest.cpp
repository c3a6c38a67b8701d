// The command line that oracles and benchmarks use: first line of each file, two lines of marks.
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <string>
#include <sys/wait.h>

namespace orvane {
namespace {

struct CliRun {
    std::string out;
    int status = -1;
};

CliRun Linediffs(const std::string& args) {
    CliRun run;
    FILE* pipe =
        popen((std::string(ORVANE_BIN_DIR) + "linediffs " + args + " 2>/dev/null").c_str(), "r");
    if (!pipe) return run;
    std::array<char, 4096> buf;
    for (std::size_t n; (n = fread(buf.data(), 1, buf.size(), pipe)) > 0;)
        run.out.append(buf.data(), n);
    const int status = pclose(pipe);
    run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return run;
}

struct CliCase {
    const char* first;
    const char* second;
    const char* options;
    const char* out;
};

void PrintTo(const CliCase& c, std::ostream* os) {
    *os << c.first << " / " << c.second << " " << c.options;
}

class LinediffsCliTest : public ::testing::TestWithParam<CliCase> {};

TEST_P(LinediffsCliTest, PrintsTheMarksOfTheFirstLines) {
    test::TempDir dir;
    const std::string a = dir.Write("a.txt", GetParam().first);
    const std::string b = dir.Write("b.txt", GetParam().second);
    const CliRun run = Linediffs("'" + a + "' '" + b + "' " + GetParam().options);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, GetParam().out);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, LinediffsCliTest,
    ::testing::Values(CliCase{"ab cd\r\nsecond line\n", "ab xd", "", "11101\n11101\n"},
                      CliCase{"ab cd\r\nsecond line\n", "ab xd", "--word", "10\n10\n"},
                      // UTF-8 on one side, Windows-1252 on the other: the same characters.
                      CliCase{"CAF\xC3\x89!\n", "caf\xE9?\n", "-i", "11110\n11110\n"}));

TEST(LinediffsCliUsageTest, WrongArgumentsFail) {
    EXPECT_EQ(Linediffs("").status, 2);
    EXPECT_EQ(Linediffs("/nonexistent/a /nonexistent/b").status, 2);
}

} // namespace
} // namespace orvane
