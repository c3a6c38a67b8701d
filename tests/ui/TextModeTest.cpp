#include "tests/ui/DriverFixture.h"

#include <filesystem>

namespace orvane::test {
namespace {

class TextModeTest : public DriverTest {
  protected:
    void SetUp() override {
        DriverTest::SetUp();
        gViewOptions->ComparisonMode = ModeText;
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
    EXPECT_TRUE(gViewOptions->RevisedTextExtracted);
    EXPECT_FALSE(std::filesystem::exists(gViewOptions->RevisedTextFile));
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
    gExtractionOptions->EnginePreference = 1;
    Compare(dir.Write("a.html", "<p>a</p>"), dir.Write("b.html", "<p>b</p>"));
    ASSERT_EQ(prompter->boxes.size(), 2u);
    EXPECT_EQ(prompter->boxes[0].title,
              "Unexpected Error in modConvertFormats.ConvertFileIfNeeded");
    EXPECT_EQ(prompter->boxes[1].title, "Original File Text Extraction Failed");
    EXPECT_EQ(prompter->boxes[1].text, "");
}

} // namespace
} // namespace orvane::test
