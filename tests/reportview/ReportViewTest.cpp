// The report view on the real engine, offscreen: it shows a report, walks its differences with
// the page scrolled to each, searches without wrapping, and lets nothing in the page run or
// reach out on its own.
#include "results/report/ReportView.h"
#include "results/report/DiffReportControl.h"
#include "results/report/ReportPage.h"
#include "results/report/WebEngineProcess.h"
#include "support/TempDir.h"

#include <QApplication>
#include <QEventLoop>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QWebEngineView>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace orvane {
namespace {

// Three differences far apart, so that each move must scroll; "needle" occurs three times.
std::string ReportWithThreeDifferences(const std::string& extraHead = "") {
    std::string page = "<!DOCTYPE html><html><head><meta charset='utf-8'>" + extraHead +
                       "<style>.gap{height:1500px}</style></head><body>";
    page += "<p>needle one</p>";
    for (int k = 0; k < 3; ++k) {
        // The engine's shape: the anchor inside the difference's first mark.
        const std::string n = std::to_string(k);
        page += "<div class='gap'></div><p id='p" + n +
                "'><ins><span class='orvane-chrome' id='orvane-diff-" + n + "'></span>added " + n +
                "</ins> <del>gone</del></p>";
    }
    page += "<p>needle two</p><div class='gap'></div><p>needle three</p></body></html>";
    return page;
}

void Pause(int ms) {
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

class ReportViewTest : public ::testing::Test {
  protected:
    ReportViewTest() {
        view.resize(800, 600);
        view.show();
    }
    std::string Write(const std::string& html) { return dir.Write("report.html", html); }
    bool IsCurrent(int k) {
        const QString script = "document.querySelectorAll('#p%1 .orvane-current').length == 2 && "
                               "document.querySelectorAll('.orvane-current').length == 2";
        return view.RunScript(script.arg(k)).toBool();
    }

    test::TempDir dir;
    ReportView view;
};

TEST_F(ReportViewTest, WalksDifferencesScrollingEachIntoViewAndMarkingIt) {
    ASSERT_TRUE(view.ShowReport(Write(ReportWithThreeDifferences()), false));
    EXPECT_EQ(view.DifferenceCount(), 3);
    EXPECT_EQ(view.ScrollTop(), 0);

    view.GoToFirstDifference();
    const double first = view.ScrollTop();
    EXPECT_GT(first, 1000);
    EXPECT_TRUE(IsCurrent(0));

    view.GoToNextDifference();
    EXPECT_EQ(view.CurrentDifference(), 1);
    EXPECT_GT(view.ScrollTop(), first + 1000);
    EXPECT_TRUE(IsCurrent(1));
    EXPECT_FALSE(IsCurrent(0));

    view.GoToLastDifference();
    EXPECT_EQ(view.CurrentDifference(), 2);
    view.GoToNextDifference(); // no wrap past the last
    EXPECT_EQ(view.CurrentDifference(), 2);
    view.GoToPreviousDifference();
    view.GoToPreviousDifference();
    view.GoToPreviousDifference();
    EXPECT_EQ(view.CurrentDifference(), 0);
    EXPECT_NEAR(view.ScrollTop(), first, 1);
}

TEST_F(ReportViewTest, FindStopsAtEitherEndInsteadOfWrapping) {
    ASSERT_TRUE(view.ShowReport(Write(ReportWithThreeDifferences()), false));
    EXPECT_FALSE(view.FindText("haystack"));
    ASSERT_TRUE(view.FindText("needle"));
    EXPECT_TRUE(view.FindAgain("needle", true));
    EXPECT_TRUE(view.FindAgain("needle", true));
    EXPECT_FALSE(view.FindAgain("needle", true)); // at the third of three
    EXPECT_TRUE(view.FindAgain("needle", false)); // and it stayed on the third
    EXPECT_TRUE(view.FindAgain("needle", false));
    EXPECT_FALSE(view.FindAgain("needle", false));
    EXPECT_TRUE(view.FindText("NEEDLE")) << "search ignores case";
}

TEST_F(ReportViewTest, PageScriptsDoNotRunAndNothingNavigatesAway) {
    const std::string elsewhere = dir.Write("elsewhere.html", "<p>elsewhere</p>");
    const std::string head = "<meta http-equiv='refresh' content='0; url=file://" + elsewhere +
                             "'><script>document.title = 'ran';</script>";
    const std::string report = Write(ReportWithThreeDifferences(head));
    ASSERT_TRUE(view.ShowReport(report, false));
    Pause(1500);
    EXPECT_EQ(view.WebView()->url().toLocalFile().toStdString(), report);
    EXPECT_NE(view.WebView()->title(), "ran");
    EXPECT_EQ(view.DifferenceCount(), 3);
}

TEST_F(ReportViewTest, SavesTheShownReportAndClearsToNothing) {
    const std::string html = ReportWithThreeDifferences();
    ASSERT_TRUE(view.ShowReport(Write(html), false));
    const std::string saved = dir.Path() + "saved.html";
    ASSERT_TRUE(view.SaveReport(saved));
    std::ostringstream bytes;
    bytes << std::ifstream(saved, std::ios::binary).rdbuf();
    EXPECT_EQ(bytes.str(), html);

    view.ClearReport();
    EXPECT_FALSE(view.HasReport());
    EXPECT_EQ(view.DifferenceCount(), 0);
    EXPECT_FALSE(view.SaveReport(dir.Path() + "none.html"));
    EXPECT_FALSE(view.FindText("needle"));
    EXPECT_FALSE(view.ShowReport(dir.Path() + "missing.html", false));
}

TEST(ReportRequestFilterTest, WebOnlyWhenAnInputWasAWebAddress) {
    struct Case {
        const char* url;
        bool local, web;
    } cases[] = {
        {"file:///tmp/a.png", true, true},         {"data:image/png;base64,AAAA", true, true},
        {"http://example.org/a.css", false, true}, {"HTTPS://example.org/a.css", false, true},
        {"ftp://example.org/a.png", false, false}, {"javascript:alert(1)", false, false}};
    for (const Case& c : cases) {
        EXPECT_EQ(ReportRequestFilter::Allows(QUrl(c.url), false), c.local) << c.url;
        EXPECT_EQ(ReportRequestFilter::Allows(QUrl(c.url), true), c.web) << c.url;
    }
}

// An image on a loopback server: requested only when the inputs came from the web.
TEST_F(ReportViewTest, WebImagesLoadOnlyWhenAllowed) {
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    int requests = 0;
    QObject::connect(&server, &QTcpServer::newConnection, [&] {
        while (QTcpSocket* s = server.nextPendingConnection()) {
            ++requests;
            s->write("HTTP/1.0 404 Not Found\r\nContent-Length: 0\r\n\r\n");
            s->disconnectFromHost();
        }
    });
    const std::string html =
        "<p><img src='http://127.0.0.1:" + std::to_string(server.serverPort()) + "/a.png'></p>";
    ASSERT_TRUE(view.ShowReport(Write(html), false));
    Pause(700);
    EXPECT_EQ(requests, 0);
    ASSERT_TRUE(view.ShowReport(Write(html), true));
    Pause(700);
    EXPECT_GE(requests, 1);
}

// The control as the window drives it: the engine runs while events are processed, and its
// code and page arrive together.
class DiffReportControlTest : public ::testing::Test {
  protected:
    int Run(const std::string& a, const std::string& b) {
        control.SetDiffOptions(true, true, false, false, false, 0, 1);
        control.SetOriginalSource(a);
        control.SetRevisedSource(b);
        control.SetShowNumbers(true);
        control.SetCompareKind(2);
        control.StartCompare();
        while (!control.IsDone())
            QApplication::processEvents(QEventLoop::AllEvents, 20);
        return control.GetResult();
    }
    test::TempDir dir;
    DiffReportControl control;
};

TEST_F(DiffReportControlTest, ShowsTheEnginesPageWithItsDifferences) {
    const auto a = dir.Write("a.html", "<p>The quick brown fox.</p><p>Stays.</p><p>Old end.</p>");
    const auto b = dir.Write("b.html", "<p>The quick red fox.</p><p>Stays.</p><p>New end.</p>");
    ASSERT_EQ(Run(a, b), 0);
    EXPECT_EQ(control.DifferenceCount(), 2);
    control.GoToLastDifference();
    EXPECT_EQ(control.CurrentDifference(), 1);
    // The last difference is "New" inserted and "Old" removed: both parts are lit.
    EXPECT_TRUE(control
                    .RunScript("var c = document.querySelectorAll('.orvane-current');"
                               "c.length == 2 && c[1].textContent == 'Old'")
                    .toBool());
    EXPECT_TRUE(control.FindText("quick"));
    const std::string saved = dir.Path() + "saved.html";
    ASSERT_TRUE(control.SaveReport(saved));
    std::ostringstream bytes;
    bytes << std::ifstream(saved).rdbuf();
    EXPECT_NE(bytes.str().find("<del"), std::string::npos);
    EXPECT_EQ(bytes.str().find("<script"), std::string::npos);
}

TEST_F(DiffReportControlTest, AnswersIdenticalAndUnreadableWithTheirCodes) {
    const auto a = dir.Write("a.html", "<p>Same.</p>");
    const auto b = dir.Write("b.html", "<p>Same.</p>");
    EXPECT_EQ(Run(a, b), 1);
    EXPECT_EQ(control.DifferenceCount(), 0);
    EXPECT_EQ(Run(dir.Path() + "missing.html", b), 5);
    EXPECT_FALSE(control.HasReport());
    EXPECT_EQ(Run(a, dir.Path() + "missing.html"), 6);
}

} // namespace
} // namespace orvane

int main(int argc, char** argv) {
    orvane::PrepareWebEngineProcess();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
