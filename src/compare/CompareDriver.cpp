// The compare driver. Whatever happens, the exit removes the run's temporary files.
#include "compare/CompareDriver.h"

#include "compare/FileDiffEngine.h"
#include "frame/ErrorReporter.h"
#include "frame/KWCommon.h"
#include "frame/Prompter.h"
#include "intake/ConvertFormats.h"
#include "intake/Formats.h"
#include "intake/Locations.h"
#include "intake/download/Download.h"

#include <algorithm>
#include <cctype>
#include <cstdio>

namespace orvane {
namespace {

constexpr long kAutomationException = 0x80020009;

void DeleteIf(bool condition, const std::string& path) {
    if (condition && !path.empty()) std::remove(path.c_str());
}

bool ContainsIgnoringCase(const std::string& text, const std::string& part) {
    const auto lower = [](unsigned char c) { return std::tolower(c); };
    return std::search(text.begin(), text.end(), part.begin(), part.end(),
                       [&](char a, char b) { return lower(a) == lower(b); }) != text.end();
}

class Run {
  public:
    Run(CompareSurroundings& window, cViewFileDiffsOptions& options,
        const clsExtractionOptions& extraction, FileDiffEngine& engine)
        : window_(window), o_(options), extraction_(extraction), engine_(engine) {}

    CompareOutcome Go(bool SkipDialogue);

  private:
    void Refuse(const std::string& title, const std::string& text);
    bool CheckInputs(std::string& original, std::string& revised, SourceType types[2]);
    bool FetchWebPages();
    bool DetectFormats();
    bool ExtractTexts();
    CompareOutcome ShowInReport();
    CompareOutcome ShowInGrids();
    void DeleteTemporaryFiles();

    CompareSurroundings& window_;
    cViewFileDiffsOptions& o_;
    const clsExtractionOptions& extraction_;
    FileDiffEngine& engine_;
    std::string format_[2]; // of each side, for this run
};

void Run::Refuse(const std::string& title, const std::string& text) {
    if (o_.RunFromCommandLine)
        o_.CommandLineMessage = title + ".  " + text;
    else
        prompter().MsgBox(text, MsgIcon::Exclamation, title);
    window_.ResetResultsDisplay();
}

// Steps 1 to 6: both inputs present, addresses well formed, local files existing.
bool Run::CheckInputs(std::string& original, std::string& revised, SourceType types[2]) {
    original = Trim(window_.InputText(Side::Original));
    if (original.empty()) { // always a box, also in an unattended run
        prompter().MsgBox("Please specify an Original HTML file.", MsgIcon::Exclamation,
                          "No Original HTML File");
        window_.ResetResultsDisplay();
        return false;
    }
    revised = Trim(window_.InputText(Side::Revised));
    if (revised.empty()) {
        Refuse("No Revised HTML File", "Please specify a Revised HTML file.");
        return false;
    }
    const std::string* inputs[2] = {&original, &revised};
    for (int i = 0; i < 2; ++i) {
        const LocationKind kind = ClassifyLocation(*inputs[i]);
        types[i] =
            kind == LocationKind::WebAddress ? SourceType::WebAddress : SourceType::LocalFile;
        if (kind == LocationKind::BareHostName) {
            Refuse("Invalid URL Format", "Web Addresses must begin with HTTP://");
            return false;
        }
    }
    for (Side side : {Side::Original, Side::Revised}) {
        const int i = side == Side::Original ? 0 : 1;
        if (types[i] == SourceType::LocalFile && !FileExists(*inputs[i])) {
            Refuse("File Does Not Exist", MissingFileText(side));
            return false;
        }
    }
    return true;
}

CompareOutcome Run::Go(bool SkipDialogue) {
    bool displayFrozen = false;
    CompareOutcome outcome = CompareOutcome::Refused;
    try {
        std::string original, revised;
        SourceType types[2] = {SourceType::LocalFile, SourceType::LocalFile};
        if (CheckInputs(original, revised, types)) {
            // Step 7: the dialogue may change the mode and the output format.
            if (!SkipDialogue && o_.ShowDialogueBeforeComparison) window_.OfferComparisonDialogue();
            window_.SetBusyPointer(true);
            window_.ShowGridsOrVisualReport(o_.OutputFormat != OutputFormat::OneWindow);
            window_.StartProgress();
            displayFrozen = true;
            window_.PrepareForNewComparison();
            o_.OriginalFile = original;
            o_.RevisedFile = revised;
            o_.OriginalTextExtracted = false;
            o_.OriginalTextFile.clear();
            o_.RevisedTextExtracted = false;
            o_.RevisedTextFile.clear();
            o_.OriginalSourceType = types[0];
            o_.RevisedSourceType = types[1];
            o_.OriginalDownloadFile.clear();
            o_.RevisedDownloadFile.clear();
            if (FetchWebPages() && DetectFormats() && ExtractTexts())
                outcome =
                    o_.OutputFormat != OutputFormat::OneWindow ? ShowInGrids() : ShowInReport();
        }
    } catch (...) {
        outcome = CompareOutcome::Failed;
        if (CurrentErrorInfo().Number != kAutomationException)
            ReportUnexpectedError("frmFileDiffs.CompareFiles");
    }
    if (displayFrozen) window_.ThawDisplay();
    DeleteTemporaryFiles();
    window_.StopProgress();
    window_.SetBusyPointer(false);
    return outcome;
}

void Run::DeleteTemporaryFiles() {
    DeleteIf(o_.OriginalTextExtracted, o_.OriginalTextFile);
    DeleteIf(o_.RevisedTextExtracted, o_.RevisedTextFile);
    DeleteIf(o_.OriginalSourceType == SourceType::WebAddress, o_.OriginalDownloadFile);
    DeleteIf(o_.RevisedSourceType == SourceType::WebAddress, o_.RevisedDownloadFile);
}

// Steps 10 and 11: each web address is fetched into a temporary page of its own.
bool Run::FetchWebPages() {
    for (Side side : {Side::Original, Side::Revised}) {
        SideFields f = FieldsOf(o_, side);
        if (f.SourceType != SourceType::WebAddress) continue;
        const std::string target = MakeDownloadFileSpec();
        if (!target.empty() && modOrvane::DownloadWebPage(f.File, target)) {
            f.DownloadFile = target;
            continue;
        }
        std::remove(target.c_str());
        window_.StopProgress();
        const std::string text = DownloadFailureText(side);
        if (o_.RunFromCommandLine)
            o_.CommandLineMessage = "Web Page Download failure.  " + text;
        else
            prompter().MsgBox(text, MsgIcon::Exclamation, "Web Page Download failure");
        window_.ResetResultsDisplay();
        return false;
    }
    return true;
}

// Step 12: a local file of unknown format stops the run in every mode; a page counts as HTML.
bool Run::DetectFormats() {
    for (Side side : {Side::Original, Side::Revised}) {
        SideFields f = FieldsOf(o_, side);
        std::string& format = format_[side == Side::Original ? 0 : 1];
        if (f.SourceType == SourceType::WebAddress) {
            format = "HTML";
            continue;
        }
        std::string description, reason;
        if (modConvertFormats::GetFormatOfFile(f.File, format, description, reason)) continue;
        window_.StopProgress();
        const std::string title = "Unknown " + std::string(SideName(side)) + " File Format";
        if (o_.RunFromCommandLine)
            o_.CommandLineMessage = title + ".  " + reason;
        else
            prompter().MsgBox(reason, MsgIcon::Exclamation, title);
        window_.ResetResultsDisplay();
        return false;
    }
    return true;
}

// Step 13, Text Content mode only: the text of each input is compared in its place. This box
// has no unattended form.
bool Run::ExtractTexts() {
    if (o_.ComparisonMode != ComparisonMode::Text) return true;
    for (Side side : {Side::Original, Side::Revised}) {
        SideFields f = FieldsOf(o_, side);
        const bool page = f.SourceType == SourceType::WebAddress;
        const std::string& format = format_[side == Side::Original ? 0 : 1];
        std::string textFile, reason;
        if (modConvertFormats::ConvertFileIfNeeded(page ? f.DownloadFile : f.File,
                                                   page ? "HTML" : format, textFile, reason,
                                                   o_.ComparisonMode, extraction_)) {
            f.TextExtracted = true;
            f.TextFile = textFile;
            continue;
        }
        window_.StopProgress();
        prompter().MsgBox(reason, MsgIcon::Exclamation,
                          std::string(SideName(side)) + " File Text Extraction Failed");
        window_.ResetResultsDisplay();
        return false;
    }
    return true;
}

// Steps 16 to 18: the report compares and shows; a code other than 0 leaves it as it stands.
CompareOutcome Run::ShowInReport() {
    const int code = window_.CompareAndDisplayWithReport(ReportRequestFor(o_));
    window_.StopProgress();
    window_.SetBusyPointer(false);
    prompter().DoEvents();
    if (code != 0) {
        const std::string text = ReportResultText(code);
        if (o_.RunFromCommandLine)
            o_.CommandLineMessage = text;
        else
            prompter().MsgBox(text, ReportResultIcon(code), "Compare Files");
        return code == 1 ? CompareOutcome::Nothing : CompareOutcome::Refused;
    }
    window_.ShowReportResults();
    window_.RecordRecentFiles(o_.OriginalFile, o_.RevisedFile);
    return CompareOutcome::Shown;
}

// Steps 14 and 15: compare line by line, then show the result in the grids.
CompareOutcome Run::ShowInGrids() {
    std::string message;
    if (!CompareWithLineDiffer(engine_, o_, message)) {
        window_.StopProgress();
        prompter().MsgBox(message, MsgIcon::Information, "Compare Files");
        window_.ResetResultsDisplay();
        return CompareOutcome::Nothing;
    }
    bool filled = false;
    try {
        filled = window_.FillFromAlignedRows(ComparedFile(o_, Side::Original),
                                             ComparedFile(o_, Side::Revised), AlignRows(engine_));
    } catch (...) {
        ReportUnexpectedError("frmFileDiffs.DisplayComparisonResultsInGrid");
    }
    if (!filled) {
        window_.StopProgress();
        window_.ResetResultsDisplay();
        return CompareOutcome::Nothing;
    }
    if (!window_.DrawDiffBars()) {
        window_.ResetResultsDisplay();
        return CompareOutcome::Nothing;
    }
    window_.ShowFirstDifference();
    window_.RecordRecentFiles(o_.OriginalFile, o_.RevisedFile);
    return CompareOutcome::Shown;
}

} // namespace

CompareOutcome CompareFiles(CompareSurroundings& window, cViewFileDiffsOptions& options,
                            const clsExtractionOptions& extraction, FileDiffEngine& engine,
                            bool SkipDialogue) {
    static bool running = false;
    if (running) return CompareOutcome::Busy;
    running = true;
    const CompareOutcome outcome = Run(window, options, extraction, engine).Go(SkipDialogue);
    running = false;
    return outcome;
}

bool CompareWithLineDiffer(FileDiffEngine& engine, const cViewFileDiffsOptions& options,
                           std::string& Message) {
    try {
        engine.IgnoreCaseSwitch(options.IgnoreCase);
        engine.IgnoreWhiteSpaceSwitch(options.IgnoreWhiteSpace);
        engine.ForceTextSwitch(options.ForceTextCompare);
        const std::string original = ComparedFile(options, Side::Original);
        const std::string revised = ComparedFile(options, Side::Revised);
        long status = -1;
        engine.CompareFiles(original, revised, status);
        switch (status) {
        case 0:
            Message = "The files are identical";
            return false;
        case 1: {
            const std::string binary = "Binary files " + original + " " + revised + " differ";
            const std::string line0 = engine.OutputLineCount() > 0 ? engine.OutputLine(0) : "";
            if (!ContainsIgnoringCase(line0, binary)) return true;
            Message = "The files differ but the differences are not viewable.\r\n"
                      "One of the files may contain non-ASCII characters. \r\n";
            return false;
        }
        case 2:
            Message = "Errors encountered comparing the files\r\n\r\n" +
                      (engine.OutputLineCount() > 0 ? engine.OutputLine(0) : std::string());
            return false;
        default:
            Message.clear();
            return false;
        }
    } catch (...) {
        ReportUnexpectedError("frmFileDiffs.CompareFilesAndStoreResultsInGlobalDiffObject");
        Message.clear();
        return false;
    }
}

} // namespace orvane
