// The window's side of a comparison: what the compare driver asks of it.
#include "compare/FileDiffEngine.h"
#include "dialogs/frmWhatAndHow.h"
#include "frame/ErrorReporter.h"
#include "frame/Prompter.h"
#include "results/DiffPaint.h"
#include "results/GridFill.h"
#include "results/RunGate.h"
#include "results/frmFileDiffs.h"
#include "settings/Session.h"

#include <QComboBox>

namespace orvane {

void frmFileDiffs::CompareFiles(bool SkipDialogue) {
    RunGate::Hold run(*gate_);
    orvane::CompareFiles(*this, session_.ViewOptions, session_.ExtractionOptions, fileDiff_,
                         SkipDialogue);
}

std::string frmFileDiffs::InputText(Side side) const {
    const QComboBox* box = side == Side::Original ? cboOriginalFile : cboRevisedFile;
    return box->currentText().toStdString();
}

// The dialogue, and the menu checks that follow what it wrote.
void frmFileDiffs::OfferComparisonDialogue() {
    frmWhatAndHow dialogue(session_.ViewOptions, this);
    ShowModal(dialogue);
    DoEvents();
    const cViewFileDiffsOptions& o = session_.ViewOptions;
    for (int i = 0; i < 3; ++i)
        SetMenuChecked("mnuOptionsComparisonModeOption", i, i == ChoiceIndex(o.ComparisonMode));
    for (int i = 0; i < 2; ++i)
        SetMenuChecked("mnuOptionsOutputFormatOption", i, i == ChoiceIndex(o.OutputFormat));
    SetMenuChecked("mnuOptionsShowDialogue", -1, o.ShowDialogueBeforeComparison);
}

void frmFileDiffs::SetBusyPointer(bool busy) {
    SetMousePointer(busy ? PointerHourglass : PointerDefault);
}

void frmFileDiffs::PrepareForNewComparison() {
    PrepareGridForNewComparison(originalGrid_, revisedGrid_);
    PrepareDiffsBarForNewComparison();
}

void frmFileDiffs::ThawDisplay() {
    originalGrid_.SetRedraw(true);
    revisedGrid_.SetRedraw(true);
}

bool frmFileDiffs::FillFromAlignedRows(const std::string& original, const std::string& revised,
                                       const Alignment& alignment) {
    try {
        ResetDiffState();
        const bool loaded = LoadFilesIntoGrids(original, revised, originalGrid_, revisedGrid_,
                                               session_.ViewOptions.ShowLineNumbers);
        SetMousePointer(PointerDefault);
        if (!loaded) return false;
        if (!PaintAlignment(alignment, originalGrid_, revisedGrid_)) return false;
        DiffList_ = alignment.Diffs;
        if (originalGrid_.Rows() > 1 && revisedGrid_.Rows() > 1) {
            originalGrid_.SetRow(1);
            revisedGrid_.SetRow(1);
            UpdateRowArrow();
            MarkCurrentRowInDiffsBar();
        }
        SetCommandsForResults();
        return true;
    } catch (...) {
        ReportUnexpectedError("frmFileDiffs.DisplayComparisonResultsInGrid");
        return false;
    }
}

void frmFileDiffs::ShowFirstDifference() {
    ShowLineDiffPrompt();
    mnuFileShowFirstDiff_Click();
}

} // namespace orvane
