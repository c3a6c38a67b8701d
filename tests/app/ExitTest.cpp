// The real program, started as a user starts it, must end cleanly on every way out and keep the
// session's options. Objects that live in an engine library must be gone before it is unloaded.
#include "support/Process.h"
#include "tests/app/InstalledProgram.h"

#include <csignal>
#include <gtest/gtest.h>

namespace orvane::test {
namespace {

// A minified page: one line of about 1 MB.
std::string OneLinePage(char word) {
    std::string page = "<html><body><p>";
    for (int i = 0; i < 100000; ++i)
        page += std::string(8, word) + ' ';
    return page + "</p></body></html>";
}

ProgramRun RunWithBoxesAnswered(std::vector<std::string> args) {
    return RunProgram(std::move(args), {"QT_QPA_PLATFORM=offscreen", "ORVANE_ANSWER_BOXES=1"});
}

// Word level on two long one-line pages: boxes are shown while the window loads, the loop ends
// when the last of them closes, and the window's own close never runs.
TEST(Exit, AfterBoxesAtLoadTheProgramEndsCleanlyAndSavesItsOptions) {
    TempDir dir;
    const std::string program = InstallProgram(dir);
    dir.Write("orvane.ini",
              "[Compare]\r\nComparisonLevel=Word\r\nShowDialogueBeforeComparison=False\r\n");
    const std::string a = dir.Write("a.html", OneLinePage('a'));
    const std::string b = dir.Write("b.html", OneLinePage('b'));
    const ProgramRun run = RunWithBoxesAnswered({program, a, b});
    ASSERT_TRUE(run.started);
    EXPECT_NE(run.signal, SIGSEGV);
    EXPECT_EQ(run.signal, 0);
    EXPECT_EQ(run.exitCode, 0);
    const std::string ini = ReadAll(dir.Path() + "orvane.ini");
    EXPECT_NE(ini.find("ComparisonLevel=Word"), std::string::npos) << ini;
    EXPECT_NE(ini.find("[Grids]"), std::string::npos) << "the options were not saved:\n" << ini;
}

} // namespace
} // namespace orvane::test
