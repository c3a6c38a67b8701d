#pragma once
// The main window: two file boxes, the two result grids, the detail pane, and the driver of every
// comparison.
#include "compare/CompareDriver.h"
#include "compare/DiffRows.h"
#include "results/FlexGrid.h"
#include "results/WindowLayout.h"
#include "settings/OptionsWindow.h"
#include "settings/Session.h"
#include "settings/ViewOptions.h"

#include <QDialog>
#include <QMainWindow>
#include <functional>
#include <string>
#include <vector>

class QComboBox;
class QMimeData;
class QProgressBar;

namespace orvane {

class Commands;
class DiffBarView;
class FlexGridView;
class LineDetailView;
class DiffReportControl;
class RunGate;

QWidget* MakeSplitterHandle(class frmFileDiffs& window, QWidget* parent);

inline constexpr long kNavigationBusy = -999;
inline constexpr const char* kIdlePrompt = "Select two files then press the Compare button";
inline constexpr const char* kDetailPrompt =
    "Click on a line in either file to see how it differs from its counterpart in the other file.";

// Values of the window's mouse pointer that the program tests.
enum MousePointerValue { PointerDefault = 0, PointerHourglass = 11 };

class frmFileDiffs : public QMainWindow, public OptionsWindow, public CompareSurroundings {
    Q_OBJECT
  public:
    // The session and the line differ belong to the program and outlive the window.
    frmFileDiffs(Session& session, FileDiffEngine& fileDiff, QWidget* parent = nullptr);
    ~frmFileDiffs() override;

    // Start-up: options, grids, idle look, then the command line (quoted tokens).
    void Form_Load(const std::string& commandLine);

    // The one routine through which every comparison runs.
    void CompareFiles(bool SkipDialogue);
    void mnuFileCompare_Click();

    void ResetResultsDisplay() override;
    void ShowLineDiffPrompt();
    void ShowGridsOrVisualReport(bool ShowGrids) override;
    void StartAnimation();
    void StopAnimationAndClearStatus();
    void ResetDiffState();
    // The difference bar.
    void PrepareDiffsBarForNewComparison();
    bool DrawDiffBars() override;
    void MarkCurrentRowInDiffsBar();
    void ScrollFilesToPointInDiffBar(float Y);
    void DiffsBar_MouseDown(float Y);
    // Navigation: a row number, kNoMoreDiffs, or kNavigationBusy.
    long GetNextDiff();
    long GetPreviousDiff();
    void FollowRow(long Row);
    void mnuFileShowFirstDiff_Click();
    void mnuFileShowNextDiff_Click();
    void mnuFileShowPreviousDiff_Click();
    void mnuFileShowLastDiff_Click();
    // Bookmarks: the mark is the picture in the Original grid's cell.
    bool RowIsBookmarked(long Row);
    void ToggleBookmark();
    void ClearAllBookmarks();
    long GetNextBookmark();
    long GetPreviousBookmark();
    void UpdateBookmarkCommands();
    const std::vector<long>& Bookmarks() const { return BookmarkList; }
    // Find.
    bool Find(const std::string& SearchText, const std::string& Direction, long& FoundRow);
    void mnuFileFind_Click();
    void mnuFileFindAgain_Click(bool forward);
    void EnableFindAgainCommands(bool Enabled);
    // The View menu.
    void ViewInBrowser(Side side);
    void ViewSourceCode(Side side);
    void ViewTextContent(Side side);
    bool ViewFileAsText(const std::string& FileSpec);
    // The detail pane.
    void ShowDetailForCurrentRow();
    void DisplayLineDiffs();
    void DisplaySelectedLinesInRTF();
    void DisplayLineDiffsLineLevel();
    void DisplayLineDiffsCharLevel();
    void DisplayLineDiffsWordLevel();
    LineDetailView* DetailBox(int index) const { return rtfLineDiff[index]; }
    // The one-window report, when it is the visible output.
    bool ReportShown() const;
    DiffReportControl* Report() const { return ctlDiffReport; }
    DiffBarView* DiffsBar() const { return pctContainer; }
    void Form_Resize();
    void ApplyNewFont(const std::string& FontName, int FontSize, bool FontBold, bool FontItalic);
    void Splitter_MouseDown(int button, float x);
    void Splitter_MouseMove(float x);
    void Splitter_MouseUp(float x);
    // A drop on a file box: a dropped file, else the text; then the box's Change event.
    bool DropOnFileBox(QComboBox& box, const QMimeData& data);
    // Grid events; `side` is the grid that raised it.
    void Grid_Click(Side side);
    void Grid_DblClick(Side side);
    void Grid_MouseDown(Side side, int button, QPoint globalPos);
    void Grid_MouseMove(Side side, long mouseRow);
    bool RowsHaveNoColour() const;
    bool EitherLineEmpty() const;
    // A file box's text changed by the user: results never stand beside a changed path.
    void FileBox_Change(Side side);
    void PopulateFileComboBoxesFromIniFile();
    void AddFilesToIni(const std::string& Original, const std::string& Revised);
    QComboBox* FileBox(Side side) const;
    bool SuppressFileBoxEvents = false;
    const WindowRegions& Regions() const { return regions_; }
    void UpdateRowArrow();
    void SetCommandsForResults();
    void SetCommandsForNoResults();

    // The option commands of the comparison mode and the output format.
    void ComparisonModeOption(int i);
    void OutputFormatOption(int i);

    // Shows a dialogue modally; tests put a script in its place.
    std::function<void(QDialog&)> ShowModal = [](QDialog& d) { d.exec(); };

    // What tests and other parts read.
    FlexGrid& OriginalGrid() { return originalGrid_; }
    FlexGrid& RevisedGrid() { return revisedGrid_; }
    const DiffList& Diffs() const { return DiffList_; }
    int MousePointer() const { return mousePointer_; }
    // A comparison or another long command is running and letting events in.
    bool Busy() const;
    QComboBox* OriginalFileBox() const { return cboOriginalFile; }
    QComboBox* RevisedFileBox() const { return cboRevisedFile; }
    bool ResultsShown() const;
    Commands& CommandSurface() { return *commands_; }
    FlexGridView* GridView(Side side) const;

    // OptionsWindow: the option checks and the grids' look, as the settings file holds them.
    void SetMenuChecked(const std::string& name, int index, bool checked) override;
    bool MenuChecked(const std::string& name, int index) const override;
    void SetGridLines(const std::string& grid, int gridLines) override;
    std::string GridFontName(const std::string& grid) const override;
    double GridFontSize(const std::string& grid) const override;
    bool GridFontBold(const std::string& grid) const override;
    bool GridFontItalic(const std::string& grid) const override;
    void SetGridFontName(const std::string& grid, const std::string& name) override;
    void SetGridFontSize(const std::string& grid, double points) override;
    void SetGridFontBold(const std::string& grid, bool bold) override;
    void SetGridFontItalic(const std::string& grid, bool italic) override;

  protected:
    void closeEvent(QCloseEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    Session& session_;
    FileDiffEngine& fileDiff_;
    void BuildWidgets();
    void PlaceRegions();
    void SizeToDesign();
    float Twips(int pixels) const;
    int Pixels(float twips) const;
    void ConnectCommands();
    void DiffDetailOption(int i);
    void mnuOptionsFont_Click();
    FlexGridView& NamedGrid(const std::string& grid) const;
    void ConnectGridEvents();
    FlexGrid& GridOf(Side side) { return side == Side::Original ? originalGrid_ : revisedGrid_; }
    bool ShowsPrompt(Side side);
    long ScanForDiff(bool forward, const char* location);
    long ScanBookmarks(bool forward);
    void StepToBookmark(bool forward);
    void StepToDiff(bool forward);
    void ShowFirstOrLast(bool first);
    // The current row's two lines, cut by the line text rule.
    std::string CurrentLine(Side side) const;
    void SetMousePointer(int value);
    void Form_Unload();
    // What the compare driver asks of the window.
    std::string InputText(Side side) const override;
    void OfferComparisonDialogue() override;
    void SetBusyPointer(bool busy) override;
    void StartProgress() override { StartAnimation(); }
    void StopProgress() override { StopAnimationAndClearStatus(); }
    void PrepareForNewComparison() override;
    void ThawDisplay() override;
    bool FillFromAlignedRows(const std::string& original, const std::string& revised,
                             const Alignment& alignment) override;
    void ShowFirstDifference() override;
    void RecordRecentFiles(const std::string& original, const std::string& revised) override {
        AddFilesToIni(original, revised);
    }
    int CompareAndDisplayWithReport(const ReportRequest& request) override;
    void ShowReportResults() override;
    DiffReportControl& ReportControl();
    void ApplyReportFont();
    void StepInReport(bool forward);
    bool FindInReport(const std::string& text, bool first, bool forward);
    void PrintShownReport();
    void PrintShownReportToPdf();
    void SelectFile(Side side);
    bool ViewerSource(Side side, std::string& source, bool& isUrl);
    std::string DownloadForViewer(Side side, const std::string& url);

    FlexGrid originalGrid_;
    FlexGrid revisedGrid_;
    FlexGridView* grdOriginalFile = nullptr;
    FlexGridView* grdRevisedFile = nullptr;
    QComboBox* cboOriginalFile = nullptr;
    QComboBox* cboRevisedFile = nullptr;
    LineDetailView* rtfLineDiff[2] = {nullptr, nullptr};
    DiffReportControl* ctlDiffReport = nullptr; // made on first use
    QProgressBar* Animation1 = nullptr;
    DiffBarView* pctContainer = nullptr;
    QWidget* client_ = nullptr;
    QWidget* Splitter = nullptr;
    WindowRegions regions_;
    SplitterDrag splitterDrag_;
    Commands* commands_ = nullptr;
    RunGate* gate_ = nullptr;

    DiffList DiffList_;
    std::vector<long> BookmarkList;
    std::vector<std::string> SearchTextList;
    long PreviousArrowRow = 0;
    int mousePointer_ = PointerDefault;
    bool unloaded_ = false;
};

} // namespace orvane
