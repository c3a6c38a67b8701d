#include "results/frmFileDiffs.h"
#include "results/RunGate.h"

#include "compare/FileDiffEngine.h"
#include "frame/CommandLine.h"
#include "frame/EngineLibraries.h"
#include "frame/ErrorReporter.h"
#include "frame/KWCommon.h"
#include "frame/ProgramFolder.h"
#include "frame/Prompter.h"
#include "frame/SettingsFolder.h"
#include "intake/download/Download.h"
#include "results/Commands.h"
#include "results/DiffBarView.h"
#include "results/FixedColours.h"
#include "results/FlexGridView.h"
#include "results/GridFill.h"
#include "results/LineDetailView.h"
#include "results/report/DiffReportControl.h"
#include "settings/ExtractionOptions.h"
#include "settings/IniFileName.h"
#include "settings/ProgramOptions.h"
#include "settings/Session.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QLineEdit>
#include <QProgressBar>
#include <QToolBar>
#include <filesystem>

namespace orvane {
namespace {

QString Q(const std::string& s) {
    return QString::fromStdString(s);
}

QComboBox* MakeFileBox(const QString& name, QWidget* parent) {
    auto* box = new QComboBox(parent);
    box->setObjectName(name);
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return box;
}

LineDetailView* MakeDetailBox(const QString& name, QWidget* parent) {
    auto* box = new LineDetailView(name, parent);
    UseFixedColours(*box);
    box->setFont(QFont("Courier New", 10));
    return box;
}

std::string IniFilePath() {
    return SettingsFolder() + ProgramIniFileName();
}

} // namespace

frmFileDiffs::frmFileDiffs(Session& session, FileDiffEngine& fileDiff, QWidget* parent)
    : QMainWindow(parent), session_(session), fileDiff_(fileDiff) {
    setObjectName("frmFileDiffs");
    setWindowTitle("Orvane");
    client_ = new QWidget(this);
    client_->setObjectName("ClientArea");
    setCentralWidget(client_);
    gate_ = new RunGate(*this);
    commands_ = new Commands(*this, *client_, *gate_);
    BuildWidgets();
    ConnectCommands();
    ConnectGridEvents();
    SizeToDesign();
}

// The views go first: the grids they show are members, gone before the base class's children.
frmFileDiffs::~frmFileDiffs() {
    delete takeCentralWidget();
}

void frmFileDiffs::BuildWidgets() {
    cboOriginalFile = MakeFileBox("cboOriginalFile", client_);
    cboRevisedFile = MakeFileBox("cboRevisedFile", client_);
    for (QComboBox* box : {cboOriginalFile, cboRevisedFile}) {
        box->setAcceptDrops(true);
        box->lineEdit()->setAcceptDrops(false); // the box, not its editor, takes drops
        box->installEventFilter(this);
        box->lineEdit()->installEventFilter(this);
    }
    grdOriginalFile = new FlexGridView(originalGrid_, "grdOriginalFile", client_);
    grdRevisedFile = new FlexGridView(revisedGrid_, "grdRevisedFile", client_);
    // The echo ends by itself: the follower's TopRow is then unchanged. A grid part-way through
    // a fill may be shorter than its twin; it catches up when its own redraw resumes.
    const auto follow = [](FlexGrid& follower, long top) {
        if (top < follower.Rows()) follower.SetTopRow(top);
    };
    connect(grdOriginalFile, &FlexGridView::TopRowChanged, this,
            [this, follow](long top) { follow(revisedGrid_, top); });
    connect(grdRevisedFile, &FlexGridView::TopRowChanged, this,
            [this, follow](long top) { follow(originalGrid_, top); });
    Splitter = MakeSplitterHandle(*this, client_);
    pctContainer = new DiffBarView(client_);
    connect(pctContainer, &DiffBarView::Pressed, this, [this](float y) { DiffsBar_MouseDown(y); });
    rtfLineDiff[0] = MakeDetailBox("rtfLineDiff(0)", client_);
    rtfLineDiff[1] = MakeDetailBox("rtfLineDiff(1)", client_);
    Animation1 = new QProgressBar(client_);
    Animation1->setObjectName("Animation1");
    Animation1->setRange(0, 0);
    Animation1->setTextVisible(false);
    Animation1->setVisible(false);
}

void frmFileDiffs::Form_Load(const std::string& commandLine) {
    try {
        for (FlexGrid* grid : {&originalGrid_, &revisedGrid_}) {
            grid->SetRows(2);
            grid->SetTextMatrix(0, 0, kIdlePrompt);
        }
        modIniFile::ReadProgramOptionsFromIniFile(session_, *this);
        ApplyNewFont(GridFontName(kGrdOriginalFile), RoundToInt32(GridFontSize(kGrdOriginalFile)),
                     GridFontBold(kGrdOriginalFile), GridFontItalic(kGrdOriginalFile));
        ShowLineDiffPrompt();
        SetCommandsForNoResults();
        PopulateFileComboBoxesFromIniFile();
        ShowGridsOrVisualReport(session_.ViewOptions.OutputFormat != OutputFormat::OneWindow);
        bool firstRun = !std::filesystem::exists(IniFilePath());
        if (!commandLine.empty()) {
            std::string original, revised, report;
            GetFilesFromCommandLine(commandLine, original, revised, report);
            // The welcome page is for a person at the window, never for an unattended run.
            if (!original.empty() && !revised.empty() && !report.empty()) firstRun = false;
            if (!original.empty()) cboOriginalFile->setEditText(Q(original));
            if (!revised.empty()) cboRevisedFile->setEditText(Q(revised));
            // A report-file run never reaches the window: the program runs it without one.
            if (!original.empty() && !revised.empty()) mnuFileCompare_Click();
        }
        show();
        if (firstRun) {
            prompter().ShowHelp(7);
            DoEvents();
        }
    } catch (...) {
        if (CurrentErrorInfo().Number != err::ObjectUnloaded)
            ReportUnexpectedError("frmFileDiffs.Form_Load");
    }
}

void frmFileDiffs::closeEvent(QCloseEvent* e) {
    // Never under a run that still uses the window: it closes when the run is over. A download
    // is cancelled (as a failed one) so that the wait is short.
    if (gate_->CloseWhenIdle()) {
        if (DownloadInProgress()) CancelDownload();
        e->ignore();
        return;
    }
    Form_Unload();
    e->accept();
}

void frmFileDiffs::Form_Unload() {
    if (unloaded_) return;
    unloaded_ = true;
    for (FlexGrid* grid : {&originalGrid_, &revisedGrid_}) {
        grid->Clear();
        grid->SetRedraw(false);
    }
    // The session's options and line differ stay alive until the program ends: a run still
    // unwinding from a fill may read them.
    modIniFile::SaveProgramOptionsToIniFile(session_, *this);
    DiffList_.clear();
    BookmarkList.clear();
    SearchTextList.clear();
}

bool frmFileDiffs::Busy() const {
    return gate_->Busy();
}

void frmFileDiffs::mnuFileCompare_Click() {
    CompareFiles(false);
}

void frmFileDiffs::SetMousePointer(int value) {
    if (value == mousePointer_) return;
    if (value == PointerHourglass)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else if (mousePointer_ == PointerHourglass)
        QApplication::restoreOverrideCursor();
    mousePointer_ = value;
}

bool frmFileDiffs::ResultsShown() const {
    return QString::fromStdString(originalGrid_.TextMatrix(0, 0))
               .compare(kIdlePrompt, Qt::CaseInsensitive) != 0;
}

void frmFileDiffs::ResetResultsDisplay() {
    for (FlexGrid* grid : {&originalGrid_, &revisedGrid_})
        grid->SetRedraw(false);
    for (FlexGrid* grid : {&originalGrid_, &revisedGrid_}) {
        grid->Clear();
        grid->SetTextMatrix(0, 0, kIdlePrompt);
    }
    pctContainer->Clear();
    SetCommandsForNoResults();
    originalGrid_.SetRow(1);
    revisedGrid_.SetRow(1);
    originalGrid_.SetTopRow(1);
    if (ReportShown()) ctlDiffReport->ClearReport();
    for (FlexGrid* grid : {&originalGrid_, &revisedGrid_})
        grid->SetRedraw(true);
    ShowLineDiffPrompt();
}

void frmFileDiffs::ShowLineDiffPrompt() {
    rtfLineDiff[0]->SetLine(kDetailPrompt, {});
    rtfLineDiff[1]->Clear();
}

void frmFileDiffs::ShowGridsOrVisualReport(bool ShowGrids) {
    if (!ShowGrids) {
        ReportControl().ClearReport();
        DoEvents();
    }
    for (QWidget* w : std::initializer_list<QWidget*>{grdOriginalFile, grdRevisedFile,
                                                      rtfLineDiff[0], rtfLineDiff[1], Splitter})
        w->setVisible(ShowGrids);
    if (ctlDiffReport) ctlDiffReport->setVisible(!ShowGrids);
    Form_Resize();
}

void frmFileDiffs::StartAnimation() {
    Animation1->setVisible(true);
}

void frmFileDiffs::StopAnimationAndClearStatus() {
    Animation1->setVisible(false);
}

void frmFileDiffs::ResetDiffState() {
    DiffList_.clear();
    BookmarkList.clear();
    PreviousArrowRow = 0;
}

void frmFileDiffs::UpdateRowArrow() {
    const long newRow = originalGrid_.Row();
    if (PreviousArrowRow != 0 && PreviousArrowRow < originalGrid_.Rows()) {
        originalGrid_.SetRow(PreviousArrowRow);
        originalGrid_.SetCellPicture(RowIsBookmarked(PreviousArrowRow) ? CellPictureId::Bookmark
                                                                       : CellPictureId::None);
    }
    originalGrid_.SetRow(newRow);
    const Colour c = originalGrid_.CellBackColor();
    originalGrid_.SetCellPicture(RowIsBookmarked(newRow) ? CellPictureId::BookmarkArrow
                                 : c == ColourOrphanRows ? CellPictureId::OrphanArrow
                                 : c == ColourDifferRows ? CellPictureId::DifferArrow
                                                         : CellPictureId::Arrow);
    PreviousArrowRow = newRow;
}

} // namespace orvane
