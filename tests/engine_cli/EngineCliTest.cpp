// The engines' command-line programs as a shell user meets them: --help, inputs that are not
// regular files, and where the messages go.
#include "support/Process.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace orvane {
namespace {

struct Case {
    const char* name;
    const char* program;
    const char* args; // @page, @fifo, @folder, @out stand for paths in a fresh folder
    int status;
    const char* out; // a text that standard output must hold; "" means it must be empty
    const char* err; // likewise for standard error
};

void PrintTo(const Case& c, std::ostream* os) {
    *os << c.name;
}

class EngineCliTest : public ::testing::TestWithParam<Case> {
  protected:
    // The arguments as words, the @names made paths in a fresh folder.
    std::vector<std::string> Expand(const std::string& args) {
        const std::map<std::string, std::string> names = {
            {"@page", dir.Write("page.html", "<p>Hello</p>\n")},
            {"@other", dir.Write("other.html", "<p>Bye</p>\n")},
            {"@fifo", dir.Path() + "x.html"},
            {"@folder", dir.Path() + "sub"},
            {"@out", dir.Path() + "out.txt"}};
        ::mkfifo((dir.Path() + "x.html").c_str(), 0600);
        ::mkdir((dir.Path() + "sub").c_str(), 0700);
        std::vector<std::string> words;
        std::istringstream in(args);
        for (std::string word; in >> word;)
            words.push_back(names.count(word) ? names.at(word) : word);
        return words;
    }
    test::TempDir dir;
};

TEST_P(EngineCliTest, AnswersAsAShellUserExpects) {
    const Case& c = GetParam();
    std::vector<std::string> args = Expand(c.args);
    args.insert(args.begin(), std::string(ORVANE_BIN_DIR) + c.program);
    // A program blocked on a FIFO would hang the test: it is stopped after 20 s.
    const test::ProgramRun run = test::RunProgram(args, {}, 20'000);
    EXPECT_EQ(run.exitCode, c.status) << run.out << run.err;
    if (*c.out)
        EXPECT_NE(run.out.find(c.out), std::string::npos) << run.out;
    else
        EXPECT_EQ(run.out, "");
    if (*c.err)
        EXPECT_NE(run.err.find(c.err), std::string::npos) << run.err;
    else
        EXPECT_EQ(run.err, "");
}

INSTANTIATE_TEST_SUITE_P(
    Programs, EngineCliTest,
    ::testing::Values(
        // --help is usage on standard output, never a path
        Case{"LinediffHelp", "linediff", "--help", 0, "usage: linediff", ""},
        Case{"LinediffsHelp", "linediffs", "--help", 0, "usage: linediffs", ""},
        Case{"DetagHelp", "detag", "--help", 0, "usage: detag", ""},
        Case{"DetfileHelp", "detfile", "--help", 0, "usage: detfile", ""},
        // wrong arguments: usage on standard error
        Case{"LinediffNoArgs", "linediff", "", 2, "", "usage: linediff"},
        Case{"DetagNoArgs", "detag", "", 2, "", "usage: detag"},
        // only regular files are inputs: a FIFO would block, a device read without end
        Case{"LinediffFifo", "linediff", "@page @fifo", 2, "", "not a regular file"},
        Case{"LinediffDevZero", "linediff", "/dev/zero @page", 2, "", "not a regular file"},
        Case{"LinediffsFifo", "linediffs", "@fifo @page", 2, "", "not a regular file"},
        Case{"LinediffsDevZero", "linediffs", "@page /dev/zero", 2, "", "not a regular file"},
        Case{"LinediffsFolder", "linediffs", "@folder @page", 2, "", "folder"},
        Case{"DetagFifo", "detag", "@fifo @out", 2, "", "not a regular file"},
        Case{"DetagDevZero", "detag", "/dev/zero @out", 2, "", "not a regular file"},
        Case{"DetfileFifo", "detfile", "@fifo", 2, "", "not a regular file"},
        Case{"DetfileScoreDevZero", "detfile", "--score /dev/zero", 2, "", "not a regular file"},
        // errors of the engines themselves go to standard error too
        Case{"LinediffMissingFile", "linediff", "@page @out", 2, "", "out.txt"},
        Case{"DetagMissingInput", "detag", "@out @page", 2, "", "out.txt"},
        Case{"DetagBadPolicy", "detag", "@page @out nopolicy", 1, "", "detag: "},
        Case{"DetagUnknownPolicy", "detag", "@page @out Colour=Yes", 1, "", "Unknown policy name."},
        // and the ordinary answers stay on standard output
        Case{"LinediffDifferent", "linediff", "@page @other", 1, "Hello", ""},
        Case{"LinediffsMarks", "linediffs", "@page @page", 0, "1111", ""},
        Case{"DetagConverts", "detag", "@page @out", 0, "", ""},
        Case{"DetfileHtml", "detfile", "@page", 0, "HTML", ""}),
    [](const auto& info) { return std::string(info.param.name); });

} // namespace
} // namespace orvane
