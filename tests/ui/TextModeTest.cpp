#include "tests/ui/DriverFixture.h"

#include "intake/Fixtures.h"
#include "office/OfficeFixture.h"

#include <algorithm>
#include <filesystem>

namespace orvane::test {
namespace {

class TextModeTest : public DriverTest {
  protected:
    void SetUp() override {
        DriverTest::SetUp();
        session.ViewOptions.ComparisonMode = ComparisonMode::Text;
    }
};

TEST_F(TextModeTest, MarkupChangesAloneLeaveTheTextIdentical) {
    Compare(dir.Write("a.html", "<p>Hello <b>world</b></p>\n"),
            dir.Write("b.html", "<div class=\"x\">Hello <i>world</i></div>\n"));
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].text, "The files are identical");
}

TEST_F(TextModeTest, TheTextIsComparedAndItsFilesRemoved) {
    Compare(dir.Write("a.html", "<h1>Menu</h1><p>Bread</p><p>Rolls</p>"),
            dir.Write("b.html", "<h1>Menu</h1><p>Bread</p><p>Cakes</p>"));
    EXPECT_TRUE(prompter->boxes.empty());
    ASSERT_EQ(window->Diffs().size(), 1u);
    bool sawCakes = false;
    for (long r = 1; r < window->RevisedGrid().Rows(); ++r)
        sawCakes |= window->RevisedGrid().RowText(r).find("Cakes") != std::string::npos;
    EXPECT_TRUE(sawCakes);
    for (long r = 1; r < window->RevisedGrid().Rows(); ++r)
        EXPECT_EQ(window->RevisedGrid().RowText(r).find("<p>"), std::string::npos);
    EXPECT_TRUE(session.ViewOptions.RevisedTextExtracted);
    EXPECT_FALSE(std::filesystem::exists(session.ViewOptions.RevisedTextFile));
}

TEST_F(TextModeTest, OnlyPagesAndTextCanGiveText) {
    Compare(dir.Write("a.png", std::string("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16)),
            dir.Write("b.html", "<p>x</p>"));
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].title, "Original File Text Extraction Failed");
    EXPECT_EQ(prompter->boxes[0].text, "Only HTML and ASCII text files may be compared.");
    EXPECT_TRUE(Idle());
}

TEST_F(TextModeTest, TheOfficeSuiteFirstFailsAsOnAMachineWithoutIt) {
    TempDir noSuite;
    ScopedPath path(noSuite.Path());
    session.ExtractionOptions.EnginePreference = 1;
    Compare(dir.Write("a.html", "<p>a</p>"), dir.Write("b.html", "<p>b</p>"));
    ASSERT_EQ(prompter->boxes.size(), 2u);
    EXPECT_EQ(prompter->boxes[0].title,
              "Unexpected Error in modConvertFormats.ConvertFileIfNeeded");
    EXPECT_EQ(prompter->boxes[1].title, "Original File Text Extraction Failed");
    EXPECT_EQ(prompter->boxes[1].text, "");
}

TEST_F(TextModeTest, TheOfficeSuiteFirstComparesWhatThePagesSay) {
    ASSERT_FALSE(RealSuite().empty());
    session.ExtractionOptions.EnginePreference = 1;
    Compare(dir.Write("a.html", "<h1>Menu</h1><p>Bread<br>Rolls</p>"),
            dir.Write("b.html", "<h1>Menu</h1><p>Bread<br>Cakes</p>"));
    EXPECT_TRUE(prompter->boxes.empty());
    ASSERT_EQ(window->Diffs().size(), 1u);
    std::vector<std::string> rows;
    for (long r = 1; r < window->RevisedGrid().Rows(); ++r)
        rows.push_back(window->RevisedGrid().RowText(r));
    EXPECT_NE(std::find_if(rows.begin(), rows.end(),
                           [](const std::string& t) { return t.find("Cakes") != t.npos; }),
              rows.end());
    for (const std::string& t : rows)
        EXPECT_EQ(t.find("<br>"), std::string::npos) << t;
}

// A word-processor document is refused before any engine, though the suite could read it.
TEST_F(TextModeTest, ADocxIsRefusedWithoutStartingTheSuite) {
    TempDir fakes;
    WriteFakeSuite(fakes, "echo run > " + fakes.Path() + "started\n");
    ScopedPath path(fakes.Path());
    session.ExtractionOptions.EnginePreference = 1;
    ZipBuilder docx;
    docx.Add("[Content_Types].xml", "<Types/>");
    docx.Add("word/document.xml", "<w:document/>");
    docx.WriteTo(dir.Path() + "letter.docx");
    Compare(dir.Path() + "letter.docx", dir.Write("b.html", "<p>x</p>"));
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].text, "Only HTML and ASCII text files may be compared.");
    EXPECT_FALSE(std::filesystem::exists(fakes.Path() + "started"));
}

} // namespace
} // namespace orvane::test
