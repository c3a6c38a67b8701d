// The detail pane: the current row's two lines in full, with what differs in red.
#include "compare/StringDiffs.h"
#include "compare/Words.h"
#include "frame/ErrorReporter.h"
#include "frame/Prompter.h"
#include "results/DetailPainter.h"
#include "results/DetailRuns.h"
#include "results/FlexGridView.h"
#include "results/GridFill.h"
#include "results/LineDetailView.h"
#include "results/RunGate.h"
#include "results/frmFileDiffs.h"
#include "settings/Session.h"
#include "settings/ViewOptions.h"

#include <QApplication>

namespace orvane {
namespace {

// The screen's hourglass while a line pair is compared; the window's own pointer, which the
// commands test, is left alone.
class ScreenHourglass {
  public:
    ScreenHourglass() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~ScreenHourglass() { QApplication::restoreOverrideCursor(); }
    ScreenHourglass(const ScreenHourglass&) = delete;
    ScreenHourglass& operator=(const ScreenHourglass&) = delete;
};

} // namespace

std::string frmFileDiffs::CurrentLine(Side side) const {
    const FlexGrid& grid = side == Side::Original ? originalGrid_ : revisedGrid_;
    return LineTextOfCell(grid.Text(), session_.ViewOptions.ShowLineNumbers);
}

void frmFileDiffs::ShowDetailForCurrentRow() {
    RunGate::Hold run(*gate_); // a long line's marks take a while, and events run meanwhile
    if (RowsHaveNoColour() || EitherLineEmpty())
        DisplaySelectedLinesInRTF();
    else
        DisplayLineDiffs();
}

void frmFileDiffs::DisplayLineDiffs() {
    switch (session_.ViewOptions.ComparisonLevel) {
    case ComparisonLevel::Character:
        DisplayLineDiffsCharLevel();
        break;
    case ComparisonLevel::Word:
        DisplayLineDiffsWordLevel();
        break;
    default:
        DisplayLineDiffsLineLevel();
        break;
    }
}

// An orphan line is red facing an empty box; the lines of a same row are black.
void frmFileDiffs::DisplaySelectedLinesInRTF() {
    try {
        const std::string original = CurrentLine(Side::Original);
        const std::string revised = CurrentLine(Side::Revised);
        PaintDetail(*rtfLineDiff[0], DecodeCellText(original, originalGrid_.Encoding()),
                    !original.empty() && revised.empty());
        PaintDetail(*rtfLineDiff[1], DecodeCellText(revised, revisedGrid_.Encoding()),
                    !revised.empty() && original.empty());
    } catch (...) {
        ReportUnexpectedError("frmFileDiffs.DisplaySelectedLinesInRTF");
    }
}

void frmFileDiffs::DisplayLineDiffsLineLevel() {
    ScreenHourglass hourglass;
    try {
        PaintDetail(*rtfLineDiff[0],
                    DecodeCellText(CurrentLine(Side::Original), originalGrid_.Encoding()), true);
        DoEvents();
        PaintDetail(*rtfLineDiff[1],
                    DecodeCellText(CurrentLine(Side::Revised), revisedGrid_.Encoding()), true);
        DoEvents();
    } catch (...) {
        ReportUnexpectedError("frmFileDiffs.DisplayLineDiffsLineLevel");
    }
}

} // namespace orvane

namespace orvane {

void frmFileDiffs::DisplayLineDiffsCharLevel() {
    ScreenHourglass hourglass;
    try {
        const QString original =
            DecodeCellText(CurrentLine(Side::Original), originalGrid_.Encoding());
        const QString revised = DecodeCellText(CurrentLine(Side::Revised), revisedGrid_.Encoding());
        lcs::Marks marks1, marks2;
        modDiff::StringDiffsCharLevel(ToUtf32(original), ToUtf32(revised),
                                      session_.ViewOptions.IgnoreCase, marks1, marks2);
        PaintDetail(*rtfLineDiff[0], original, CharacterRuns(marks1));
        DoEvents();
        PaintDetail(*rtfLineDiff[1], revised, CharacterRuns(marks2));
        DoEvents();
    } catch (...) {
        ReportUnexpectedError("frmFileDiffs.DisplayLineDiffsCharLevel");
    }
}

// The words are shown joined by one blank each, as the comparison saw them.
void frmFileDiffs::DisplayLineDiffsWordLevel() {
    ScreenHourglass hourglass;
    try {
        const std::u32string texts[2] = {
            ToUtf32(DecodeCellText(CurrentLine(Side::Original), originalGrid_.Encoding())),
            ToUtf32(DecodeCellText(CurrentLine(Side::Revised), revisedGrid_.Encoding()))};
        lcs::Marks marks[2];
        modDiff::StringDiffsWordLevel(texts[0], texts[1], session_.ViewOptions.IgnoreCase, marks[0],
                                      marks[1]);
        for (int side = 0; side < 2; ++side) {
            strutil::WordTable words;
            if (strutil::ParseWords(texts[side], U" ", words) < 0)
                throw RuntimeError(err::InvalidCall,
                                   "Dx - " + strutil::ErrorText(strutil::LastErrorCode()));
            std::u32string shown;
            const std::vector<WordRun> runs = WordRuns(words, marks[side], shown);
            PaintDetail(*rtfLineDiff[side], FromUtf32(shown), runs);
        }
    } catch (...) {
        ReportUnexpectedError("frmFileDiffs.DisplayLineDiffsWordLevel");
    }
    DoEvents();
}

} // namespace orvane
