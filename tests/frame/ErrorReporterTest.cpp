#include "frame/ErrorReporter.h"
#include "frame/ProgramFolder.h"
#include "settings/Session.h"
#include "settings/ViewOptions.h"
#include "support/RecordingPrompter.h"
#include "support/TempDir.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/stat.h>

namespace orvane {
namespace {

std::string ReadAll(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}

class ErrorReporterTest : public ::testing::Test {
  protected:
    void SetUp() override {
        gAppPath = dir.Path();
        RouteErrorsToReportRun(options);
    }
    void TearDown() override { SetErrorTextSink({}); }

    void Report(long number, const std::string& detail, long dllError = 0) {
        try {
            throw RuntimeError(number, "Something broke", dllError);
        } catch (...) {
            ReportUnexpectedError("frmFileDiffs.CompareFiles", detail);
        }
    }

    test::TempDir dir;
    test::ScopedRecordingPrompter prompter;
    cViewFileDiffsOptions options;
};

const char* kSupport = "\r\n* If this problem persists, please contact our technical support staff "
                       "for assistance.\r\n  (Refer to the Troubleshooting section of the Help "
                       "file for details.)";

TEST_F(ErrorReporterTest, ShowsOneBoxNamingTheLocation) {
    Report(9, "");
    ASSERT_EQ(prompter->boxes.size(), 1u);
    const test::RecordedBox& box = prompter->boxes[0];
    EXPECT_EQ(box.title, "Unexpected Error in frmFileDiffs.CompareFiles");
    EXPECT_EQ(box.icon, MsgIcon::Exclamation);
    EXPECT_EQ(box.text, std::string("Error: Something broke\r\nSource: frmFileDiffs.CompareFiles"
                                    "\r\nNo: 9\r\n") +
                            kSupport);
    EXPECT_FALSE(std::filesystem::exists(dir.Path() + "ERR_DETAIL.TXT"));
}

TEST_F(ErrorReporterTest, ASystemErrorReplacesTheNumber) {
    Report(75, "", ENOENT);
    const std::string& text = prompter->boxes.at(0).text;
    EXPECT_EQ(text.rfind("DLL Error: No such file or directory\r\nError: Something broke\r\n", 0),
              0u)
        << text;
    EXPECT_NE(text.find("No: 2\r\n"), std::string::npos);
    EXPECT_EQ(text.find("No: 75"), std::string::npos);
}

TEST_F(ErrorReporterTest, DetailGoesToTheDetailFileAndIsAnnounced) {
    Report(9, "line one\r\nline two");
    Report(7, "second");
    const std::string file = ReadAll(dir.Path() + "ERR_DETAIL.TXT");
    EXPECT_EQ(file.rfind("\r\n", 0), 0u);
    EXPECT_NE(file.find("No: 9\r\n\r\n- More Information - \r\nline one\r\nline two\r\n"),
              std::string::npos);
    EXPECT_NE(file.find("- More Information - \r\nsecond\r\n"), std::string::npos);
    EXPECT_NE(prompter->boxes.at(0).text.find(
                  "No: 9\r\n\r\nSee the ERR_DETAIL.TXT file before proceeding.\r\n\r\n*"),
              std::string::npos);
}

TEST_F(ErrorReporterTest, BlankDetailWritesNothing) {
    Report(9, "    ");
    EXPECT_FALSE(std::filesystem::exists(dir.Path() + "ERR_DETAIL.TXT"));
    EXPECT_EQ(prompter->boxes.at(0).text.find("ERR_DETAIL"), std::string::npos);
}

TEST_F(ErrorReporterTest, AReportFileRunTakesTheTextInsteadOfABox) {
    options.RunFromCommandLine = true;
    Report(13, "");
    EXPECT_TRUE(prompter->boxes.empty());
    EXPECT_EQ(options.CommandLineMessage.rfind("Error: Something broke\r\n", 0), 0u);
    EXPECT_NE(options.CommandLineMessage.find("No: 13"), std::string::npos);
}

TEST_F(ErrorReporterTest, AFailingDetailFileGivesTheHandlersOwnBox) {
    // Neither the program folder nor the user's configuration folder can take the file: the
    // latter lies under a plain file.
    const std::string blocker = dir.Write("plain-file", "");
    const char* oldXdg = std::getenv("XDG_CONFIG_HOME");
    const std::string savedXdg = oldXdg ? oldXdg : "";
    ::setenv("XDG_CONFIG_HOME", (blocker + "/config").c_str(), 1);
    if (::geteuid() == 0) {
        gAppPath = dir.Path() + "no-such-folder/"; // root may write anywhere: use a missing folder
    } else {
        ::chmod(dir.Path().c_str(), 0500);
    }
    Report(9, "detail");
    ::chmod(dir.Path().c_str(), 0700);
    oldXdg ? ::setenv("XDG_CONFIG_HOME", savedXdg.c_str(), 1) : ::unsetenv("XDG_CONFIG_HOME");
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].title, "Error in Error Handler");
    EXPECT_EQ(
        prompter->boxes[0].text.rfind("An error has occured in the error handler.\r\n75\r\n", 0),
        0u);
}

TEST(ApiErrorText, UnknownNumbersAreSaidSo) {
    EXPECT_EQ(GetAPIErrorText(ENOENT), "No such file or directory");
    EXPECT_EQ(GetAPIErrorText(987654), "Error (987654) not defined.");
}

} // namespace
} // namespace orvane
