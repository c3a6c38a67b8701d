#pragma once
// The one-window report as the window and its commands drive it: set up, start, wait until
// done, read the result, then walk, find and save what is shown. The comparison itself runs
// on a worker thread in the Qt-free report engine, so the window keeps painting meanwhile.
#include "report/ReportTypes.h"
#include "results/report/ReportView.h"

#include <future>
#include <string>

namespace orvane {

class DiffReportControl : public ReportView {
    Q_OBJECT
  public:
    explicit DiffReportControl(QWidget* parent = nullptr);
    ~DiffReportControl() override;

    // The three leading switches are fixed by every caller and mean nothing here.
    void SetDiffOptions(bool, bool, bool, bool ignoreFormatting, bool ignoreCase,
                        int whiteSpaceMode, int level);
    void SetOriginalSource(const std::string& source) { original_ = source; }
    void SetRevisedSource(const std::string& source) { revised_ = source; }
    void SetShowNumbers(bool show) { options_.showNumbers = show; }
    void SetCompareKind(int kind) { options_.kind = static_cast<report::CompareKind>(kind); }
    void SetProductTitle(const std::string& title) { options_.productTitle = title; }
    void SetBanner(const std::string& text, const std::string& homePage, const std::string& product,
                   const std::string& title);
    void SetStyle(int) {} // one look only

    void StartCompare();
    // True once the engine has answered and its page is shown (or could not be).
    bool IsDone();
    int GetResult() const { return result_; }

    void ClearReport() override;
    // Prints the shown report on `printer` (a CUPS queue): its PDF goes to the queue as it is.
    bool PrintReport(const std::string& printer);

  private:
    void ShowResult(report::ReportResult result);
    void RemoveReportFile();

    report::ReportOptions options_;
    std::string original_;
    std::string revised_;
    std::future<report::ReportResult> running_;
    int result_ = report::kUnknownProblem;
    std::string reportFile_;
};

} // namespace orvane
