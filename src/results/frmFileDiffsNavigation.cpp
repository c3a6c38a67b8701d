// Moving from difference to difference, and the difference bar that shows them all.
#include "frame/ErrorReporter.h"
#include "frame/Prompter.h"
#include "results/DiffBarView.h"
#include "results/Navigation.h"
#include "results/frmFileDiffs.h"
#include "results/report/DiffReportControl.h"

namespace orvane {

void frmFileDiffs::PrepareDiffsBarForNewComparison() {
    try {
        pctContainer->Clear();
    } catch (...) {
        ReportUnexpectedError("frmFileDiffs.PrepareDiffsBarForNewComparison");
    }
}

bool frmFileDiffs::DrawDiffBars() {
    try {
        pctContainer->ShowBands(
            DiffBarBands(DiffList_, originalGrid_.Rows() - 1, pctContainer->BarHeight()));
        return true;
    } catch (...) {
        ReportUnexpectedError("frmFileDiffs.DrawDiffBars");
        return false;
    }
}

void frmFileDiffs::MarkCurrentRowInDiffsBar() {
    try {
        pctContainer->ShowMark(
            DiffBarMarkY(originalGrid_.Row(), originalGrid_.Rows() - 1, pctContainer->BarHeight()));
    } catch (...) {
        ReportUnexpectedError("frmFileDiffs.MarkCurrentRowInDiffsBar");
    }
}

void frmFileDiffs::DiffsBar_MouseDown(float Y) {
    if (ReportShown()) return;
    if (ShowsPrompt(Side::Original)) {
        prompter().MsgBox("This feature only works when two files have been compared and there "
                          "are differences.",
                          MsgIcon::Information, "Navigate Differences");
        return;
    }
    pctContainer->ShowMark(RoundToInt32(Y));
    ScrollFilesToPointInDiffBar(Y);
}

// FollowRow without the mark: it stays where the mouse was pressed.
void frmFileDiffs::ScrollFilesToPointInDiffBar(float Y) {
    try {
        const long target =
            DiffBarTargetRow(Y, originalGrid_.Rows() - 1, pctContainer->BarHeight());
        if (!originalGrid_.RowIsVisible(target)) originalGrid_.SetTopRow(target);
        originalGrid_.SetRow(target);
        revisedGrid_.SetRow(target);
        UpdateRowArrow();
        ShowDetailForCurrentRow();
    } catch (...) {
        ReportUnexpectedError("frmFileDiffs.ScrollFilesToPointInDiffBar");
    }
}

void frmFileDiffs::FollowRow(long Row) {
    if (!originalGrid_.RowIsVisible(Row)) originalGrid_.SetTopRow(Row);
    originalGrid_.SetRow(Row);
    revisedGrid_.SetRow(Row);
    UpdateRowArrow();
    MarkCurrentRowInDiffsBar();
    ShowDetailForCurrentRow();
}

// The scan holds the hourglass for its length, which is what turns away a second request.
long frmFileDiffs::ScanForDiff(bool forward, const char* location) {
    if (mousePointer_ == PointerHourglass) return kNavigationBusy;
    SetMousePointer(PointerHourglass);
    long result = kNoMoreDiffs;
    try {
        const long current = originalGrid_.Row();
        result = forward ? NextDiffRow(DiffList_, current) : PreviousDiffRow(DiffList_, current);
    } catch (...) {
        ReportUnexpectedError(location);
    }
    SetMousePointer(PointerDefault);
    return result;
}

long frmFileDiffs::GetNextDiff() {
    return ScanForDiff(true, "frmFileDiffs.GetNextDiff");
}

long frmFileDiffs::GetPreviousDiff() {
    return ScanForDiff(false, "frmFileDiffs.GetPreviousDiff");
}

void frmFileDiffs::StepToDiff(bool forward) {
    if (mousePointer_ == PointerHourglass) return;
    if (ReportShown()) return StepInReport(forward);
    const long row = forward ? GetNextDiff() : GetPreviousDiff();
    if (row != kNoMoreDiffs && row != kNavigationBusy)
        FollowRow(row);
    else if (isVisible())
        prompter().MsgBox("No more differences", MsgIcon::Information,
                          forward ? "Next Difference" : "Previous Difference");
}

void frmFileDiffs::mnuFileShowNextDiff_Click() {
    StepToDiff(true);
}
void frmFileDiffs::mnuFileShowPreviousDiff_Click() {
    StepToDiff(false);
}

void frmFileDiffs::ShowFirstOrLast(bool first) {
    if (mousePointer_ == PointerHourglass) return;
    if (ReportShown()) {
        first ? ctlDiffReport->GoToFirstDifference() : ctlDiffReport->GoToLastDifference();
        return;
    }
    try {
        const long row = DiffRowAt(DiffList_, first ? 1 : DiffList_.size());
        if (!originalGrid_.RowIsVisible(row)) {
            originalGrid_.SetTopRow(row);
            // At the end of a comparison Redraw is still off; a second try turns it on.
            if (first && originalGrid_.TopRow() != row) {
                originalGrid_.SetRedraw(true);
                revisedGrid_.SetRedraw(true);
                originalGrid_.SetTopRow(row);
            }
        }
        originalGrid_.SetRow(row);
        revisedGrid_.SetRow(row);
        UpdateRowArrow();
        MarkCurrentRowInDiffsBar();
        ShowDetailForCurrentRow();
    } catch (...) {
        ReportUnexpectedError(first ? "frmFileDiffs.mnuFileShowFirstDiff"
                                    : "frmFileDiffs.mnuFileShowLastDiff");
    }
}

void frmFileDiffs::mnuFileShowFirstDiff_Click() {
    ShowFirstOrLast(true);
}
void frmFileDiffs::mnuFileShowLastDiff_Click() {
    ShowFirstOrLast(false);
}

} // namespace orvane
