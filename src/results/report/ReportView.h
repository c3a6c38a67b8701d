#pragma once
// The merged report inside the main window: shows a report file the engine wrote, and walks,
// searches and saves it. Nothing of the compared pages runs in it (see ReportPage).
#include <QString>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>

class QWebEngineProfile;
class QWebEngineView;

namespace orvane {

class ReportPage;
class ReportRequestFilter;

class ReportView : public QWidget {
    Q_OBJECT
  public:
    explicit ReportView(QWidget* parent = nullptr);
    ~ReportView() override;

    // Shows the report in `file` and waits for it while the window's events run. `allowWeb`
    // lets the page's images and styles come from the web (an input was a web address).
    bool ShowReport(const std::string& file, bool allowWeb);
    virtual void ClearReport();
    bool HasReport() const { return !shownFile_.empty(); }
    // Writes the shown report to `path` in one step: a reader never sees half a file.
    bool SaveReport(const std::string& path) const;

    int DifferenceCount() const { return differenceCount_; }
    int CurrentDifference() const { return current_; }
    void GoToFirstDifference() { GoToDifference(0); }
    void GoToLastDifference() { GoToDifference(differenceCount_ - 1); }
    void GoToNextDifference() { GoToDifference(current_ + 1); }
    void GoToPreviousDifference() { GoToDifference(current_ - 1); }

    // True when the text occurs in the report; the first match is selected.
    bool FindText(const QString& text);
    // The next or previous match after the selected one; at the end of the report the
    // selection stays where it was and the answer is false (no wrap-around).
    bool FindAgain(const QString& text, bool forward);

    // The shown report as a PDF file, laid out by the engine: text stays text. False when there
    // is no report or the file could not be written.
    bool PrintToPdf(const std::string& path);

    void SetReportFont(const QString& family, int pointSize, bool bold, bool italic);

    QWebEngineView* WebView() const { return view_; }
    // Runs a script in the view's own world and waits for its value (invalid on failure).
    QVariant RunScript(const QString& script);
    // Vertical scroll position of the page in CSS pixels; -1 when it cannot be read.
    double ScrollTop();

  private:
    void GoToDifference(int index);
    std::optional<bool> LoadAndWait(const std::function<void()>& start);
    struct FindResult {
        int matches = 0;
        int active = 0;
    };
    FindResult Find(const QString& text, bool backward);
    void ApplyFontStyle();

    QWebEngineProfile* profile_ = nullptr;
    ReportRequestFilter* filter_ = nullptr;
    ReportPage* page_ = nullptr;
    QWebEngineView* view_ = nullptr;
    std::string shownFile_;
    int differenceCount_ = 0;
    int current_ = 0;
    QString lastFind_;
    int lastActive_ = 0;
    QString fontStyle_;
};

} // namespace orvane
