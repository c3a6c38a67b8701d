// The one-window output: the report control in the place of the grids, and the commands that go
// to it while it is shown.
#include "frame/ErrorReporter.h"
#include "frame/Prompter.h"
#include "results/Commands.h"
#include "results/LineDetailView.h"
#include "results/frmFileDiffs.h"
#include "results/report/DiffReportControl.h"
#include "settings/Session.h"

#include <QEventLoop>
#include <QPrinterInfo>
#include <QTimer>

namespace orvane {
namespace {

// How often the wait for the report looks whether it is done; the window paints in between.
constexpr int kReportPollMs = 15;

} // namespace

// Made on first use: the web engine behind it costs start-up time and memory that a user of the
// grids alone never needs to pay.
DiffReportControl& frmFileDiffs::ReportControl() {
    if (!ctlDiffReport) {
        ctlDiffReport = new DiffReportControl(client_);
        ctlDiffReport->hide();
        ctlDiffReport->SetStyle(4);
        ctlDiffReport->SetProductTitle("Orvane");
        ctlDiffReport->SetBanner("Click Here to navigate differences", "", "Orvane",
                                 "Orvane Difference Report");
        ApplyReportFont();
    }
    return *ctlDiffReport;
}

bool frmFileDiffs::ReportShown() const {
    return ctlDiffReport && !ctlDiffReport->isHidden();
}

void frmFileDiffs::ApplyReportFont() {
    if (!ctlDiffReport) return;
    ctlDiffReport->SetReportFont(QString::fromStdString(GridFontName(kGrdOriginalFile)),
                                 static_cast<int>(GridFontSize(kGrdOriginalFile) + 0.5),
                                 GridFontBold(kGrdOriginalFile), GridFontItalic(kGrdOriginalFile));
}

int frmFileDiffs::CompareAndDisplayWithReport(const ReportRequest& r) {
    for (LineDetailView* box : rtfLineDiff)
        box->Clear();
    DoEvents();
    DiffReportControl& report = ReportControl();
    try {
        report.SetDiffOptions(true, true, false, r.IgnoreFormatting, r.IgnoreCase, r.WhiteSpaceMode,
                              ChoiceIndex(r.Level));
        report.SetOriginalSource(r.Original);
        report.SetRevisedSource(r.Revised);
        report.SetShowNumbers(r.ShowNumbers);
        report.SetCompareKind(r.CompareKind);
        report.StartCompare();
        // No time limit: the report answers when it is done, and the window stays usable.
        while (!report.IsDone()) {
            QEventLoop wait;
            QTimer::singleShot(kReportPollMs, &wait, &QEventLoop::quit);
            wait.exec();
        }
    } catch (...) {
        ReportUnexpectedError("frmFileDiffs.CompareAndDisplayWithReport");
    }
    return report.GetResult();
}

void frmFileDiffs::ShowReportResults() {
    SetCommandsForResults();
    // Bookmarks live in the grids.
    commands_->Enable("mnuFileToggleBookmark", false);
    DoEvents();
    if (ctlDiffReport->DifferenceCount() >= 1) ctlDiffReport->GoToFirstDifference();
}

void frmFileDiffs::StepInReport(bool forward) {
    const int current = ctlDiffReport->CurrentDifference();
    const bool more = forward ? current != ctlDiffReport->DifferenceCount() - 1 : current != 0;
    if (!more) {
        // Said also in a hidden window: the report path has no unattended navigation.
        prompter().MsgBox("No more differences", MsgIcon::Information,
                          forward ? "Next Difference" : "Previous Difference");
        return;
    }
    forward ? ctlDiffReport->GoToNextDifference() : ctlDiffReport->GoToPreviousDifference();
}

bool frmFileDiffs::FindInReport(const std::string& text, bool first, bool forward) {
    const QString t = QString::fromStdString(text);
    return first ? ctlDiffReport->FindText(t) : ctlDiffReport->FindAgain(t, forward);
}

// The report prints itself on the system's default printer, as it looks on screen.
void frmFileDiffs::PrintShownReport() {
    const QString printer = QPrinterInfo::defaultPrinterName();
    if (printer.isEmpty()) {
        prompter().MsgBox("There are no printers set up on your computer.\r\nGo to Control Panel "
                          "--> Printers to add a printer.",
                          MsgIcon::Critical, "Print");
        return;
    }
    SetMousePointer(PointerHourglass);
    const bool printed = ctlDiffReport->PrintReport(printer.toStdString());
    SetMousePointer(PointerDefault);
    if (!printed)
        prompter().MsgBox("The report could not be printed on " + printer.toStdString() + ".",
                          MsgIcon::Exclamation, "Print");
}

void frmFileDiffs::PrintShownReportToPdf() {
    std::string file;
    if (!prompter().SaveFileDialog("Print to PDF", "PDF files (*.pdf)", file)) return;
    SetMousePointer(PointerHourglass);
    const bool printed = ctlDiffReport->PrintToPdf(file);
    SetMousePointer(PointerDefault);
    if (!printed)
        prompter().MsgBox("The report could not be written to " + file + ".", MsgIcon::Exclamation,
                          "Print to PDF");
}

} // namespace orvane
