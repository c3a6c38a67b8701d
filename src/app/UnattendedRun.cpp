#include "app/UnattendedRun.h"

#include "app/modDiff.h"
#include "compare/CompareDriver.h"
#include "compare/ErrorReportFile.h"
#include "compare/FileDiffEngine.h"
#include "frame/ErrorReporter.h"
#include "frame/Prompter.h"
#include "report/Report.h"
#include "settings/AtomicWrite.h"
#include "settings/MemoryOptionsWindow.h"
#include "settings/ProgramOptions.h"
#include "settings/RecentFiles.h"
#include "settings/Session.h"

#include <QCoreApplication>
#include <iostream>

namespace orvane {
namespace {

bool IsIdenticalMessage(const std::string& message) {
    return QString::fromStdString(message).compare("The files are identical.",
                                                   Qt::CaseInsensitive) == 0;
}

// Boxes have no one to read them here: their words go to standard error, and the first one is
// the run's message when nothing else has set it, so the answer page carries it too.
class ConsolePrompter : public Prompter {
  public:
    void MsgBox(const std::string& text, MsgIcon, const std::string& title) override {
        std::cerr << "orvane: " << title << ": " << text << '\n';
        if (Options && Options->CommandLineMessage.empty())
            Options->CommandLineMessage = title + ".  " + text;
    }
    bool InputBox(const std::string&, const std::string&, std::string&) override { return false; }
    bool OpenFileDialog(const std::string&, const std::string&, std::string&) override {
        return false;
    }
    void DoEvents() override { QCoreApplication::processEvents(); }

    // The session's options while there is a session.
    cViewFileDiffsOptions* Options = nullptr;
};

// The driver's surroundings with nothing to show: the report is made by the engine directly.
class ReportFileRun : public CompareSurroundings {
  public:
    ReportFileRun(std::string original, std::string revised)
        : inputs_{std::move(original), std::move(revised)} {}
    std::string Html;

    std::string InputText(Side side) const override { return inputs_[side == Side::Revised]; }
    void OfferComparisonDialogue() override {}
    void ShowGridsOrVisualReport(bool) override {}
    void SetBusyPointer(bool) override {}
    void StartProgress() override {}
    void StopProgress() override {}
    void PrepareForNewComparison() override {}
    void ThawDisplay() override {}
    void ResetResultsDisplay() override {}
    bool FillFromAlignedRows(const std::string&, const std::string&, const Alignment&) override {
        return false; // never asked: this run always takes the report path
    }
    bool DrawDiffBars() override { return false; }
    void ShowFirstDifference() override {}
    int CompareAndDisplayWithReport(const ReportRequest& r) override {
        report::ReportOptions o;
        o.kind = static_cast<report::CompareKind>(r.CompareKind);
        o.ignoreCase = r.IgnoreCase;
        o.whiteSpaceMode = r.WhiteSpaceMode;
        o.ignoreFormatting = r.IgnoreFormatting;
        o.level = static_cast<report::DetailLevel>(ChoiceIndex(r.Level));
        o.showNumbers = r.ShowNumbers;
        report::ReportResult result = report::MakeReport(r.Original, r.Revised, o);
        Html = std::move(result.html);
        return result.code;
    }
    void ShowReportResults() override {}
    void RecordRecentFiles(const std::string& original, const std::string& revised) override {
        PushRecentFile(Side::Original, original);
        PushRecentFile(Side::Revised, revised);
    }

  private:
    std::string inputs_[2];
};

int Answer(const std::string& message, const std::string& reportFile, const ReportFileRun& run,
           const std::string& original, const std::string& revised) {
    if (message.empty()) {
        if (WriteFileAtomically(reportFile, run.Html)) return 1;
        std::cerr << "orvane: cannot write the report to " << reportFile << '\n';
        return 2;
    }
    const bool written = WriteErrMsgToOutputFile(message, reportFile, original, revised);
    if (!IsIdenticalMessage(message)) std::cerr << "orvane: " << message << '\n';
    return written && IsIdenticalMessage(message) ? 0 : 2;
}

} // namespace

int RunUnattended(const std::string& appFolder, const std::string& original,
                  const std::string& revised, const std::string& reportFile) {
    const auto console = std::make_shared<ConsolePrompter>();
    SetPrompter(console);
    Program program;
    std::string moduleName;
    try {
        if (!program.OpenSession(appFolder, moduleName)) {
            std::cerr << "orvane: a required library cannot be loaded: " << moduleName << '\n';
            return 2;
        }
    } catch (...) {
        std::cerr << "orvane: a required library cannot be loaded: " << moduleName << '\n';
        return 2;
    }
    Session& session = program.CurrentSession();
    console->Options = &session.ViewOptions;
    MemoryOptionsWindow options;
    modIniFile::ReadProgramOptionsFromIniFile(session, options);
    cViewFileDiffsOptions& o = session.ViewOptions;
    o.RunFromCommandLine = true;
    // Kept afterwards on purpose: the next interactive start opens in the one-window output.
    o.OutputFormat = OutputFormat::OneWindow;
    o.CommandLineMessage.clear();
    ReportFileRun run(original, revised);
    CompareFiles(run, o, session.ExtractionOptions, program.LineDiffer(), true);
    const int status = Answer(o.CommandLineMessage, reportFile, run, original, revised);
    modIniFile::SaveProgramOptionsToIniFile(session, options);
    console->Options = nullptr;
    program.EndProgram();
    return status;
}

} // namespace orvane
