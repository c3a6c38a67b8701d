#pragma once
// The page that shows a report: nothing in it may run, navigate or reach out on its own.
#include <QUrl>
#include <QWebEnginePage>
#include <QWebEngineUrlRequestInterceptor>

namespace orvane {

// Sub-resources of a report: local and inline ones always; web ones only when an input
// was itself a web address, so comparing two local files never touches the network.
class ReportRequestFilter : public QWebEngineUrlRequestInterceptor {
  public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;
    void SetAllowWeb(bool allow) { allowWeb_ = allow; }
    void interceptRequest(QWebEngineUrlRequestInfo& info) override;
    static bool Allows(const QUrl& url, bool allowWeb);

  private:
    bool allowWeb_ = false;
};

class ReportPage : public QWebEnginePage {
    Q_OBJECT
  public:
    explicit ReportPage(QWebEngineProfile* profile, QObject* parent = nullptr);
    // The one document this page may show; links inside it may only move within it.
    void ExpectDocument(const QUrl& url) { expected_ = url.adjusted(QUrl::RemoveFragment); }
    // The next inline (empty) document is ours: it is how the view clears itself.
    void ExpectBlank() { blankExpected_ = true; }

  signals:
    void FragmentFollowed(const QString& fragment);

  protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;
    QWebEnginePage* createWindow(WebWindowType) override { return nullptr; }

  private:
    QUrl expected_;
    bool blankExpected_ = false;
};

} // namespace orvane
