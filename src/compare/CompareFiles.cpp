// The compare driver: the order of its checks, the branch for each output format and exactly what
// is said on each way out. Whatever happens, the exit removes the run's temporary files.
#include "compare/FileDiffEngine.h"
#include "dialogs/frmWhatAndHow.h"
#include "frame/ErrorReporter.h"
#include "frame/Globals.h"
#include "frame/KWCommon.h"
#include "frame/Prompter.h"
#include "intake/ConvertFormats.h"
#include "intake/Formats.h"
#include "intake/Locations.h"
#include "intake/download/Download.h"
#include "results/GridFill.h"
#include "results/frmFileDiffs.h"

#include <QComboBox>
#include <cstdio>

namespace orvane {
namespace {

constexpr long kAutomationException = 0x80020009;

void DeleteIf(bool condition, const std::string& path) {
    if (condition && !path.empty()) std::remove(path.c_str());
}

} // namespace

void frmFileDiffs::Refuse(const std::string& title, const std::string& text) {
    if (gViewOptions->RunFromCommandLine)
        gViewOptions->CommandLineMessage = title + ".  " + text;
    else
        prompter().MsgBox(text, MsgIcon::Exclamation, title);
    ResetResultsDisplay();
}

// Steps 1 to 6: both inputs present, addresses well formed, local files existing.
bool frmFileDiffs::CheckInputs(std::string& original, std::string& revised, int types[2]) {
    original = Trim(cboOriginalFile->currentText().toStdString());
    if (original.empty()) { // always a box, also in an unattended run
        prompter().MsgBox("Please specify an Original HTML file.", MsgIcon::Exclamation,
                          "No Original HTML File");
        ResetResultsDisplay();
        return false;
    }
    revised = Trim(cboRevisedFile->currentText().toStdString());
    if (revised.empty()) {
        Refuse("No Revised HTML File", "Please specify a Revised HTML file.");
        return false;
    }
    const std::string* inputs[2] = {&original, &revised};
    for (int i = 0; i < 2; ++i) {
        const LocationKind kind = ClassifyLocation(*inputs[i]);
        types[i] = kind == LocationKind::WebAddress ? WebAddress : LocalFile;
        if (kind == LocationKind::BareHostName) {
            Refuse("Invalid URL Format", "Web Addresses must begin with HTTP://");
            return false;
        }
    }
    for (Side side : {Side::Original, Side::Revised}) {
        const int i = side == Side::Original ? 0 : 1;
        if (types[i] == LocalFile && !FileExists(*inputs[i])) {
            Refuse("File Does Not Exist", MissingFileText(side));
            return false;
        }
    }
    return true;
}

// Step 7: the comparison dialogue, and the menu checks that follow what it wrote.
void frmFileDiffs::OfferComparisonDialogue() {
    frmWhatAndHow dialogue(this);
    ShowModal(dialogue);
    DoEvents();
    const cViewFileDiffsOptions& o = *gViewOptions;
    for (int i = 0; i < 3; ++i)
        SetMenuChecked("mnuOptionsComparisonModeOption", i, i == o.ComparisonMode);
    for (int i = 0; i < 2; ++i)
        SetMenuChecked("mnuOptionsOutputFormatOption", i, i == o.OutputFormat);
    SetMenuChecked("mnuOptionsShowDialogue", -1, o.ShowDialogueBeforeComparison);
}

void frmFileDiffs::CompareFiles(bool SkipDialogue) {
    bool gridsFrozen = false;
    try {
        std::string original, revised;
        int types[2] = {LocalFile, LocalFile};
        if (CheckInputs(original, revised, types)) {
            if (!SkipDialogue && gViewOptions->ShowDialogueBeforeComparison)
                OfferComparisonDialogue();
            SetMousePointer(PointerHourglass);
            ShowGridsOrVisualReport(gViewOptions->OutputFormat != 0);
            StartAnimation();
            gridsFrozen = true;
            PrepareGridForNewComparison(originalGrid_, revisedGrid_);
            PrepareDiffsBarForNewComparison();
            cViewFileDiffsOptions& o = *gViewOptions;
            o.OriginalFile = original;
            o.RevisedFile = revised;
            o.OriginalTextExtracted = false;
            o.OriginalTextFile.clear();
            o.RevisedTextExtracted = false;
            o.RevisedTextFile.clear();
            o.OriginalSourceType = types[0];
            o.RevisedSourceType = types[1];
            o.OriginalDownloadFile.clear();
            o.RevisedDownloadFile.clear();
            if (FetchWebPages() && DetectFormats() && ExtractTexts()) {
                if (o.OutputFormat != OutputOneWindow)
                    RunGridPath();
                else
                    RefuseOneWindowReport();
            }
        }
    } catch (...) {
        if (CurrentErrorInfo().Number != kAutomationException)
            ReportUnexpectedError("frmFileDiffs.CompareFiles");
    }
    if (gridsFrozen) {
        originalGrid_.SetRedraw(true);
        revisedGrid_.SetRedraw(true);
    }
    DeleteTemporaryFiles();
    StopAnimationAndClearStatus();
    SetMousePointer(PointerDefault);
}

void frmFileDiffs::DeleteTemporaryFiles() {
    if (!gViewOptions) return;
    const cViewFileDiffsOptions& o = *gViewOptions;
    DeleteIf(o.OriginalTextExtracted, o.OriginalTextFile);
    DeleteIf(o.RevisedTextExtracted, o.RevisedTextFile);
    DeleteIf(o.OriginalSourceType == WebAddress, o.OriginalDownloadFile);
    DeleteIf(o.RevisedSourceType == WebAddress, o.RevisedDownloadFile);
}

// Steps 10 and 11: each web address is fetched into a temporary page of its own.
bool frmFileDiffs::FetchWebPages() {
    for (Side side : {Side::Original, Side::Revised}) {
        SideFields f = FieldsOf(*gViewOptions, side);
        if (f.SourceType != WebAddress) continue;
        const std::string target = MakeDownloadFileSpec();
        if (!target.empty() && modOrvane::DownloadWebPage(f.File, target)) {
            f.DownloadFile = target;
            continue;
        }
        std::remove(target.c_str());
        StopAnimationAndClearStatus();
        const std::string text = DownloadFailureText(side);
        if (gViewOptions->RunFromCommandLine)
            gViewOptions->CommandLineMessage = "Web Page Download failure.  " + text;
        else
            prompter().MsgBox(text, MsgIcon::Exclamation, "Web Page Download failure");
        ResetResultsDisplay();
        return false;
    }
    return true;
}

// Step 12: a local file of unknown format stops the run in every mode; a page counts as HTML.
bool frmFileDiffs::DetectFormats() {
    for (Side side : {Side::Original, Side::Revised}) {
        SideFields f = FieldsOf(*gViewOptions, side);
        std::string& format = side == Side::Original ? originalFormat_ : revisedFormat_;
        if (f.SourceType == WebAddress) {
            format = "HTML";
            continue;
        }
        std::string description, reason;
        if (modConvertFormats::GetFormatOfFile(f.File, format, description, reason)) continue;
        StopAnimationAndClearStatus();
        const std::string title = "Unknown " + std::string(SideName(side)) + " File Format";
        if (gViewOptions->RunFromCommandLine)
            gViewOptions->CommandLineMessage = title + ".  " + reason;
        else
            prompter().MsgBox(reason, MsgIcon::Exclamation, title);
        ResetResultsDisplay();
        return false;
    }
    return true;
}

// Step 13, Text Content mode only: the text of each input is compared in its place. This box
// has no unattended form.
bool frmFileDiffs::ExtractTexts() {
    if (gViewOptions->ComparisonMode != ModeText) return true;
    for (Side side : {Side::Original, Side::Revised}) {
        SideFields f = FieldsOf(*gViewOptions, side);
        const bool page = f.SourceType == WebAddress;
        const std::string& format = side == Side::Original ? originalFormat_ : revisedFormat_;
        std::string textFile, reason;
        if (modConvertFormats::ConvertFileIfNeeded(page ? f.DownloadFile : f.File,
                                                   page ? "HTML" : format, textFile, reason)) {
            f.TextExtracted = true;
            f.TextFile = textFile;
            continue;
        }
        StopAnimationAndClearStatus();
        prompter().MsgBox(reason, MsgIcon::Exclamation,
                          std::string(SideName(side)) + " File Text Extraction Failed");
        ResetResultsDisplay();
        return false;
    }
    return true;
}

// The merged one-window report is not built yet: say so rather than show nothing.
void frmFileDiffs::RefuseOneWindowReport() {
    StopAnimationAndClearStatus();
    const std::string text = "The one-window report is not available in this version. Choose "
                             "Options > Output Format > Show Changes Side by Side (Two Windows).";
    if (gViewOptions->RunFromCommandLine)
        gViewOptions->CommandLineMessage = "Compare Files.  " + text;
    else
        prompter().MsgBox(text, MsgIcon::Information, "Compare Files");
    ResetResultsDisplay();
}

// Steps 14 and 15: compare line by line, then show the result in the grids.
void frmFileDiffs::RunGridPath() {
    std::string message;
    bool ok = false;
    CompareFilesAndStoreResultsInGlobalDiffObject(message, ok);
    if (!ok) {
        StopAnimationAndClearStatus();
        prompter().MsgBox(message, MsgIcon::Information, "Compare Files");
        ResetResultsDisplay();
        return;
    }
    DisplayComparisonResultsInGrid(ok);
    if (!ok) {
        StopAnimationAndClearStatus();
        ResetResultsDisplay();
        return;
    }
    DrawDiffBars(ok);
    if (!ok) {
        ResetResultsDisplay();
        return;
    }
    ShowLineDiffPrompt();
    mnuFileShowFirstDiff_Click();
    AddFilesToIni(gViewOptions->OriginalFile, gViewOptions->RevisedFile);
}

void frmFileDiffs::CompareFilesAndStoreResultsInGlobalDiffObject(std::string& Message, bool& Ok) {
    Ok = false;
    try {
        FileDiffEngine& engine = *gFileDiff;
        engine.IgnoreCaseSwitch(gViewOptions->IgnoreCase);
        engine.IgnoreWhiteSpaceSwitch(gViewOptions->IgnoreWhiteSpace);
        engine.ForceTextSwitch(gViewOptions->ForceTextCompare);
        const std::string original = ComparedFile(*gViewOptions, Side::Original);
        const std::string revised = ComparedFile(*gViewOptions, Side::Revised);
        long status = -1;
        engine.CompareFiles(original, revised, status);
        switch (status) {
        case 0:
            Message = "The files are identical";
            break;
        case 1: {
            const std::string binary = "Binary files " + original + " " + revised + " differ";
            const std::string line0 = engine.OutputLineCount() > 0 ? engine.OutputLine(0) : "";
            if (QString::fromStdString(line0).contains(QString::fromStdString(binary),
                                                       Qt::CaseInsensitive)) {
                Message = "The files differ but the differences are not viewable.\r\n"
                          "One of the files may contain non-ASCII characters. \r\n";
            } else {
                Ok = true;
            }
            break;
        }
        case 2:
            Message = "Errors encountered comparing the files\r\n\r\n" +
                      (engine.OutputLineCount() > 0 ? engine.OutputLine(0) : std::string());
            break;
        default:
            Message.clear();
            break;
        }
    } catch (...) {
        ReportUnexpectedError("frmFileDiffs.CompareFilesAndStoreResultsInGlobalDiffObject");
        Ok = false;
    }
}

void frmFileDiffs::DisplayComparisonResultsInGrid(bool& Ok) {
    Ok = false;
    try {
        ResetDiffState();
        const std::string original = ComparedFile(*gViewOptions, Side::Original);
        const std::string revised = ComparedFile(*gViewOptions, Side::Revised);
        const bool loaded = LoadFilesIntoGrids(original, revised, originalGrid_, revisedGrid_,
                                               gViewOptions->ShowLineNumbers);
        SetMousePointer(PointerDefault);
        if (!loaded) return;
        if (!InsertDiffRowsInGrids(*gFileDiff, originalGrid_, revisedGrid_, DiffList_)) return;
        if (originalGrid_.Rows() > 1 && revisedGrid_.Rows() > 1) {
            originalGrid_.SetRow(1);
            revisedGrid_.SetRow(1);
            UpdateRowArrow();
            MarkCurrentRowInDiffsBar();
        }
        SetCommandsForResults();
        Ok = true;
    } catch (...) {
        ReportUnexpectedError("frmFileDiffs.DisplayComparisonResultsInGrid");
        Ok = false;
    }
}

} // namespace orvane
