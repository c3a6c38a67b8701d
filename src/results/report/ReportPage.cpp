#include "results/report/ReportPage.h"

#include <QWebEngineSettings>
#include <utility>

namespace orvane {

bool ReportRequestFilter::Allows(const QUrl& url, bool allowWeb) {
    const QString scheme = url.scheme().toLower();
    if (scheme == "file" || scheme == "data" || scheme == "about") return true;
    return allowWeb && (scheme == "http" || scheme == "https");
}

void ReportRequestFilter::interceptRequest(QWebEngineUrlRequestInfo& info) {
    const bool mainFrame = info.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeMainFrame;
    // A web page never becomes the shown document, even when its images may load.
    const bool allowed =
        mainFrame ? Allows(info.requestUrl(), false) : Allows(info.requestUrl(), allowWeb_);
    if (!allowed) info.block(true);
}

ReportPage::ReportPage(QWebEngineProfile* profile, QObject* parent)
    : QWebEnginePage(profile, parent) {
    QWebEngineSettings* s = settings();
    s->setAttribute(QWebEngineSettings::JavascriptEnabled, false);
    s->setAttribute(QWebEngineSettings::JavascriptCanOpenWindows, false);
    s->setAttribute(QWebEngineSettings::PluginsEnabled, false);
    s->setAttribute(QWebEngineSettings::NavigateOnDropEnabled, false);
    s->setAttribute(QWebEngineSettings::ErrorPageEnabled, false);
    s->setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, false);
    s->setAttribute(QWebEngineSettings::AutoLoadIconsForPage, false);
    s->setAttribute(QWebEngineSettings::PdfViewerEnabled, false);
}

bool ReportPage::acceptNavigationRequest(const QUrl& url, NavigationType, bool isMainFrame) {
    if (!isMainFrame) return ReportRequestFilter::Allows(url, false);
    if (url.scheme() == "data" || url.scheme() == "about")
        return std::exchange(blankExpected_, false);
    if (url.adjusted(QUrl::RemoveFragment) != expected_) return false; // meta refresh, links out
    if (url.hasFragment()) emit FragmentFollowed(url.fragment());
    return true;
}

} // namespace orvane
