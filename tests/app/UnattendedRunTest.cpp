// The report-file run as a script or cron starts it: three files, no display at all. It leaves
// the report or the small answer page at the third file's place, says how it went in its exit
// status, and never makes a window (with no display, making one would abort the process).
#include "support/Process.h"
#include "tests/app/InstalledProgram.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace orvane::test {
namespace {

// A loopback port that nothing listens on.
int ClosedPort() {
    const int s = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in a{};
    a.sin_family = AF_INET;
    a.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    ::bind(s, reinterpret_cast<sockaddr*>(&a), sizeof a);
    socklen_t n = sizeof a;
    ::getsockname(s, reinterpret_cast<sockaddr*>(&a), &n);
    ::close(s);
    return ntohs(a.sin_port);
}

class UnattendedRun : public ::testing::Test {
  protected:
    UnattendedRun() : program(InstallProgram(dir)), report(dir.Path() + "report.html") {
        dir.Write("orvane.ini",
                  "[Compare]\r\nComparisonMode=Visual\r\nOutputFormat=SideBySide\r\n");
    }
    ProgramRun Run(const std::string& a, const std::string& b) {
        return RunProgram({program, a, b, report},
                          {"DISPLAY=", "QT_QPA_PLATFORM=", "WAYLAND_DISPLAY="});
    }
    std::string Page(const std::string& message, const std::string& a, const std::string& b,
                     bool error) {
        return "<html>\r\n<head>\r\n<body>\r\n<p><i>Original: " + a + "</i></p>\r\n" +
               "<p><i>Revised: " + b + "</i></p>\r\n" + (error ? "<p><b>Error!</b></p>\r\n" : "") +
               "<p>" + message + "</p>\r\n</body>\r\n</html>\r\n";
    }

    TempDir dir;
    std::string program;
    std::string report;
};

TEST_F(UnattendedRun, DifferencesGiveTheMergedReportAndStatusOne) {
    const auto a = dir.Write("a.html", "<p>The quick brown fox.</p><p>Stays.</p>");
    const auto b = dir.Write("b.html", "<p>The quick red fox.</p><p>Stays.</p>");
    const ProgramRun run = Run(a, b);
    EXPECT_EQ(run.signal, 0);
    EXPECT_EQ(run.exitCode, 1);
    const std::string html = ReadAll(report);
    EXPECT_NE(html.find("<del>"), std::string::npos) << html;
    EXPECT_NE(html.find("<ins>"), std::string::npos);
    EXPECT_EQ(html.find("<script"), std::string::npos);
    // The output stays one window for the next interactive start, and the pair is recorded.
    const std::string ini = ReadAll(dir.Path() + "orvane.ini");
    EXPECT_NE(ini.find("OutputFormat=OneWindow"), std::string::npos) << ini;
    EXPECT_NE(ini.find("[OriginalFiles]"), std::string::npos) << ini;
}

TEST_F(UnattendedRun, IdenticalPagesGiveTheAnswerPageWithoutErrorAndStatusZero) {
    const auto a = dir.Write("a.html", "<p>Same.</p>");
    const auto b = dir.Write("b.html", "<p>Same.</p>");
    EXPECT_EQ(Run(a, b).exitCode, 0);
    EXPECT_EQ(ReadAll(report), Page("The files are identical.", a, b, false));
}

TEST_F(UnattendedRun, TroubleGivesTheAnswerPageWithErrorAndStatusTwo) {
    const auto b = dir.Write("b.html", "<p>Here.</p>");
    const std::string missing = dir.Path() + "missing.html";
    EXPECT_EQ(Run(missing, b).exitCode, 2);
    EXPECT_EQ(ReadAll(report), Page("File Does Not Exist.  Original file is not an existing file.",
                                    missing, b, true));

    const std::string away = "http://127.0.0.1:" + std::to_string(ClosedPort()) + "/page.html";
    const ProgramRun fetched = Run(b, away);
    EXPECT_EQ(fetched.exitCode, 2);
    EXPECT_NE(ReadAll(report).find("<p><b>Error!</b></p>"), std::string::npos);
    EXPECT_NE(ReadAll(report).find("Revised: " + away), std::string::npos);
}

TEST_F(UnattendedRun, AReportThatCannotBeWrittenIsTroubleAndLeavesNoFile) {
    const auto a = dir.Write("a.html", "<p>One.</p>");
    const auto b = dir.Write("b.html", "<p>Two.</p>");
    report = dir.Path() + "no/such/folder/report.html";
    const ProgramRun run = Run(a, b);
    EXPECT_EQ(run.signal, 0);
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_FALSE(std::filesystem::exists(report));
}

} // namespace
} // namespace orvane::test
