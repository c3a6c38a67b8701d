#include "dialogs/frmHelp.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPointer>
#include <QScreen>
#include <QShortcut>
#include <QTextBrowser>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>

namespace orvane {
namespace {

constexpr int kContentsContext = 1;
constexpr int kWelcomeContext = 7;

QPointer<frmHelp>& TheWindow() {
    static QPointer<frmHelp> window;
    return window;
}

QToolButton* MakeButton(const QString& name, const QString& text, QWidget* parent) {
    auto* b = new QToolButton(parent);
    b->setObjectName(name);
    b->setText(text);
    b->setToolButtonStyle(Qt::ToolButtonTextOnly);
    return b;
}

} // namespace

QString frmHelp::PageForContext(int context) {
    return context == kWelcomeContext ? "welcome.html" : "index.html";
}

frmHelp* frmHelp::Instance() {
    return TheWindow();
}

frmHelp* frmHelp::ShowTopic(const std::string& helpFolder, int context) {
    QPointer<frmHelp>& window = TheWindow();
    if (!window) {
        window = new frmHelp(helpFolder);
        window->setAttribute(Qt::WA_DeleteOnClose);
    }
    window->ShowPage(PageForContext(context));
    window->show();
    window->raise();
    window->activateWindow();
    return window;
}

frmHelp::frmHelp(const std::string& helpFolder, QWidget* parent)
    : QWidget(parent, Qt::Window), folder_(QString::fromStdString(helpFolder)),
      brwHelp_(new QTextBrowser(this)), cmdBack_(MakeButton("cmdBack", "&Back", this)),
      cmdForward_(MakeButton("cmdForward", "&Forward", this)),
      cmdContents_(MakeButton("cmdContents", "&Contents", this)),
      cmdOpenInBrowser_(MakeButton("cmdOpenInBrowser", "Open in &Browser", this)) {
    setObjectName("frmHelp");
    setWindowTitle("Orvane Help");
    OpenExternally = [](const QUrl& url) { QDesktopServices::openUrl(url); };
    brwHelp_->setObjectName("brwHelp");
    brwHelp_->setSearchPaths({folder_});
    brwHelp_->setOpenLinks(false);
    // Our own pages stay in this window; web and mail links go to the desktop.
    connect(brwHelp_, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
        const QUrl url = brwHelp_->source().resolved(link);
        if (url.isLocalFile())
            brwHelp_->setSource(url);
        else
            OpenExternally(url);
    });
    connect(brwHelp_, &QTextBrowser::backwardAvailable, cmdBack_, &QWidget::setEnabled);
    connect(brwHelp_, &QTextBrowser::forwardAvailable, cmdForward_, &QWidget::setEnabled);
    connect(brwHelp_, &QTextBrowser::sourceChanged, this,
            [this] { setWindowTitle(brwHelp_->documentTitle() + " - Orvane Help"); });
    connect(cmdBack_, &QToolButton::clicked, brwHelp_, &QTextBrowser::backward);
    connect(cmdForward_, &QToolButton::clicked, brwHelp_, &QTextBrowser::forward);
    connect(cmdContents_, &QToolButton::clicked, this,
            [this] { ShowPage(PageForContext(kContentsContext)); });
    connect(cmdOpenInBrowser_, &QToolButton::clicked, this, &frmHelp::cmdOpenInBrowser_Click);
    cmdBack_->setEnabled(false);
    cmdForward_->setEnabled(false);
    new QShortcut(QKeySequence::Close, this, this, &QWidget::close);
    new QShortcut(Qt::Key_Escape, this, this, &QWidget::close);

    auto* buttons = new QHBoxLayout;
    for (QToolButton* b : {cmdBack_, cmdForward_, cmdContents_})
        buttons->addWidget(b);
    buttons->addStretch();
    buttons->addWidget(cmdOpenInBrowser_);
    auto* column = new QVBoxLayout(this);
    column->addLayout(buttons);
    column->addWidget(brwHelp_);
    // A readable column of text: about 60 characters wide, two thirds of the screen high.
    const int em = fontMetrics().horizontalAdvance('M');
    int height = 40 * fontMetrics().height();
    if (const QScreen* s = QGuiApplication::primaryScreen())
        height = std::min(height, s->availableGeometry().height() * 2 / 3);
    resize(48 * em, height);
}

frmHelp::~frmHelp() = default;

void frmHelp::ShowPage(const QString& page) {
    brwHelp_->setSource(QUrl::fromLocalFile(folder_ + page));
}

QString frmHelp::CurrentFile() const {
    return brwHelp_->source().toLocalFile();
}

void frmHelp::cmdOpenInBrowser_Click() {
    QUrl url = QUrl::fromLocalFile(CurrentFile());
    url.setFragment(brwHelp_->source().fragment());
    OpenExternally(url);
}

} // namespace orvane
