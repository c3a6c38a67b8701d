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
    const ProgramRun run = RunProgram(args);
    EXPECT_TRUE(run.started);
    return {run.out, run.exitCode};
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

} // namespace
} // namespace orvane::test
