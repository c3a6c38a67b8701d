// The program's format routines: name rules, the recogniser, the text test and the messages.
#include "intake/Formats.h"
#include "frame/EngineLibraries.h"
#include "frame/ProgramFolder.h"
#include "support/RecordingPrompter.h"
#include "support/TempDir.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace orvane {
namespace {

using namespace modConvertFormats;
using namespace std::string_literals;

const std::string kPng = "\x89PNG\r\n\x1A\n"s + std::string(20, '\1');

class Formats : public ::testing::Test {
  protected:
    void SetUp() override { gAppPath = ORVANE_BIN_DIR; }
    test::TempDir dir;
    std::string format = "unset", description = "unset", reason = "unset";
};

struct NameCase {
    const char* path; // under the test folder
    std::string bytes;
    const char* format;
};

void PrintTo(const NameCase& c, std::ostream* os) {
    *os << c.path;
}

class NameRules : public Formats, public ::testing::WithParamInterface<NameCase> {};

TEST_P(NameRules, DecideBeforeTheContent) {
    const NameCase& c = GetParam();
    const std::string path = dir.Path() + c.path;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << c.bytes;
    EXPECT_TRUE(GetFormatOfFile(path, format, description, reason));
    EXPECT_EQ(format, c.format);
    if (format == "HTML"s) {
        EXPECT_EQ(description, "HTML Document");
    }
    EXPECT_EQ(reason, "unset");
}

INSTANTIATE_TEST_SUITE_P(
    Formats, NameRules,
    ::testing::Values(NameCase{"page.HTML", kPng, "HTML"}, NameCase{"x.htmfoo", "", "HTML"},
                      NameCase{"a/htm4F2.tmp", kPng, "HTML"}, NameCase{"HTM1.TMP", "", "HTML"},
                      NameCase{"xhtm4F2.tmp", kPng, "PNG"}, NameCase{"dir.html/file", kPng, "PNG"},
                      NameCase{"page.shtml", kPng, "PNG"},
                      NameCase{"notes.txt", "words\n", "ASC"}));

TEST_F(Formats, AnHtmlNameIsNeverOpened) {
    EXPECT_TRUE(GetFormatOfFile(dir.Path() + "missing.htm", format, description, reason));
    EXPECT_EQ(format, "HTML");
}

TEST_F(Formats, FailureTextsNameTheReason) {
    EXPECT_FALSE(GetFormatOfFile(dir.Write("e.txt", ""), format, description, reason));
    EXPECT_EQ(format, "!EMPTY");
    EXPECT_EQ(reason, "Unable to determine the format of file.\r\nReason: File is empty.");
    EXPECT_FALSE(GetFormatOfFile(dir.Path() + "none.txt", format, description, reason));
    EXPECT_EQ(format, "!FERR");
    EXPECT_EQ(reason, "Unable to determine the format of file.\r\nReason: Error opening the file.");
}

// 3 control bytes in 100 score 97, 2 score 98.
TEST_F(Formats, TheTextTestCutsAt98) {
    const std::string unknown = dir.Write("u", std::string(97, 'a') + std::string(3, '\0'));
    EXPECT_FALSE(GetFormatOfFile(unknown, format, description, reason));
    EXPECT_EQ(format, "!UNK");
    EXPECT_EQ(reason,
              "Unable to determine the format of the file.\r\nReason: Unrecognized file format.");
    const std::string text = dir.Write("t", std::string(98, 'a') + std::string(2, '\0'));
    EXPECT_TRUE(GetFormatOfFile(text, format, description, reason));
    EXPECT_EQ(format, "ASC");
}

// The recogniser judges by the head; the program's last test looks at the whole file.
TEST_F(Formats, AnUnknownHeadWithTextBehindIsText) {
    const std::string head = std::string(60'000, 'a') + std::string(5536, '\0');
    const std::string path = dir.Write("log", head + std::string(1'000'000, 'b'));
    EXPECT_TRUE(GetFormatOfFile(path, format, description, reason));
    EXPECT_EQ(format, "ASC");
    EXPECT_EQ(description, "Unknown Format"); // the recogniser's word stays
}

TEST_F(Formats, BothFilesStopAtTheFirstFailure) {
    const std::string page = dir.Write("a.htm", ""), text = dir.Write("b.txt", "b\n");
    const std::string empty = dir.Write("e", ""), unknown = dir.Write("u", "\1\2\3");
    std::string f1, d1, f2 = "unset", d2;
    EXPECT_TRUE(GetFormatOfBothFiles(page, text, f1, d1, f2, d2, reason));
    EXPECT_EQ(f1 + "," + f2, "HTML,ASC");
    f2 = "unset";
    EXPECT_FALSE(GetFormatOfBothFiles(empty, text, f1, d1, f2, d2, reason));
    EXPECT_EQ(reason, "Unable to determine the format of original file.\r\nReason: File is empty.");
    EXPECT_EQ(f2, "unset");
    EXPECT_FALSE(GetFormatOfBothFiles(text, unknown, f1, d1, f2, d2, reason));
    EXPECT_EQ(
        reason,
        "Unable to determine the format of revised file.\r\nReason: Unrecognized file format.");
    EXPECT_EQ(f2, "!UNK");
}

TEST(ConversionMethod, ByFormatCode) {
    const std::pair<const char*, int> cases[] = {
        {"HTML", 1},   {"htm", 1},    {"HTMX", 1}, {"HtMlX", 1}, {"ASC", 0}, {"asc", 0},
        {"ASCII", -1}, {"XHTML", -1}, {"PDF", -1}, {"!UNK", -1}, {"", -1}};
    for (const auto& [code, method] : cases)
        EXPECT_EQ(GetConversionMethodForFormat("ignored", code), method) << code;
}

TEST(WildcardMatch, StarAndQuestionMarkInAnyCase) {
    EXPECT_TRUE(MatchesPattern("htm4F2.tmp", "htm*.tmp"));
    EXPECT_TRUE(MatchesPattern("HTM.TMP", "htm*.tmp"));
    EXPECT_FALSE(MatchesPattern("htm4F2.tmpx", "htm*.tmp"));
    EXPECT_FALSE(MatchesPattern("xhtm.tmp", "htm*.tmp"));
    EXPECT_TRUE(MatchesPattern("a.tmp.tmp", "*.tmp"));
    EXPECT_TRUE(MatchesPattern("abc", "a?c"));
    EXPECT_FALSE(MatchesPattern("ac", "a?c"));
    EXPECT_TRUE(MatchesPattern("", "*"));
}

// Without the library the routines report under their own names and leave the reason alone;
// a page by name needs no library at all.
TEST_F(Formats, AMissingLibraryIsReported) {
    test::ScopedRecordingPrompter boxes;
    FreeEngines();
    gAppPath = dir.Path();
    const std::string text = dir.Write("t.txt", "t\n");
    EXPECT_TRUE(GetFormatOfFile(dir.Path() + "p.html", format, description, reason));
    EXPECT_FALSE(GetFormatOfFile(text, format, description, reason));
    EXPECT_EQ(reason, "unset");
    std::string f1, d1, f2, d2;
    EXPECT_FALSE(GetFormatOfBothFiles(text, text, f1, d1, f2, d2, reason));
    FreeEngines();
    ASSERT_EQ(boxes->boxes.size(), 2u);
    EXPECT_EQ(boxes->boxes[0].title, "Unexpected Error in modConvertFormats.GetFormatOfFile");
    EXPECT_EQ(boxes->boxes[1].title, "Unexpected Error in modConvertFormats.GetFormatOfBothFiles");
    EXPECT_NE(boxes->boxes[0].text.find("No: 429"), std::string::npos);
}

} // namespace
} // namespace orvane
