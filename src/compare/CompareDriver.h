#pragma once
// The compare driver: the order of its checks, the branch for each output format and exactly what
// is said on each way out. It knows no window: what it needs of its surroundings goes through
// CompareSurroundings, and boxes go through the prompter.
#include "compare/DiffRows.h"
#include "compare/ReportPath.h"
#include "settings/ExtractionOptions.h"
#include "settings/ViewOptions.h"

#include <string>

namespace orvane {

class FileDiffEngine;

// What the driver asks of the window that runs it.
class CompareSurroundings {
  public:
    virtual ~CompareSurroundings() = default;
    // The text of a side's file box, as typed.
    virtual std::string InputText(Side side) const = 0;
    // The comparison dialogue; it writes its choices into the options.
    virtual void OfferComparisonDialogue() = 0;
    virtual void ShowGridsOrVisualReport(bool showGrids) = 0;
    virtual void SetBusyPointer(bool busy) = 0;
    virtual void StartProgress() = 0;
    virtual void StopProgress() = 0;
    // Empties the grids and the difference bar and stops their painting until ThawDisplay.
    virtual void PrepareForNewComparison() = 0;
    virtual void ThawDisplay() = 0;
    // Back to the idle prompt after a run that shows nothing.
    virtual void ResetResultsDisplay() = 0;
    // Loads the two compared files and paints the aligned rows; false when nothing can be shown
    // (the user has been told).
    virtual bool FillFromAlignedRows(const std::string& original, const std::string& revised,
                                     const Alignment& alignment) = 0;
    virtual bool DrawDiffBars() = 0;
    virtual void ShowFirstDifference() = 0;
    // The one-window report: empties the detail boxes, has the report compare the request's
    // inputs and waits for it while events run (there is no time limit). The report's result
    // code: 0 differences shown, 1 identical, others as ReportResultText says.
    virtual int CompareAndDisplayWithReport(const ReportRequest& request) = 0;
    // The report shows differences: the result commands on, bookmarks off (they live in the
    // grids), and the report at its first difference.
    virtual void ShowReportResults() = 0;
    virtual void RecordRecentFiles(const std::string& original, const std::string& revised) = 0;
};

enum class CompareOutcome {
    Refused, // an input or a step was refused; the user was told
    Nothing, // identical files, or differences that cannot be shown; the user was told
    Shown,   // the differences are on screen
    Failed,  // an unexpected error, reported
    Busy,    // called from inside a run that is still going: nothing was touched
};

// One run of Compare. The options receive the run's inputs and temporary files; the temporary
// files are removed on every way out. Text Content mode extracts with `extraction`. Runs do not
// nest: a second one would take over the first's temporary files, which would then never be
// removed.
CompareOutcome CompareFiles(CompareSurroundings& window, cViewFileDiffsOptions& options,
                            const clsExtractionOptions& extraction, FileDiffEngine& engine,
                            bool SkipDialogue);

// Steps 14: the line differ's verdict on the compared files. True when there are differences to
// show; otherwise `Message` says why not (empty when the engine gave no status).
bool CompareWithLineDiffer(FileDiffEngine& engine, const cViewFileDiffsOptions& options,
                           std::string& Message);

} // namespace orvane
