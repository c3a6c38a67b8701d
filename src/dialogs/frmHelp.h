#pragma once
#include <QWidget>
#include <functional>
#include <string>

class QTextBrowser;
class QToolButton;

namespace orvane {

// The help window: our own HTML pages in a text browser, with links between topics, back and
// forward, and a way to the same page in the desktop's browser.
class frmHelp : public QWidget {
    Q_OBJECT
  public:
    // Context 1 is the contents, 7 the welcome topic; others fall back to the contents.
    static QString PageForContext(int context);

    // Shows the one help window at a topic, making it when needed. `helpFolder` ends in '/'.
    static frmHelp* ShowTopic(const std::string& helpFolder, int context);
    static frmHelp* Instance(); // the window, or null

    explicit frmHelp(const std::string& helpFolder, QWidget* parent = nullptr);
    ~frmHelp() override;

    void ShowPage(const QString& page);
    QTextBrowser* Browser() const { return brwHelp_; }
    // The local file of the page shown; what "Open in Browser" hands to the desktop.
    QString CurrentFile() const;

    // Replaced in tests, so that no browser is started.
    std::function<void(const QUrl&)> OpenExternally;

  private:
    void cmdOpenInBrowser_Click();

    QString folder_;
    QTextBrowser* brwHelp_;
    QToolButton* cmdBack_;
    QToolButton* cmdForward_;
    QToolButton* cmdContents_;
    QToolButton* cmdOpenInBrowser_;
};

} // namespace orvane
