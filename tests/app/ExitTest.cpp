// The real program, started as a user starts it, must end cleanly on every way out and keep the
// session's options. Objects that live in an engine library must be gone before it is unloaded.
#include "support/Process.h"
#include "tests/app/InstalledProgram.h"

#include <csignal>
#include <filesystem>
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

// Many paragraphs: text mode extracts them into temporary files and fills long grids.
std::string LongPage(bool revised) {
    std::string page = "<html><body>\n";
    for (int i = 0; i < 250000; ++i)
        page +=
            "<p>paragraph " + std::to_string(i) + (revised && i % 7 == 0 ? " new" : "") + "</p>\n";
    return page + "</body></html>\n";
}

// SIGTERM while the start-up comparison runs: the window closes once the run has let go of its
// state, the options are saved, and the run's files are gone.
TEST(Exit, TerminatedDuringAComparisonItEndsCleanlyWhenTheRunIsOver) {
    TempDir dir, temp;
    const std::string program = InstallProgram(dir);
    dir.Write("orvane.ini", "[Compare]\r\nComparisonMode=Text\r\nOutputFormat=SideBySide\r\n"
                            "ShowDialogueBeforeComparison=False\r\n");
    const std::string a = dir.Write("a.html", LongPage(false));
    const std::string b = dir.Write("b.html", LongPage(true));
    // The splash screen stays for two seconds; the run takes about three after it.
    const ProgramRun run = RunProgram(
        {program, a, b},
        {"QT_QPA_PLATFORM=offscreen", "TMPDIR=" + temp.Path(), "XDG_RUNTIME_DIR=" + dir.Path()},
        3200);
    ASSERT_TRUE(run.started);
    EXPECT_EQ(run.signal, 0);
    EXPECT_EQ(run.exitCode, 0);
    const std::string ini = ReadAll(dir.Path() + "orvane.ini");
    EXPECT_NE(ini.find("[Grids]"), std::string::npos) << "the options were not saved:\n" << ini;
    for (const auto& entry : std::filesystem::directory_iterator(temp.Path()))
        EXPECT_TRUE(entry.path().extension() == ".tmp" && entry.file_size() == 0)
            << "left behind: " << entry.path();
}

} // namespace
} // namespace orvane::test
