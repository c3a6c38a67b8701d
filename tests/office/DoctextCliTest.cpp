// build/bin/doctext: the engine alone from the command line, on the suite's own document
// formats made here from HTML by the suite itself.
#include "office/OfficeFixture.h"

#include <gtest/gtest.h>

namespace orvane::test {
namespace {

const std::string kDoctext = std::string(ORVANE_BIN_DIR) + "doctext";

// The suite converting a page into one of its document formats, with a profile of its own.
std::string MakeDocument(const TempDir& dir, const std::string& page, const std::string& filter,
                         const std::string& extension) {
    const std::string profile = "-env:UserInstallation=file://" + dir.Path() + "profile";
    const ProgramRun run =
        RunCollecting(RealSuite(), {profile, "--headless", "--convert-to", filter, "--outdir",
                                    dir.Path() + "docs", dir.Write("source.html", page)});
    EXPECT_EQ(run.exitCode, 0) << run.output;
    return dir.Path() + "docs/source." + extension;
}

TEST(Doctext, ConvertsTheSuitesOwnFormatsBackToText) {
    ASSERT_FALSE(RealSuite().empty());
    const std::string page = "<h1>Harbour timetable</h1><p>Ferries leave at seven and nine.</p>";
    const struct {
        const char* filter;
        const char* extension;
    } formats[] = {{"odt", "odt"}, {"docx:MS Word 2007 XML", "docx"}};
    for (const auto& f : formats) {
        TempDir dir;
        const std::string document = MakeDocument(dir, page, f.filter, f.extension);
        ASSERT_TRUE(std::filesystem::exists(document)) << f.extension;
        const ProgramRun run = RunCollecting(kDoctext, {document, dir.Path() + "out.txt"});
        EXPECT_EQ(run.exitCode, 0) << run.output;
        EXPECT_EQ(Slurp(dir.Path() + "out.txt"),
                  "Harbour timetable\r\nFerries leave at seven and nine.\r\n")
            << f.extension;
    }
}

TEST(Doctext, MaxCharsLimitsTheLines) {
    ASSERT_FALSE(RealSuite().empty());
    TempDir dir;
    const ProgramRun run =
        RunCollecting(kDoctext, {dir.Write("p.html", "<p>one two three four</p>"),
                                 dir.Path() + "out.txt", "--format", "7", "--max-chars", "9"});
    EXPECT_EQ(run.exitCode, 0) << run.output;
    EXPECT_EQ(Slurp(dir.Path() + "out.txt"), "\xEF\xBB\xBFone two\r\nthree\r\nfour\r\n");
}

// Each failure exits with 2 and says why on standard error, without writing the target.
TEST(Doctext, FailuresExitWithTwoAndAReason) {
    TempDir dir;
    const std::string page = dir.Write("p.html", "<p>x</p>");
    const std::string target = dir.Path() + "out.txt";
    const struct {
        std::vector<std::string> args;
        const char* says;
    } cases[] = {
        {{page}, "usage: doctext"},
        {{page, target, "--format", "6"}, "unknown save format 6"},
        {{page, target, "--max-chars"}, "--max-chars needs a number"},
        {{page, target, "--colour"}, "unknown option --colour"},
        {{dir.Path() + "missing.html", target}, "could not open"},
    };
    for (const auto& c : cases) {
        const ProgramRun run = RunCollecting(kDoctext, c.args);
        EXPECT_EQ(run.exitCode, 2) << c.says;
        EXPECT_NE(run.output.find(c.says), std::string::npos) << run.output;
    }
    EXPECT_FALSE(std::filesystem::exists(target));
}

TEST(Doctext, NoSuiteOnThePathIsSaidPlainly) {
    TempDir dir, empty;
    ProgramRun run;
    {
        ScopedPath path(empty.Path());
        run = RunCollecting(kDoctext, {dir.Write("p.html", "<p>x</p>"), dir.Path() + "o.txt"});
    }
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_NE(run.output.find("soffice was not found on the PATH"), std::string::npos)
        << run.output;
}

} // namespace
} // namespace orvane::test
