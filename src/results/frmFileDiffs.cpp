#include "results/frmFileDiffs.h"

#include "compare/FileDiffEngine.h"
#include "frame/CommandLine.h"
#include "frame/EngineLibraries.h"
#include "frame/ErrorReporter.h"
#include "frame/Globals.h"
#include "frame/KWCommon.h"
#include "frame/Prompter.h"
#include "results/Commands.h"
#include "results/FlexGridView.h"
#include "results/GridFill.h"
#include "settings/ExtractionOptions.h"
#include "settings/IniFileName.h"
#include "settings/ProgramOptions.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QProgressBar>
#include <QSplitter>
#include <QTextEdit>
#include <QToolBar>
#include <QVBoxLayout>
#include <filesystem>

namespace orvane {
namespace {

QString Q(const std::string& s) { return QString::fromStdString(s); }

QComboBox* MakeFileBox(const QString& name, QWidget* parent) {
    auto* box = new QComboBox(parent);
    box->setObjectName(name);
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return box;
}

QTextEdit* MakeDetailBox(const QString& name, QWidget* parent) {
    auto* box = new QTextEdit(parent);
    box->setObjectName(name);
    box->setReadOnly(true);
    box->setLineWrapMode(QTextEdit::NoWrap);
    box->setFont(QFont("Courier New", 10));
    box->setFixedHeight(box->fontMetrics().height() + 12);
    box->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    return box;
}

std::string IniFilePath() { return gAppPath + ProgramIniFileName(); }

} // namespace

frmFileDiffs::frmFileDiffs(QWidget* parent) : QMainWindow(parent) {
    setObjectName("frmFileDiffs");
    setWindowTitle("Orvane");
    commands_ = new Commands(*this, [this] { return mousePointer_ == PointerHourglass; });
    BuildWidgets();
    ConnectCommands();
}

// The views go first: the grids they show are members, gone before the base class's children.
frmFileDiffs::~frmFileDiffs() { delete takeCentralWidget(); }

void frmFileDiffs::BuildWidgets() {
    auto* central = new QWidget(this);
    auto* column = new QVBoxLayout(central);
    column->setContentsMargins(4, 2, 4, 4);
    column->setSpacing(2);

    auto* boxes = new QHBoxLayout;
    cboOriginalFile = MakeFileBox("cboOriginalFile", central);
    cboRevisedFile = MakeFileBox("cboRevisedFile", central);
    boxes->addWidget(cboOriginalFile);
    boxes->addWidget(cboRevisedFile);
    column->addLayout(boxes);

    auto* splitter = new QSplitter(Qt::Horizontal, central);
    splitter->setObjectName("Splitter");
    grdOriginalFile = new FlexGridView(originalGrid_, "grdOriginalFile", splitter);
    grdRevisedFile = new FlexGridView(revisedGrid_, "grdRevisedFile", splitter);
    column->addWidget(splitter, 1);
    connect(grdOriginalFile, &FlexGridView::TopRowChanged, this,
            [this](long top) { revisedGrid_.SetTopRow(top); });
    connect(grdRevisedFile, &FlexGridView::TopRowChanged, this,
            [this](long top) { originalGrid_.SetTopRow(top); });

    rtfLineDiff[0] = MakeDetailBox("rtfLineDiff(0)", central);
    rtfLineDiff[1] = MakeDetailBox("rtfLineDiff(1)", central);
    column->addWidget(rtfLineDiff[0]);
    column->addWidget(rtfLineDiff[1]);

    Animation1 = new QProgressBar(this);
    Animation1->setObjectName("Animation1");
    Animation1->setRange(0, 0);
    Animation1->setMaximumWidth(150);
    Animation1->setVisible(false);
    commands_->Toolbar()->addWidget(Animation1);

    setCentralWidget(central);
    resize(900, 600);
}

void frmFileDiffs::Form_Load(const std::string& commandLine) {
    try {
        for (FlexGrid* grid : {&originalGrid_, &revisedGrid_}) {
            grid->SetRows(2);
            grid->SetTextMatrix(0, 0, kIdlePrompt);
        }
        modIniFile::ReadProgramOptionsFromIniFile(*this);
        ShowLineDiffPrompt();
        SetCommandsForNoResults();
        ShowGridsOrVisualReport(gViewOptions->OutputFormat != 0);
        const bool firstRun = !std::filesystem::exists(IniFilePath());
        if (!commandLine.empty()) {
            std::string original, revised, report;
            GetFilesFromCommandLine(commandLine, original, revised, report);
            if (!original.empty()) cboOriginalFile->setEditText(Q(original));
            if (!revised.empty()) cboRevisedFile->setEditText(Q(revised));
            // A third token asks for an unattended report run; until reports can be written the
            // pair is compared in the window instead.
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
    modIniFile::SaveProgramOptionsToIniFile(*this);
    gViewOptions.reset();
    DoEvents();
    gFileDiff.reset();
    DoEvents();
    gExtractionOptions.reset();
    DoEvents();
    DiffList_.clear();
    BookmarkList.clear();
    SearchTextList.clear();
}

void frmFileDiffs::mnuFileCompare_Click() { CompareFiles(false); }

void frmFileDiffs::SetMousePointer(int value) {
    if (value == mousePointer_) return;
    if (value == PointerHourglass) QApplication::setOverrideCursor(Qt::WaitCursor);
    else if (mousePointer_ == PointerHourglass) QApplication::restoreOverrideCursor();
    mousePointer_ = value;
}

bool frmFileDiffs::ResultsShown() const {
    return QString::fromStdString(originalGrid_.TextMatrix(0, 0))
               .compare(kIdlePrompt, Qt::CaseInsensitive) != 0;
}

void frmFileDiffs::ResetResultsDisplay() {
    for (FlexGrid* grid : {&originalGrid_, &revisedGrid_}) grid->SetRedraw(false);
    for (FlexGrid* grid : {&originalGrid_, &revisedGrid_}) {
        grid->Clear();
        grid->SetTextMatrix(0, 0, kIdlePrompt);
    }
    SetCommandsForNoResults();
    originalGrid_.SetRow(1);
    revisedGrid_.SetRow(1);
    originalGrid_.SetTopRow(1);
    for (FlexGrid* grid : {&originalGrid_, &revisedGrid_}) grid->SetRedraw(true);
    ShowLineDiffPrompt();
}

void frmFileDiffs::ShowLineDiffPrompt() {
    rtfLineDiff[0]->setPlainText(kDetailPrompt);
    rtfLineDiff[0]->setTextColor(palette().color(QPalette::Text));
    QTextCursor start = rtfLineDiff[0]->textCursor();
    start.movePosition(QTextCursor::Start);
    rtfLineDiff[0]->setTextCursor(start);
    rtfLineDiff[1]->clear();
}

void frmFileDiffs::ShowGridsOrVisualReport(bool ShowGrids) {
    for (QWidget* w : std::initializer_list<QWidget*>{grdOriginalFile, grdRevisedFile,
                                                      rtfLineDiff[0], rtfLineDiff[1]})
        w->setVisible(ShowGrids);
    if (!ShowGrids) DoEvents();
}

void frmFileDiffs::StartAnimation() { Animation1->setVisible(true); }

void frmFileDiffs::StopAnimationAndClearStatus() { Animation1->setVisible(false); }

void frmFileDiffs::ResetDiffState() {
    DiffList_.clear();
    BookmarkList.clear();
    PreviousArrowRow = 0;
}

void frmFileDiffs::UpdateRowArrow() {
    const long newRow = originalGrid_.Row();
    if (PreviousArrowRow != 0 && PreviousArrowRow < originalGrid_.Rows()) {
        originalGrid_.SetRow(PreviousArrowRow);
        originalGrid_.SetCellPicture(CellPictureId::None);
    }
    originalGrid_.SetRow(newRow);
    const Colour c = originalGrid_.CellBackColor();
    originalGrid_.SetCellPicture(c == ColourOrphanRows   ? CellPictureId::OrphanArrow
                                 : c == ColourDifferRows ? CellPictureId::DifferArrow
                                                         : CellPictureId::Arrow);
    PreviousArrowRow = newRow;
}


} // namespace orvane
