#include "printing/RecordingSurface.h"
#include "support/RecordingPrompter.h"

#include <gtest/gtest.h>

namespace orvane::test {
namespace {

using modDiffPrint::HeadingLine;
using modDiffPrint::PrintGrid;

std::vector<std::string> Texts(const std::vector<PrintedLine>& lines) {
    std::vector<std::string> texts;
    for (const PrintedLine& l : lines)
        texts.push_back(l.text);
    return texts;
}

TEST(PrintHeading, PartsFollowTheCheckBoxes) {
    struct Case {
        bool pages, date;
        const char* heading;
    } cases[] = {
        {true, true, "Orvane  - Page 3  [1/2/2026 9:00]"},
        {true, false, "Orvane  - Page 3"},
        {false, true, "Orvane  -   [1/2/2026 9:00]"},
        {false, false, "Orvane  - "},
    };
    for (const Case& c : cases)
        EXPECT_EQ(HeadingLine(3, "1/2/2026 9:00", c.pages, c.date), c.heading);
}

TEST(PrintHeader, BoldHeadingItalicNameRuleThenPlain) {
    RecordingSurface s;
    modDiffPrint::PrintGridHeader(s, "/in/a.html", "D", true, false);
    ASSERT_EQ(s.lines.size(), 4u);
    EXPECT_EQ(s.lines[0].text, "Orvane  - Page 1");
    EXPECT_TRUE(s.lines[0].bold);
    EXPECT_EQ(s.lines[0].y, 0);
    EXPECT_EQ(s.lines[1].text, "/in/a.html");
    EXPECT_TRUE(s.lines[1].italic);
    EXPECT_FALSE(s.lines[1].bold);
    EXPECT_EQ(s.lines[1].y, RecordingSurface::kHeight * 0.05);
    // A blank line, the rule across the page, another blank line.
    ASSERT_EQ(s.rules.size(), 1u);
    EXPECT_EQ(s.rules[0], s.lines[2].y + RecordingSurface::kLineHeight);
    EXPECT_FALSE(s.bold || s.italic || s.underline);
    EXPECT_EQ(s.fonts.back(), "Courier New");
}

// The page holds 10 lines of 1000 twips; the header takes the first 3.5, and no line may start
// at or below 9000: six body lines a page.
TEST(PrintGrid, PagesBreakAboveTheBottomTenthWithAHeaderEach) {
    RecordingSurface s;
    FakeGrid grid = NumberedGrid(13, 0);
    EXPECT_TRUE(PrintGrid(s, grid, "/f.html", "D", true, true, WhichLines::All));
    const auto body = s.Body();
    ASSERT_EQ(body.size(), 13u);
    std::vector<long> perPage(4, 0);
    for (const PrintedLine& l : body) {
        EXPECT_LT(l.y, RecordingSurface::kHeight * 0.9) << l.text;
        ++perPage[static_cast<std::size_t>(l.page)];
    }
    EXPECT_EQ(perPage, (std::vector<long>{0, 6, 6, 1}));
    std::vector<std::string> headings;
    for (const PrintedLine& l : s.lines)
        if (l.y == 0) headings.push_back(l.text);
    EXPECT_EQ(headings, (std::vector<std::string>{"Orvane  - Page 1  [D]", "Orvane  - Page 2  [D]",
                                                  "Orvane  - Page 3  [D]"}));
    EXPECT_EQ(s.documents, 1);
    EXPECT_EQ(body.front().text, "line 1"); // row 0 is never printed
}

TEST(PrintGrid, WhichLinesChoosesAndDifferingLinesAreBold) {
    struct Case {
        WhichLines lines;
        std::vector<std::string> printed;
    } cases[] = {
        {WhichLines::All, {"line 1", "line 2", "line 3", "line 4", "line 5"}},
        {WhichLines::Differing, {"line 2", "line 4"}},
        {WhichLines::Identical, {"line 1", "line 3", "line 5"}},
    };
    for (const Case& c : cases) {
        RecordingSurface s;
        FakeGrid grid = NumberedGrid(5, 2);
        PrintGrid(s, grid, "/f", "D", true, true, c.lines);
        const auto body = s.Body();
        EXPECT_EQ(Texts(body), c.printed);
        for (const PrintedLine& l : body) {
            const bool differs = (l.text.back() - '0') % 2 == 0;
            EXPECT_EQ(l.bold, differs) << l.text;
            EXPECT_FALSE(l.italic);
        }
    }
}

TEST(PrintGrid, NothingToPrintStillGivesOneHeaderPage) {
    for (FakeGrid grid : {NumberedGrid(40, 0), FakeGrid()}) {
        RecordingSurface s;
        PrintGrid(s, grid, "/f", "D", true, false, WhichLines::Differing);
        EXPECT_TRUE(s.Body().empty());
        EXPECT_EQ(s.lines.front().text, "Orvane  - Page 1");
        EXPECT_EQ(s.lines.back().page, 1);
        EXPECT_EQ(s.documents, 1);
    }
}

TEST(PrintGrid, ALongLineIsOnePrintAndAFailureStillGivesTrue) {
    RecordingSurface s;
    FakeGrid grid({{std::string(5000, 'x'), 1}});
    PrintGrid(s, grid, "/f", "D", false, false, WhichLines::All);
    ASSERT_EQ(s.Body().size(), 1u);
    EXPECT_EQ(s.Body()[0].text.size(), 5000u);
    EXPECT_TRUE(s.Body()[0].bold);

    ScopedRecordingPrompter prompter;
    struct Broken : RecordingSurface {
        void NewPage() override { throw std::runtime_error("out of paper"); }
    } broken;
    FakeGrid many = NumberedGrid(30, 0);
    EXPECT_TRUE(PrintGrid(broken, many, "/f", "D", true, true, WhichLines::All));
    EXPECT_EQ(broken.Body().size(), 6u);
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].title, "Unexpected Error in modDiffPrint.PrintGrid");
}

TEST(PrintFileDiffs, EachFileIsItsOwnDocumentAndTheGridsKeepTheirRows) {
    FakeSource source(NumberedGrid(8, 0, "old "), NumberedGrid(8, 3, "new "));
    source.original.row = 5;
    source.revised.row = 7;
    RecordingSurface s;
    modDiffPrint::PrintFileDiffs(source, s, true, true, true, true, WhichLines::All);
    EXPECT_EQ(s.documents, 2);
    std::vector<std::string> names, headings;
    for (const PrintedLine& l : s.lines) {
        if (l.italic && l.text != " ") names.push_back(l.text);
        if (l.y == 0) headings.push_back(l.text);
    }
    EXPECT_EQ(names, (std::vector<std::string>{"/in/old.html", "/in/old.html", "/in/new.html",
                                               "/in/new.html"}));
    // Page numbers start from 1 in each document.
    EXPECT_EQ(headings[2], "Orvane  - Page 1  [23/11/2026 16:05]");
    EXPECT_EQ(source.original.row, 5);
    EXPECT_EQ(source.revised.row, 7);
    EXPECT_EQ(source.hourglass, (std::vector<bool>{true, false}));

    RecordingSurface revisedOnly;
    modDiffPrint::PrintFileDiffs(source, revisedOnly, false, true, false, false,
                                 WhichLines::Differing);
    EXPECT_EQ(Texts(revisedOnly.Body()), (std::vector<std::string>{"new 3", "new 6"}));
}

} // namespace
} // namespace orvane::test
