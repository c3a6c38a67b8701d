// build/bin/detag, the oracle's way in: policies given on the command line, errors as text.
#include "support/Process.h"

#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace orvane::test {
namespace {

const std::string kDetag = std::string(ORVANE_BIN_DIR) + "detag";

struct CliRun {
    std::string out;
    int exitCode = -1;
};

CliRun Detag(std::vector<std::string> args) {
    args.insert(args.begin(), kDetag);
    CliRun run;
    EXPECT_TRUE(RunProgram(args, run.out, run.exitCode));
    return run;
}

std::string Read(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}

TEST(DetagCli, ConvertsWithTheGivenPolicies) {
    TempDir dir;
    const std::string page = dir.Write("p.html", "<p>one\ntwo</p>");
    EXPECT_EQ(Detag({page, dir.Path() + "a.txt"}).exitCode, 0);
    EXPECT_EQ(Read(dir.Path() + "a.txt"), "one\r\ntwo\r\n");
    EXPECT_EQ(
        Detag({page, dir.Path() + "b.txt", "Output each paragraph on a single line=Yes"}).exitCode,
        0);
    EXPECT_EQ(Read(dir.Path() + "b.txt"), "one two\r\n");
}

TEST(DetagCli, FailurePrintsTheErrorTextAndExitsOne) {
    TempDir dir;
    const std::string page = dir.Write("p.html", "<p>x");
    const CliRun badPolicy = Detag({page, dir.Path() + "a.txt", "Colour=Yes"});
    EXPECT_EQ(badPolicy.exitCode, 1);
    EXPECT_EQ(badPolicy.out, "Unknown policy name.\n");
    const CliRun missing = Detag({dir.Path() + "none.html", dir.Path() + "a.txt"});
    EXPECT_EQ(missing.exitCode, 1);
    EXPECT_EQ(missing.out, "The specified file could not be found\n");
}

} // namespace
} // namespace orvane::test
