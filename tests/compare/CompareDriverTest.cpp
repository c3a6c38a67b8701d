// The compare driver without a window: its order of checks, its refusals and the calls it makes
// on its surroundings, with the real engines from the build.
#include "compare/CompareDriver.h"
#include "compare/FileDiffEngine.h"
#include "frame/EngineLibraries.h"
#include "frame/ProgramFolder.h"
#include "settings/ExtractionOptions.h"
#include "support/RecordingPrompter.h"
#include "support/TempDir.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orvane::test {
namespace {

// Records each call by name; answers as a window that can show everything.
class FakeWindow : public CompareSurroundings {
  public:
    std::string inputs[2];
    std::vector<std::string> calls;
    DiffList shown;
    bool busy = false;

    std::string InputText(Side side) const override { return inputs[side == Side::Revised]; }
    void OfferComparisonDialogue() override { calls.push_back("dialogue"); }
    void ShowGridsOrVisualReport(bool grids) override {
        calls.push_back(grids ? "grids" : "report");
    }
    void SetBusyPointer(bool on) override {
        busy = on;
        calls.push_back(on ? "busy" : "idle");
    }
    void StartProgress() override { calls.push_back("start"); }
    void StopProgress() override { calls.push_back("stop"); }
    void PrepareForNewComparison() override { calls.push_back("prepare"); }
    void ThawDisplay() override { calls.push_back("thaw"); }
    void ResetResultsDisplay() override { calls.push_back("reset"); }
    bool FillFromAlignedRows(const std::string&, const std::string&,
                             const Alignment& alignment) override {
        calls.push_back("fill");
        shown = alignment.Diffs;
        return true;
    }
    bool DrawDiffBars() override {
        calls.push_back("bars");
        return true;
    }
    void ShowFirstDifference() override { calls.push_back("first"); }
    void RecordRecentFiles(const std::string&, const std::string&) override {
        calls.push_back("recent");
    }
    int CompareAndDisplayWithReport(const ReportRequest& r) override {
        calls.push_back("compare-report");
        request = r;
        if (duringReport) duringReport();
        return reportCode;
    }
    void ShowReportResults() override { calls.push_back("report-results"); }

    int reportCode = 0;
    ReportRequest request;
    std::function<void()> duringReport; // what happens while the report runs and events are let in
};

class Driver : public ::testing::Test {
  protected:
    void SetUp() override {
        gAppPath = ORVANE_BIN_DIR;
        for (Engine e : {Engine::KWCommon, Engine::DetFile, Engine::Detagger, Engine::DocTxt})
            LoadEngine(e, ORVANE_BIN_DIR);
        engine = std::make_unique<FileDiffEngine>();
        options.OutputFormat = OutputFormat::SideBySide;
        options.ComparisonMode = ComparisonMode::Code;
        options.ShowDialogueBeforeComparison = false;
    }

    CompareOutcome Compare(const std::string& original, const std::string& revised) {
        window.inputs[0] = original;
        window.inputs[1] = revised;
        const CompareOutcome outcome = CompareFiles(window, options, extraction, *engine, false);
        EXPECT_FALSE(window.busy) << "every way out ends idle";
        return outcome;
    }

    TempDir dir;
    ScopedRecordingPrompter prompter;
    std::unique_ptr<FileDiffEngine> engine;
    cViewFileDiffsOptions options;
    clsExtractionOptions extraction;
    FakeWindow window;
};

using Calls = std::vector<std::string>;

struct Refusal {
    const char* name;
    const char* original; // "@file" stands for an existing file
    const char* revised;
    const char* title;
    const char* text;
};

void PrintTo(const Refusal& r, std::ostream* os) {
    *os << r.name;
}

class Refusals : public Driver, public ::testing::WithParamInterface<Refusal> {
  protected:
    std::string Input(const char* spec) {
        const std::string s = spec;
        if (s == "@file") return dir.Write("page.html", "<p>x</p>\n");
        if (s == "@folder") return dir.Path().substr(0, dir.Path().size() - 1);
        if (s == "@missing") return dir.Path() + "missing.html";
        if (s == "@fifo") {
            const std::string fifo = dir.Path() + "x.html";
            ::mkfifo(fifo.c_str(), 0600);
            return fifo;
        }
        if (s == "@devzero") {
            const std::string link = dir.Path() + "zero.html";
            ::symlink("/dev/zero", link.c_str());
            return link;
        }
        return s;
    }
};

TEST_P(Refusals, ShowTheirBoxBeforeAnyWork) {
    const Refusal& r = GetParam();
    options.ShowDialogueBeforeComparison = true;
    EXPECT_EQ(Compare(Input(r.original), Input(r.revised)), CompareOutcome::Refused);
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].title, r.title);
    EXPECT_EQ(prompter->boxes[0].text, r.text);
    EXPECT_EQ(prompter->boxes[0].icon, MsgIcon::Exclamation);
    // No dialogue, no busy pointer: the refusal comes first and the display goes back to idle.
    EXPECT_EQ(window.calls, (Calls{"reset", "stop", "idle"}));
}

TEST_P(Refusals, GoToTheMessageInAnUnattendedRun) {
    const Refusal& r = GetParam();
    options.RunFromCommandLine = true;
    Compare(Input(r.original), Input(r.revised));
    if (std::string(r.title) == "No Original HTML File") { // the first check always uses a box
        EXPECT_EQ(prompter->boxes.size(), 1u);
        EXPECT_EQ(options.CommandLineMessage, "");
    } else {
        EXPECT_TRUE(prompter->boxes.empty());
        EXPECT_EQ(options.CommandLineMessage, std::string(r.title) + ".  " + r.text);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Inputs, Refusals,
    ::testing::Values(Refusal{"NoOriginal", "   ", "@file", "No Original HTML File",
                              "Please specify an Original HTML file."},
                      Refusal{"NoRevised", "@file", "", "No Revised HTML File",
                              "Please specify a Revised HTML file."},
                      Refusal{"BareHostOriginal", "www.example.org", "@file", "Invalid URL Format",
                              "Web Addresses must begin with HTTP://"},
                      Refusal{"BareHostRevised", "@file", "Www.example.org", "Invalid URL Format",
                              "Web Addresses must begin with HTTP://"},
                      Refusal{"MissingOriginal", "@missing", "@file", "File Does Not Exist",
                              "Original file is not an existing file."},
                      Refusal{"MissingRevised", "@file", "@missing", "File Does Not Exist",
                              "Revised file is not an existing file."},
                      Refusal{"FolderAsFile", "@folder", "@file", "File Does Not Exist",
                              "Original file is not an existing file."},
                      // reading a FIFO or a device would hang or grow without end
                      Refusal{"FifoAsFile", "@file", "@fifo", "File Does Not Exist",
                              "Revised file is not an existing file."},
                      Refusal{"DeviceLinkAsFile", "@devzero", "@file", "File Does Not Exist",
                              "Original file is not an existing file."},
                      Refusal{"DeviceAsFile", "/dev/zero", "@file", "File Does Not Exist",
                              "Original file is not an existing file."},
                      // a bare host name is refused before any look at the disk
                      Refusal{"BareHostBeforeMissing", "wwwpage.html", "@missing",
                              "Invalid URL Format", "Web Addresses must begin with HTTP://"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(Driver, DifferencesAreShownThenRecorded) {
    EXPECT_EQ(Compare(dir.Write("a.html", "A\nB\nC\nD\n"), dir.Write("b.html", "A\nX\nC\nD\nE\n")),
              CompareOutcome::Shown);
    EXPECT_EQ(window.shown, (DiffList{{2, 1, DiffKind::Changed}, {5, 1, DiffKind::Orphan}}));
    EXPECT_EQ(window.calls, (Calls{"busy", "grids", "start", "prepare", "fill", "bars", "first",
                                   "recent", "thaw", "stop", "idle"}));
    EXPECT_TRUE(prompter->boxes.empty());
}

TEST_F(Driver, IdenticalFilesSaySoAndShowNothing) {
    options.ShowDialogueBeforeComparison = true;
    EXPECT_EQ(Compare(dir.Write("a.html", "A\n"), dir.Write("b.html", "A\n")),
              CompareOutcome::Nothing);
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].title, "Compare Files");
    EXPECT_EQ(prompter->boxes[0].text, "The files are identical");
    EXPECT_EQ(window.calls, (Calls{"dialogue", "busy", "grids", "start", "prepare", "stop", "reset",
                                   "thaw", "stop", "idle"}));
}

TEST_F(Driver, TheReportShowsItsDifferencesThenTheyAreRecorded) {
    options.OutputFormat = OutputFormat::OneWindow;
    options.ComparisonMode = ComparisonMode::Visual;
    options.IgnoreWhiteSpace = true;
    options.IgnoreTextFormatting = true;
    options.ComparisonLevel = ComparisonLevel::Word;
    options.ShowLineNumbers = false;
    const std::string a = dir.Write("a.html", "<p>1</p>\n"), b = dir.Write("b.html", "<p>2</p>\n");
    EXPECT_EQ(Compare(a, b), CompareOutcome::Shown);
    EXPECT_EQ(window.calls, (Calls{"busy", "report", "start", "prepare", "compare-report", "stop",
                                   "idle", "report-results", "recent", "thaw", "stop", "idle"}));
    EXPECT_TRUE(prompter->boxes.empty());
    const ReportRequest& r = window.request;
    EXPECT_EQ(r.Original, a);
    EXPECT_EQ(r.Revised, b);
    EXPECT_EQ(r.CompareKind, 2);
    EXPECT_EQ(r.WhiteSpaceMode, 2);
    EXPECT_TRUE(r.IgnoreFormatting);
    EXPECT_FALSE(r.IgnoreCase);
    EXPECT_EQ(r.Level, ComparisonLevel::Word);
    EXPECT_FALSE(r.ShowNumbers);
    EXPECT_FALSE(r.AllowWeb);
}

TEST_F(Driver, TheReportComparesWhatEachModeNames) {
    options.OutputFormat = OutputFormat::OneWindow;
    const std::string a = dir.Write("a.html", "<p>one</p>\n"),
                      b = dir.Write("b.html", "<p>two</p>\n");
    options.ComparisonMode = ComparisonMode::Code;
    Compare(a, b);
    EXPECT_EQ(window.request.CompareKind, 3);
    EXPECT_EQ(window.request.WhiteSpaceMode, 0);
    options.ComparisonMode = ComparisonMode::Text; // the extracted texts, not the pages
    Compare(a, b);
    EXPECT_EQ(window.request.CompareKind, 0);
    EXPECT_NE(window.request.Original, a);
    EXPECT_EQ(window.request.Original.substr(window.request.Original.size() - 4), ".wtd");
    EXPECT_FALSE(std::filesystem::exists(window.request.Original)) << "removed on the way out";
}

// A Compare that arrives while the report runs must not take over the run's temporary files.
TEST_F(Driver, ASecondRunInsideARunIsTurnedAwayAndTheFirstCleansUp) {
    options.OutputFormat = OutputFormat::OneWindow;
    options.ComparisonMode = ComparisonMode::Text;
    const std::string a = dir.Write("a.html", "<p>one</p>\n"),
                      b = dir.Write("b.html", "<p>two</p>\n");
    CompareOutcome nested = CompareOutcome::Shown;
    std::size_t callsBefore = 0;
    window.duringReport = [&] {
        callsBefore = window.calls.size();
        nested = CompareFiles(window, options, extraction, *engine, true);
    };
    const std::string firstTemp = [&] {
        EXPECT_EQ(Compare(a, b), CompareOutcome::Shown);
        return window.request.Original;
    }();
    EXPECT_EQ(nested, CompareOutcome::Busy);
    EXPECT_EQ(window.calls[callsBefore], "stop") << "the nested call asked nothing of the window";
    EXPECT_EQ(window.request.Original, firstTemp);
    EXPECT_FALSE(std::filesystem::exists(firstTemp));
    window.duringReport = nullptr;
    EXPECT_EQ(Compare(a, b), CompareOutcome::Shown) << "and the next run after it goes ahead";
}

// Every code but 0 is told in one box titled "Compare Files", or in the unattended message.
TEST_F(Driver, TheReportsCodesAreToldByTheirTable) {
    options.OutputFormat = OutputFormat::OneWindow;
    const std::string a = dir.Write("a.html", "1\n"), b = dir.Write("b.html", "2\n");
    const struct {
        int code;
        const char* text;
        MsgIcon icon;
    } cases[] = {
        {1, "The files are identical.", MsgIcon::Information},
        {2, "An unknown problem occurred while comparing the files.", MsgIcon::Exclamation},
        {3, "The same file has been defined as both the Original and the Revised file.",
         MsgIcon::Information},
        {4, "One of the files is not in HTML format.", MsgIcon::Information},
        {5, "Unable to prepare the Original file for comparison.", MsgIcon::Information},
        {6, "Unable to prepare the Revised file for comparison.", MsgIcon::Information},
        {7, "Files contain different number of frames.", MsgIcon::Information},
        {-3, "An error code -3 occurred while comparing the files.", MsgIcon::Information},
    };
    for (const auto& c : cases) {
        window.reportCode = c.code;
        prompter->boxes.clear();
        window.calls.clear();
        options.RunFromCommandLine = false;
        EXPECT_EQ(Compare(a, b), c.code == 1 ? CompareOutcome::Nothing : CompareOutcome::Refused);
        ASSERT_EQ(prompter->boxes.size(), 1u) << c.code;
        EXPECT_EQ(prompter->boxes[0].title, "Compare Files");
        EXPECT_EQ(prompter->boxes[0].text, c.text);
        EXPECT_EQ(prompter->boxes[0].icon, c.icon);
        // The report stays as the run left it: no reset, no results commands.
        EXPECT_EQ(std::count(window.calls.begin(), window.calls.end(), "reset"), 0);
        EXPECT_EQ(std::count(window.calls.begin(), window.calls.end(), "report-results"), 0);

        prompter->boxes.clear();
        options.RunFromCommandLine = true;
        options.CommandLineMessage.clear();
        Compare(a, b);
        EXPECT_TRUE(prompter->boxes.empty());
        EXPECT_EQ(options.CommandLineMessage, c.text);
    }
}

TEST_F(Driver, AFetchedPageIsRemovedOnTheWayOut) {
    const std::string a = dir.Write("a.html", "1\n2\n");
    EXPECT_EQ(Compare("file://" + a, dir.Write("b.html", "1\n3\n")), CompareOutcome::Shown);
    ASSERT_FALSE(options.OriginalDownloadFile.empty());
    EXPECT_FALSE(std::filesystem::exists(options.OriginalDownloadFile));
}

} // namespace
} // namespace orvane::test
