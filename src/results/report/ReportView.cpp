#include "results/report/ReportView.h"

#include "results/report/ReportPage.h"
#include "results/report/ReportScripts.h"
#include "settings/AtomicWrite.h"

#include <QEventLoop>
#include <QFile>
#include <QPageLayout>
#include <QPageSize>
#include <QTimer>
#include <QVBoxLayout>
#include <QWebEngineFindTextResult>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineSettings>
#include <QWebEngineView>
#include <fstream>
#include <functional>
#include <optional>
#include <sstream>

namespace orvane {
namespace {

// Scripts, searches and loads answer through callbacks; the window's events run meanwhile.
// A local report loads in well under a second; the limit only guards against a dead renderer.
constexpr int kScriptWaitMs = 10'000;
constexpr int kLoadWaitMs = 120'000;

template <typename T>
std::optional<T> WaitFor(const std::function<void(std::function<void(T)>)>& start, int limitMs) {
    QEventLoop loop;
    std::optional<T> result;
    start([&](T value) {
        result = std::move(value);
        loop.quit();
    });
    if (!result) {
        QTimer::singleShot(limitMs, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return result;
}

} // namespace

ReportView::ReportView(QWidget* parent) : QWidget(parent) {
    setObjectName("ctlDiffReport");
    profile_ = new QWebEngineProfile(this); // no storage name: off the record
    profile_->setHttpCacheType(QWebEngineProfile::MemoryHttpCache);
    profile_->setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
    filter_ = new ReportRequestFilter(this);
    profile_->setUrlRequestInterceptor(filter_);
    page_ = new ReportPage(profile_, this);
    view_ = new QWebEngineView(this);
    view_->setPage(page_);
    view_->setContextMenuPolicy(Qt::NoContextMenu);
    view_->setAcceptDrops(false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view_);
    connect(page_, &ReportPage::FragmentFollowed, this, [this](const QString& fragment) {
        // The report's own previous/next links move the current difference too.
        const QString prefix = "orvane-diff-";
        bool ok = false;
        const int index = fragment.startsWith(prefix) ? fragment.mid(prefix.size()).toInt(&ok) : -1;
        if (ok && index >= 0 && index < differenceCount_) current_ = index;
    });
}

ReportView::~ReportView() {
    // The page must go before its profile, or the engine complains and may crash at exit.
    view_->setPage(nullptr);
    delete page_;
    page_ = nullptr;
}

bool ReportView::ShowReport(const std::string& file, bool allowWeb) {
    filter_->SetAllowWeb(allowWeb);
    // A local document may reach the web only through this switch; the filter then decides.
    page_->settings()->setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, allowWeb);
    const QUrl url = QUrl::fromLocalFile(QString::fromStdString(file));
    page_->ExpectDocument(url);
    differenceCount_ = 0;
    current_ = 0;
    lastFind_.clear();
    const auto loaded = LoadAndWait([&] { page_->load(url); });
    if (!loaded || !*loaded) {
        shownFile_.clear();
        return false;
    }
    shownFile_ = file;
    ApplyFontStyle();
    differenceCount_ = RunScript(report_scripts::CountDifferences()).toInt();
    return true;
}

std::optional<bool> ReportView::LoadAndWait(const std::function<void()>& start) {
    return WaitFor<bool>(
        [&](std::function<void(bool)> done) {
            auto connection = std::make_shared<QMetaObject::Connection>();
            *connection =
                connect(page_, &QWebEnginePage::loadFinished, this, [connection, done](bool ok) {
                    disconnect(*connection);
                    done(ok);
                });
            start();
        },
        kLoadWaitMs);
}

void ReportView::ClearReport() {
    shownFile_.clear();
    differenceCount_ = 0;
    current_ = 0;
    lastFind_.clear();
    page_->ExpectBlank();
    // Waited for, so that its late end cannot pass for the next report's.
    LoadAndWait([this] { page_->setHtml(QString(), QUrl("about:blank")); });
}

bool ReportView::SaveReport(const std::string& path) const {
    if (shownFile_.empty()) return false;
    std::ifstream in(shownFile_, std::ios::binary);
    if (!in) return false;
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return WriteFileAtomically(path, bytes.str());
}

void ReportView::GoToDifference(int index) {
    if (index < 0 || index >= differenceCount_) return;
    current_ = index;
    RunScript(report_scripts::ShowDifference(index));
}

QVariant ReportView::RunScript(const QString& script) {
    const auto value = WaitFor<QVariant>(
        [&](std::function<void(QVariant)> done) {
            page_->runJavaScript(script, QWebEngineScript::ApplicationWorld,
                                 [done](const QVariant& v) { done(v); });
        },
        kScriptWaitMs);
    return value.value_or(QVariant());
}

double ReportView::ScrollTop() {
    const QVariant v = RunScript(report_scripts::ScrollTop());
    return v.isValid() ? v.toDouble() : -1.0;
}

ReportView::FindResult ReportView::Find(const QString& text, bool backward) {
    const auto flags = backward ? QWebEnginePage::FindBackward : QWebEnginePage::FindFlags();
    const auto result = WaitFor<FindResult>(
        [&](std::function<void(FindResult)> done) {
            page_->findText(text, flags, [done](const QWebEngineFindTextResult& r) {
                done({r.numberOfMatches(), r.activeMatch()});
            });
        },
        kScriptWaitMs);
    return result.value_or(FindResult{});
}

bool ReportView::FindText(const QString& text) {
    if (shownFile_.empty() || text.isEmpty()) return false;
    page_->findText(QString()); // a new search starts from the top, not from an old selection
    const FindResult r = Find(text, false);
    lastFind_ = r.matches > 0 ? text : QString();
    lastActive_ = r.active;
    return r.matches > 0;
}

bool ReportView::FindAgain(const QString& text, bool forward) {
    if (shownFile_.empty() || text.isEmpty()) return false;
    if (text != lastFind_) return FindText(text);
    const FindResult r = Find(text, !forward);
    const bool wrapped =
        r.matches == 0 || (forward ? r.active <= lastActive_ : r.active >= lastActive_);
    if (wrapped) {
        // The view's search wraps around; ours stops at the end, so step back to where it was.
        if (r.matches > 0 && r.active != lastActive_) Find(text, forward);
        return false;
    }
    lastActive_ = r.active;
    return true;
}

bool ReportView::PrintToPdf(const std::string& path) {
    if (shownFile_.empty()) return false;
    // A long report takes a while (hundreds of pages: tens of seconds); the window keeps running.
    constexpr int kPdfWaitMs = 600'000;
    const auto printed = WaitFor<bool>(
        [&](std::function<void(bool)> done) {
            auto connection = std::make_shared<QMetaObject::Connection>();
            *connection = connect(page_, &QWebEnginePage::pdfPrintingFinished, this,
                                  [connection, done](const QString&, bool ok) {
                                      disconnect(*connection);
                                      done(ok);
                                  });
            page_->printToPdf(QString::fromStdString(path),
                              QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                          QMarginsF(12, 12, 12, 12), QPageLayout::Millimeter));
        },
        kPdfWaitMs);
    return printed.value_or(false);
}

void ReportView::SetReportFont(const QString& family, int pointSize, bool bold, bool italic) {
    QWebEngineSettings* s = page_->settings();
    s->setFontFamily(QWebEngineSettings::StandardFont, family);
    s->setFontFamily(QWebEngineSettings::SansSerifFont, family);
    s->setFontFamily(QWebEngineSettings::SerifFont, family);
    // Settings take CSS pixels: 96 to the inch against the grid's 72 points.
    if (pointSize > 0) s->setFontSize(QWebEngineSettings::DefaultFontSize, pointSize * 96 / 72);
    fontStyle_.clear();
    if (bold) fontStyle_ += "font-weight: bold;";
    if (italic) fontStyle_ += "font-style: italic;";
    if (!shownFile_.empty()) ApplyFontStyle();
}

void ReportView::ApplyFontStyle() {
    if (fontStyle_.isEmpty()) return;
    RunScript(QStringLiteral("(function(){var s=document.createElement('style');"
                             "s.textContent='body{%1}';"
                             "(document.head||document.documentElement).appendChild(s);})()")
                  .arg(fontStyle_));
}

} // namespace orvane
