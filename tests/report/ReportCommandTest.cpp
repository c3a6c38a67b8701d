// The htmlreport command and the engine's inputs: files, web addresses, the result codes and
// what is written where.
#include "intake_download/HttpTestServer.h"
#include "report/Engine.h"
#include "report/Report.h"
#include "support/Process.h"
#include "support/TempDir.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

using namespace orvane::report;
using namespace orvane::test;

namespace {

ProgramRun Htmlreport(std::vector<std::string> args) {
    args.insert(args.begin(), std::string(ORVANE_BIN_DIR) + "htmlreport");
    return RunProgram(std::move(args));
}

std::string Read(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

} // namespace

TEST(ReportCommand, ExitsAsDiffDoes) {
    TempDir dir;
    const auto a = dir.Write("a.html", "<p>one two</p>");
    const auto b = dir.Write("b.html", "<p>one three</p>");
    const auto c = dir.Write("c.html", "<p>one   two</p>");
    const std::string out = dir.Path() + "out.html";
    EXPECT_EQ(Htmlreport({a, b, out}).exitCode, 1);
    EXPECT_NE(Read(out).find("<del>"), std::string::npos);
    EXPECT_EQ(Htmlreport({a, c, out}).exitCode, 0);
    EXPECT_NE(Read(out).find("The files are identical."), std::string::npos); // written anyway
    EXPECT_EQ(Htmlreport({a, b, out, "--kind", "source", "--level", "char", "--numbers"}).exitCode,
              1);
    EXPECT_NE(Read(out).find("orvane-listing"), std::string::npos);
}

TEST(ReportCommand, FailuresExitTwoWithTheTextAndLeaveTheOutputAlone) {
    TempDir dir;
    const auto a = dir.Write("a.html", "<p>one</p>");
    const auto t = dir.Write("t.txt", "no markup at all");
    const std::string out = dir.Write("out.html", "previous report");
    struct Case {
        std::vector<std::string> args;
        std::string text;
    } cases[] = {
        {{a, a, out}, "The same file has been defined as both the Original and the Revised file."},
        {{a, t, out}, "One of the files is not in HTML format."},
        {{dir.Path() + "missing.html", a, out},
         "Unable to prepare the Original file for comparison."},
        {{a, dir.Path() + "missing.html", out},
         "Unable to prepare the Revised file for comparison."},
        {{a, t, out, "--kind", "bogus"}, "usage: htmlreport"},
        {{a, t}, "usage: htmlreport"},
    };
    for (const auto& c : cases) {
        const ProgramRun r = Htmlreport(c.args);
        EXPECT_EQ(r.exitCode, 2) << c.text;
        EXPECT_NE(r.err.find(c.text), std::string::npos) << r.err;
        EXPECT_EQ(Read(out), "previous report");
    }
    // An unwritable target: a failure, and no partial file in its folder.
    const ProgramRun r = Htmlreport({a, t, dir.Path() + "no/such/dir/out.html", "--kind", "text"});
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_NE(r.err.find("cannot write"), std::string::npos);
}

TEST(ReportCommand, TextKindTakesAnyTextAndSameFileThroughAnotherPath) {
    TempDir dir;
    const auto a = dir.Write("a.txt", "x\n");
    const auto b = dir.Write("b.txt", "y\n");
    EXPECT_EQ(MakeReport(a, b,
                         [] {
                             ReportOptions o;
                             o.kind = CompareKind::Text;
                             return o;
                         }())
                  .code,
              kDifferent);
    EXPECT_EQ(MakeReport(a,
                         dir.Path() + "./../" +
                             std::filesystem::path(dir.Path()).parent_path().filename().string() +
                             "/a.txt",
                         {})
                  .code,
              kSameFile);
}

TEST(ReportCommand, FramesAreComparedFrameByFrame) {
    TempDir dir;
    dir.Write("f1.html", "<p>left side</p>");
    dir.Write("f2.html", "<p>right side</p>");
    dir.Write("g2.html", "<p>right page</p>");
    const auto a = dir.Write(
        "a.html",
        "<frameset cols=\"50%,50%\"><frame src=\"f1.html\"><frame src=\"f2.html\"></frameset>");
    const auto b = dir.Write(
        "b.html",
        "<frameset cols=\"50%,50%\"><frame src=\"f1.html\"><frame src=\"g2.html\"></frameset>");
    const auto c =
        dir.Write("c.html", "<frameset cols=\"100%\"><frame src=\"f1.html\"></frameset>");
    const ReportResult r = MakeReport(a, b, {});
    EXPECT_EQ(r.code, kDifferent);
    EXPECT_EQ(r.differenceCount, 1);
    EXPECT_NE(r.html.find("<ins>page</ins>"), std::string::npos);
    EXPECT_EQ(MakeReport(a, c, {}).code, kFrameCountDiffers);
    const auto d = dir.Write(
        "d.html",
        "<frameset cols=\"50%,50%\"><frame src=\"f1.html\"><frame src=\"gone.html\"></frameset>");
    EXPECT_EQ(MakeReport(a, d, {}).code, kRevisedUnreadable);
}

TEST(ReportCommand, WebAddressesAreFetchedAndTheirAddressesResolved) {
    HttpTestServer server;
    server.Route("/docs/a.html", [](HttpConnection& c) {
        c.Send(Response(200, "<p>one <img src=\"pic.png\"></p>", "Content-Type: text/html\r\n"));
    });
    server.Route("/docs/b.html", [](HttpConnection& c) {
        c.Send(
            Response(200, "<p>two <img src=\"../pic2.png\"></p>", "Content-Type: text/html\r\n"));
    });
    const ReportResult r = MakeReport(server.Url("/docs/a.html"), server.Url("/docs/b.html"), {});
    ASSERT_EQ(r.code, kDifferent);
    EXPECT_NE(r.html.find("src=\"" + server.Url("/docs/pic.png") + "\""), std::string::npos)
        << r.html;
    EXPECT_NE(r.html.find("src=\"" + server.Url("/pic2.png") + "\""), std::string::npos);
    // A page sent with an error status is still a page: it is compared like any other.
    EXPECT_EQ(MakeReport(server.Url("/docs/a.html"), server.Url("/missing.html"), {}).code,
              kDifferent);
    EXPECT_EQ(MakeReport(server.Url("/docs/a.html"), server.Url("/docs/a.html"), {}).code,
              kSameFile);
}
