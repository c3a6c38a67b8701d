// The page an unattended run writes instead of a report: its exact lines, and "Error!" for
// everything but the identical-files outcome, whatever its letter case.
#include "compare/ErrorReportFile.h"
#include "support/RecordingPrompter.h"
#include "support/TempDir.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace orvane {
namespace {

TEST(ErrorReportFileTest, WritesNineLinesWithErrorHeadingForFailures) {
    EXPECT_EQ(ErrorReportPage("Unable to prepare the Original file for comparison.", "a.html",
                              "http://x/b"),
              "<html>\r\n<head>\r\n<body>\r\n<p><i>Original: a.html</i></p>\r\n"
              "<p><i>Revised: http://x/b</i></p>\r\n<p><b>Error!</b></p>\r\n"
              "<p>Unable to prepare the Original file for comparison.</p>\r\n"
              "</body>\r\n</html>\r\n");
}

TEST(ErrorReportFileTest, IdenticalOutcomeInAnyCaseHasNoErrorHeading) {
    for (const char* message :
         {"The files are identical.", "THE FILES ARE IDENTICAL.", "the files are Identical."}) {
        const std::string page = ErrorReportPage(message, "a", "b");
        EXPECT_EQ(page.find("Error!"), std::string::npos) << message;
        EXPECT_NE(page.find(std::string("<p>") + message + "</p>\r\n"), std::string::npos);
    }
    // Near misses are failures.
    for (const char* message : {"The files are identical", "The files are identical. ", ""})
        EXPECT_NE(ErrorReportPage(message, "a", "b").find("Error!"), std::string::npos) << message;
}

TEST(ErrorReportFileTest, WritesTheFileOrReportsWhyNot) {
    test::TempDir dir;
    const std::string out = dir.Path() + "report.html";
    ASSERT_TRUE(WriteErrMsgToOutputFile("The files are identical.", out, "a", "b"));
    std::ostringstream bytes;
    bytes << std::ifstream(out, std::ios::binary).rdbuf();
    EXPECT_EQ(bytes.str(), ErrorReportPage("The files are identical.", "a", "b"));

    test::ScopedRecordingPrompter prompts;
    EXPECT_FALSE(WriteErrMsgToOutputFile("x", dir.Path() + "no/such/folder/r.html", "a", "b"));
    ASSERT_EQ(prompts->boxes.size(), 1u);
    EXPECT_NE(prompts->boxes[0].text.find("WriteErrMsgToOutputFile"), std::string::npos);
}

} // namespace
} // namespace orvane
