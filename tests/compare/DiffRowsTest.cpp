#include "compare/DiffRows.h"
#include "frame/ProgramFolder.h"
#include "results/DiffPaint.h"
#include "results/GridFill.h"
#include "support/Process.h"
#include "support/RecordingPrompter.h"
#include "support/TempDir.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <random>
#include <sstream>

namespace orvane {
namespace {

class ScriptedOutput : public DiffOutput {
  public:
    explicit ScriptedOutput(std::vector<std::string> lines) : lines_(std::move(lines)) {}
    long OutputLineCount() const override { return static_cast<long>(lines_.size()); }
    std::string OutputLine(long i) const override { return lines_.at(static_cast<size_t>(i)); }

  private:
    std::vector<std::string> lines_;
};

std::string Lines(int count, char tag) {
    std::string s;
    for (int i = 1; i <= count; ++i)
        s += std::string(1, tag) + std::to_string(i) + "\n";
    return s;
}

// Loads two files into fresh grids and applies the given hunk lines.
struct Applied {
    FlexGrid original, revised;
    DiffList list;
    bool ok = false;
};

void Apply(Applied& a, const std::string& left, const std::string& right,
           std::vector<std::string> hunks) {
    test::TempDir dir;
    gAppPath = ORVANE_BIN_DIR;
    ASSERT_TRUE(LoadFilesIntoGrids(dir.Write("a", left), dir.Write("b", right), a.original,
                                   a.revised, true));
    const Alignment alignment = AlignRows(ScriptedOutput(std::move(hunks)));
    a.ok = PaintAlignment(alignment, a.original, a.revised);
    a.list = alignment.Diffs;
}

std::string Kinds(const FlexGrid& g) {
    std::string k;
    for (long r = 1; r < g.Rows(); ++r) {
        const Colour c = g.RowBackColor(r);
        k += c == ColourOrphanRows   ? 'o'
             : c == ColourDifferRows ? 'c'
             : g.RowText(r).empty()  ? '_'
                                     : '.';
    }
    return k;
}

TEST(DiffRows, WorkedExampleOfThreeHunks) {
    Applied a;
    Apply(a, Lines(8, 'a'), Lines(9, 'b'),
          {"2c2,3", "< a2", "---", "> b2", "> b3", "4d4", "< a4", "7a8", "> b8"});
    ASSERT_TRUE(a.ok);
    EXPECT_EQ(
        a.list,
        (DiffList{{2, 2, DiffKind::Changed}, {5, 1, DiffKind::Orphan}, {9, 1, DiffKind::Orphan}}));
    EXPECT_EQ(a.original.Rows(), 12); // ten data rows, the fixed row and the trailing blank row
    EXPECT_EQ(a.revised.Rows(), 12);
    EXPECT_EQ(Kinds(a.original), ".cc.o..._._");
    EXPECT_EQ(Kinds(a.revised), ".cc._...o._");
    EXPECT_EQ(a.original.RowText(10), " 8:a8");
    EXPECT_EQ(a.revised.RowText(10), " 9:b9");
}

TEST(DiffRows, ChangedAndAddedAtTheEnd) {
    Applied a;
    Apply(a, "A\nB\nC\nD\n", "A\nX\nC\nD\nE\n", {"2c2", "4a5"});
    ASSERT_TRUE(a.ok);
    EXPECT_EQ(a.list, (DiffList{{2, 1, DiffKind::Changed}, {5, 1, DiffKind::Orphan}}));
    EXPECT_EQ(a.original.Rows(), 7);
    EXPECT_EQ(a.revised.Rows(), 7);
    EXPECT_EQ(a.original.RowText(5), "");
    EXPECT_EQ(a.original.RowText(6), ""); // the trailing blank row stays last
    EXPECT_EQ(a.revised.RowText(5), " 5:E");
}

struct HunkCase {
    const char* name;
    int left, right;
    std::vector<std::string> hunks;
    const char* originalKinds;
    const char* revisedKinds;
    DiffList list;
};

void PrintTo(const HunkCase& c, std::ostream* os) {
    *os << c.name;
}

class Hunks : public ::testing::TestWithParam<HunkCase> {};

TEST_P(Hunks, AlignAndColourTheRows) {
    const HunkCase& c = GetParam();
    Applied a;
    Apply(a, Lines(c.left, 'a'), Lines(c.right, 'b'), c.hunks);
    ASSERT_TRUE(a.ok);
    EXPECT_EQ(Kinds(a.original), c.originalKinds);
    EXPECT_EQ(Kinds(a.revised), c.revisedKinds);
    EXPECT_EQ(a.list, c.list);
}

INSTANTIATE_TEST_SUITE_P(
    Edges, Hunks,
    ::testing::Values(
        HunkCase{"AddedAtTop", 2, 4, {"0a1,2"}, "__.._", "oo.._", {{1, 2, DiffKind::Orphan}}},
        HunkCase{"DeletedAtTop", 4, 2, {"1,2d0"}, "oo.._", "__.._", {{1, 2, DiffKind::Orphan}}},
        HunkCase{"ThreeAgainstOne",
                 8,
                 6,
                 {"5,7c5"},
                 "....ccc._",
                 "....ccc._",
                 {{5, 3, DiffKind::Changed}}},
        HunkCase{
            "OneAgainstThree", 3, 5, {"2c2,4"}, ".ccc._", ".ccc._", {{2, 3, DiffKind::Changed}}},
        HunkCase{"EqualCountsInsertNothing",
                 5,
                 5,
                 {"3,4c3,4"},
                 "..cc._",
                 "..cc._",
                 {{3, 2, DiffKind::Changed}}},
        HunkCase{
            "AddedAfterTheLastLine", 2, 3, {"2a3"}, "..__", "..o_", {{3, 1, DiffKind::Orphan}}},
        HunkCase{"EmptyOriginal", 0, 2, {"0a1,2"}, "___", "oo_", {{1, 2, DiffKind::Orphan}}},
        HunkCase{"TextLinesAreNotRead",
                 3,
                 3,
                 {"< 9a9", "---", "> 1c1", "\\ No newline", "2c2"},
                 ".c._",
                 ".c._",
                 {{2, 1, DiffKind::Changed}}}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(DiffRows, AHunkOutsideTheGridsEvensThemUpAndSaysSo) {
    test::ScopedRecordingPrompter prompter;
    Applied a;
    Apply(a, Lines(3, 'a'), Lines(5, 'b'), {"2c2", "9a10,12"});
    EXPECT_FALSE(a.ok);
    EXPECT_EQ(a.original.Rows(), a.revised.Rows());
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].title, "Show File Differences");
    EXPECT_EQ(prompter->boxes[0].icon, MsgIcon::Critical);
    EXPECT_EQ(prompter->boxes[0].text, "Not able to show the file differences.\r\n\r\nThis can "
                                       "happen if the files contain non-ASCII characters.");
}

TEST(DiffRows, AnUnreadableNumberFailsTheSameWay) {
    test::ScopedRecordingPrompter prompter;
    Applied a;
    Apply(a, Lines(3, 'a'), Lines(3, 'b'), {"2x,c3"});
    EXPECT_FALSE(a.ok);
    EXPECT_EQ(prompter->boxes.size(), 1u);
}

TEST(DiffItems, ColoursOfTheKinds) {
    EXPECT_EQ(DiffColour(DiffKind::Orphan), 10605047u);
    EXPECT_EQ(DiffColour(DiffKind::Changed), 14270416u);
}

// With GNU diff as the source of hunks, the aligned grids must rebuild both files, face equal
// lines with equal lines, and list exactly the coloured blocks.
std::vector<std::string> GnuDiff(const std::string& a, const std::string& b) {
    std::vector<std::string> lines;
    std::istringstream out(test::RunProgram({"diff", a, b}).out);
    for (std::string line; std::getline(out, line);)
        lines.push_back(line);
    return lines;
}

std::string Rebuild(const FlexGrid& g) {
    std::string text;
    for (long r = 1; r < g.Rows(); ++r)
        if (!g.RowText(r).empty()) text += LineTextOfCell(g.RowText(r), true) + "\n";
    return text;
}

TEST(DiffRows, AlignedGridsAgreeWithGnuDiffOnRandomPairs) {
    std::mt19937 rng(11);
    test::TempDir dir;
    gAppPath = ORVANE_BIN_DIR;
    for (int round = 0; round < 60; ++round) {
        std::string left, right;
        const int n = static_cast<int>(rng() % 40), m = static_cast<int>(rng() % 40);
        for (int i = 0; i < n; ++i)
            left += "L" + std::to_string(rng() % 6) + "\n";
        for (int i = 0; i < m; ++i)
            right += "L" + std::to_string(rng() % 6) + "\n";
        const std::string a = dir.Write("a", left), b = dir.Write("b", right);
        FlexGrid original, revised;
        ASSERT_TRUE(LoadFilesIntoGrids(a, b, original, revised, true));
        const Alignment alignment = AlignRows(ScriptedOutput(GnuDiff(a, b)));
        ASSERT_TRUE(alignment.Complete);
        ASSERT_TRUE(PaintAlignment(alignment, original, revised));
        const DiffList& list = alignment.Diffs;
        ASSERT_EQ(original.Rows(), revised.Rows());
        EXPECT_EQ(Rebuild(original), left);
        EXPECT_EQ(Rebuild(revised), right);
        long coloured = 0;
        for (long r = 1; r < original.Rows(); ++r) {
            const bool plain = !original.RowBackColor(r) && !revised.RowBackColor(r);
            if (plain) {
                EXPECT_EQ(LineTextOfCell(original.RowText(r), true),
                          LineTextOfCell(revised.RowText(r), true));
            }
            coloured += !plain;
        }
        long listed = 0;
        for (const DiffItem& item : list) {
            EXPECT_GE(item.FirstRow, 1);
            listed += item.RowCount;
        }
        EXPECT_EQ(listed, coloured);
    }
}

} // namespace
} // namespace orvane
