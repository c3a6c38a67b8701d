// The main window's commands: which are available when, and the option commands.
#include "dialogs/frmAbout.h"
#include "dialogs/frmHTMLEditor.h"
#include "dialogs/frmTestFileFormat.h"
#include "dialogs/frmTextExtractionOptions.h"
#include "frame/ErrorReporter.h"
#include "frame/Prompter.h"
#include "frame/RuntimeError.h"
#include "output/HelpLinks.h"
#include "results/Commands.h"
#include "results/FlexGridView.h"
#include "results/GridPrinting.h"
#include "results/frmFileDiffs.h"
#include "settings/Session.h"
#include "settings/ViewOptions.h"

#include <QAction>

namespace orvane {
namespace {

// Place order of the availability table: idle, results.
struct Availability {
    const char* name;
    bool idle;
    bool results;
};
constexpr Availability kAvailability[] = {
    {"mnuFileSelectOriginalFile", true, true},
    {"mnuFileSelectRevisedFile", true, true},
    {"mnuFileCompare", true, true},
    {"mnuFileShowFirstDiff", false, true},
    {"mnuFileShowNextDiff", false, true},
    {"mnuFileShowPreviousDiff", false, true},
    {"mnuFileShowLastDiff", false, true},
    {"mnuFileFind", false, true},
    {"mnuFileFindNext", false, false},
    {"mnuFileFindPrevious", false, false},
    {"mnuFileToggleBookmark", false, true},
    {"mnuFileNextBookmark", false, false},
    {"mnuFilePreviousBookmark", false, false},
    {"mnuFileClearAllBookmarks", false, false},
    {"mnuFilePrint", false, true},
    {"mnuFilePrintToPdf", false, true},
    {"mnuFileExit", true, true},
};

// The option items whose check is the option itself, and the field that follows it.
struct Toggle {
    const char* name;
    bool cViewFileDiffsOptions::*field;
};
constexpr Toggle kToggles[] = {
    {"mnuOptionsIgnoreCase", &cViewFileDiffsOptions::IgnoreCase},
    {"mnuOptionsIgnoreWhitespace", &cViewFileDiffsOptions::IgnoreWhiteSpace},
    {"mnuOptionsIgnoreTextFormatting", &cViewFileDiffsOptions::IgnoreTextFormatting},
    {"mnuOptionsShowDialogue", &cViewFileDiffsOptions::ShowDialogueBeforeComparison},
    {"mnuOptionsShowInternetSourceReminder", &cViewFileDiffsOptions::ShowInternetSourceReminder},
    {"mnuOptionsShowLineNumbers", &cViewFileDiffsOptions::ShowLineNumbers},
};

const char* kCheckable[] = {"mnuOptionsShowGridLines", "mnuOptionsDisplayGridTooltips"};

// Checks item i of a control array and unchecks the others.
void CheckOnly(Commands& c, const char* array, int count, int i) {
    for (int k = 0; k < count; ++k)
        if (QAction* a = c.Item(array, k)) a->setChecked(k == i);
}

} // namespace

void frmFileDiffs::ConnectCommands() {
    Commands& c = *commands_;
    c.On("mnuFileCompare", [this] { mnuFileCompare_Click(); });
    c.On("mnuFileSelectOriginalFile", [this] { SelectFile(Side::Original); });
    c.On("mnuFileSelectRevisedFile", [this] { SelectFile(Side::Revised); });
    c.OnAlways("mnuFileExit", [this] { close(); });
    c.On("mnuFileShowFirstDiff", [this] { mnuFileShowFirstDiff_Click(); });
    c.On("mnuFileShowNextDiff", [this] { mnuFileShowNextDiff_Click(); });
    c.On("mnuFileShowPreviousDiff", [this] { mnuFileShowPreviousDiff_Click(); });
    c.On("mnuFileShowLastDiff", [this] { mnuFileShowLastDiff_Click(); });
    c.On("mnuFileToggleBookmark", [this] { ToggleBookmark(); });
    c.On("mnuFileNextBookmark", [this] { StepToBookmark(true); });
    c.On("mnuFilePreviousBookmark", [this] { StepToBookmark(false); });
    c.On("mnuFileClearAllBookmarks", [this] { ClearAllBookmarks(); });
    c.On("mnuFileFind", [this] { mnuFileFind_Click(); });
    c.On("mnuFileFindNext", [this] { mnuFileFindAgain_Click(true); });
    c.On("mnuFileFindPrevious", [this] { mnuFileFindAgain_Click(false); });
    c.On("mnuOptionsTextExtraction", [this] {
        frmTextExtractionOptions dialogue(session_.ExtractionOptions, this);
        ShowModal(dialogue);
    });
    c.On("mnuOptionsHTMLEditor", [this] {
        frmHTMLEditor dialogue(session_.HTMLEditorFileSpec, this);
        ShowModal(dialogue);
    });
    c.On("mnuOptionsFont", [this] { mnuOptionsFont_Click(); });
    for (Side side : {Side::Original, Side::Revised}) {
        const QString name = side == Side::Original ? "Original" : "Revised";
        c.On("mnuView" + name + "FileInDefaultBrowser", [this, side] { ViewInBrowser(side); });
        c.On("mnuView" + name + "FileSourceCode", [this, side] { ViewSourceCode(side); });
        c.On("mnuView" + name + "FileTextContent", [this, side] { ViewTextContent(side); });
        c.On("mnuOpenEdit" + name, [this, side] { ViewSourceCode(side); });
    }
    c.On("mnuHelpAbout", [this] {
        frmAbout dialogue(this);
        ShowModal(dialogue);
    });
    c.On("mnuHelpTroubleshootingFileFormat", [this] {
        frmTestFileFormat dialogue(this);
        ShowModal(dialogue);
    });
    c.On("mnuFilePrint", [this] { ReportShown() ? PrintShownReport() : PrintGrids(*this, {}); });
    c.On("mnuFilePrintToPdf",
         [this] { ReportShown() ? PrintShownReportToPdf() : PrintGridsToPdf(*this); });
    c.On("mnuHelpVisitKestwickWeb", [] { VisitHomePage(); });
    c.On("mnuHelpContactUs", [] { ContactUs(); });
    c.On("mnuHelpContent", [] {
        prompter().ShowHelp(1);
        DoEvents();
    });
    for (const Toggle& t : kToggles) {
        QAction* item = c.Item(t.name);
        item->setCheckable(true);
        c.On(t.name, [this, t, item] {
            session_.ViewOptions.*t.field = item->isChecked();
            if (std::string(t.name) == "mnuOptionsShowLineNumbers")
                prompter().MsgBox("This setting will take effect on your next comparison.",
                                  MsgIcon::Information, "Show Line Numbers");
        });
    }
    for (const char* name : kCheckable)
        c.Item(name)->setCheckable(true);
    c.Item("mnuOptionsDisplayGridTooltips")->setVisible(false);
    c.On("mnuOptionsShowGridLines", [this] {
        const int lines = commands_->Item("mnuOptionsShowGridLines")->isChecked() ? 1 : 0;
        SetGridLines(kGrdOriginalFile, lines);
        SetGridLines(kGrdRevisedFile, lines);
    });
    for (int i = 0; i < 3; ++i) {
        c.Item("mnuOptionsComparisonModeOption", i)->setCheckable(true);
        c.On(
            "mnuOptionsComparisonModeOption", [this, i] { ComparisonModeOption(i); }, i);
        c.Item("mnuOptionsDiffDetailOption", i)->setCheckable(true);
        c.On(
            "mnuOptionsDiffDetailOption", [this, i] { DiffDetailOption(i); }, i);
    }
    for (int i = 0; i < 2; ++i) {
        c.Item("mnuOptionsOutputFormatOption", i)->setCheckable(true);
        c.On(
            "mnuOptionsOutputFormatOption", [this, i] { OutputFormatOption(i); }, i);
    }
}

// The merged one-window report, which Visual Aspect mode needs, is not built yet: those two
// choices stay off, and a stored choice of either starts as Source Code, side by side.
void frmFileDiffs::ComparisonModeOption(int i) {
    CheckOnly(*commands_, "mnuOptionsComparisonModeOption", 3, i);
    session_.ViewOptions.ComparisonMode = ChoiceAt<ComparisonMode>(i);
    if (session_.ViewOptions.ComparisonMode == ComparisonMode::Visual &&
        session_.ViewOptions.OutputFormat == OutputFormat::SideBySide) {
        session_.ViewOptions.OutputFormat = OutputFormat::OneWindow;
        CheckOnly(*commands_, "mnuOptionsOutputFormatOption", 2,
                  ChoiceIndex(OutputFormat::OneWindow));
    }
    CompareFiles(true);
}

void frmFileDiffs::OutputFormatOption(int i) {
    const OutputFormat format = ChoiceAt<OutputFormat>(i);
    if (format == OutputFormat::SideBySide &&
        session_.ViewOptions.ComparisonMode == ComparisonMode::Visual) {
        prompter().MsgBox("The visual aspect differences cannot be displayed in two windows.",
                          MsgIcon::Information, "Side by Side Not Supported");
        CheckOnly(*commands_, "mnuOptionsOutputFormatOption", 2,
                  ChoiceIndex(session_.ViewOptions.OutputFormat));
        return;
    }
    CheckOnly(*commands_, "mnuOptionsOutputFormatOption", 2, i);
    session_.ViewOptions.OutputFormat = format;
    CompareFiles(true);
}

// Two windows: the selected row is shown again at the new level; one window compares again.
void frmFileDiffs::DiffDetailOption(int i) {
    CheckOnly(*commands_, "mnuOptionsDiffDetailOption", 3, i);
    session_.ViewOptions.ComparisonLevel = ChoiceAt<ComparisonLevel>(i);
    if (session_.ViewOptions.OutputFormat != OutputFormat::OneWindow)
        Grid_Click(Side::Original);
    else
        CompareFiles(true);
}

void frmFileDiffs::mnuOptionsFont_Click() {
    try {
        FontChoice font{GridFontName(kGrdOriginalFile),
                        RoundToInt32(GridFontSize(kGrdOriginalFile)),
                        GridFontBold(kGrdOriginalFile), GridFontItalic(kGrdOriginalFile)};
        if (!prompter().FontDialog("Select Font", font)) return; // cancelled: nothing changes
        ApplyNewFont(font.Name, font.Size, font.Bold, font.Italic);
        if (ReportShown())
            prompter().MsgBox("The font change will occur on your next comparison.",
                              MsgIcon::Information, "Change Font");
    } catch (...) {
        ReportUnexpectedError("frmFileDiffs.mnuOptionsFont_Click");
    }
}

void frmFileDiffs::SetCommandsForNoResults() {
    for (const Availability& a : kAvailability)
        commands_->Enable(a.name, a.idle);
}

void frmFileDiffs::SetCommandsForResults() {
    for (const Availability& a : kAvailability)
        commands_->Enable(a.name, a.results);
}

void frmFileDiffs::SetMenuChecked(const std::string& name, int index, bool checked) {
    QAction* item = commands_->Item(QString::fromStdString(name), index);
    if (!item) throw RuntimeError(err::SubscriptOutOfRange);
    item->setCheckable(true);
    item->setChecked(checked);
}

bool frmFileDiffs::MenuChecked(const std::string& name, int index) const {
    QAction* item = commands_->Item(QString::fromStdString(name), index);
    if (!item) throw RuntimeError(err::SubscriptOutOfRange);
    return item->isChecked();
}

FlexGridView& frmFileDiffs::NamedGrid(const std::string& grid) const {
    if (grid == kGrdOriginalFile) return *grdOriginalFile;
    if (grid == kGrdRevisedFile) return *grdRevisedFile;
    throw RuntimeError(err::SubscriptOutOfRange);
}

void frmFileDiffs::SetGridLines(const std::string& grid, int gridLines) {
    NamedGrid(grid).SetGridLines(gridLines);
}

std::string frmFileDiffs::GridFontName(const std::string& grid) const {
    return NamedGrid(grid).font().family().toStdString();
}

double frmFileDiffs::GridFontSize(const std::string& grid) const {
    return NamedGrid(grid).font().pointSizeF();
}

bool frmFileDiffs::GridFontBold(const std::string& grid) const {
    return NamedGrid(grid).font().bold();
}

bool frmFileDiffs::GridFontItalic(const std::string& grid) const {
    return NamedGrid(grid).font().italic();
}

// Each setter changes one property of the grid's font; a size the toolkit cannot take is refused
// as the grid control refuses it.
void frmFileDiffs::SetGridFontName(const std::string& grid, const std::string& name) {
    QFont f = NamedGrid(grid).font();
    f.setFamily(QString::fromStdString(name));
    NamedGrid(grid).SetGridFont(f);
}

void frmFileDiffs::SetGridFontSize(const std::string& grid, double points) {
    if (!(points > 0 && points <= 2048)) throw RuntimeError(380, "Invalid property value");
    QFont f = NamedGrid(grid).font();
    f.setPointSizeF(points);
    NamedGrid(grid).SetGridFont(f);
}

void frmFileDiffs::SetGridFontBold(const std::string& grid, bool bold) {
    QFont f = NamedGrid(grid).font();
    f.setBold(bold);
    NamedGrid(grid).SetGridFont(f);
}

void frmFileDiffs::SetGridFontItalic(const std::string& grid, bool italic) {
    QFont f = NamedGrid(grid).font();
    f.setItalic(italic);
    NamedGrid(grid).SetGridFont(f);
}

FlexGridView* frmFileDiffs::GridView(Side side) const {
    return side == Side::Original ? grdOriginalFile : grdRevisedFile;
}

} // namespace orvane
