// Web pages fetched by the real window from a server on 127.0.0.1 started here: an error page is
// compared, the window keeps running during a slow fetch, Esc and closing cancel it, and the cause
// of a failure is written to ERR_DETAIL.TXT.
#include "tests/intake_download/HttpTestServer.h"
#include "tests/ui/DriverFixture.h"

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <chrono>
#include <fstream>
#include <sstream>

namespace orvane::test {
namespace {

class DownloadWindow : public DriverTest {
  protected:
    void SetUp() override {
        ::setenv("no_proxy", "127.0.0.1,localhost", 1);
        DriverTest::SetUp();
        saved_ = SetPrompter(events_);
    }
    void TearDown() override {
        SetPrompter(saved_);
        DriverTest::TearDown();
    }
    // Seconds that the comparison took.
    double TimedCompare(const std::string& original, const std::string& revised) {
        const auto start = std::chrono::steady_clock::now();
        Compare(original, revised);
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }
    std::string ErrDetail() const {
        std::ifstream in(dir.Path() + "ERR_DETAIL.TXT", std::ios::binary);
        std::ostringstream s;
        s << in.rdbuf();
        return s.str();
    }
    std::vector<RecordedBox>& Boxes() { return events_->boxes; }
    void ExpectOneFailureBox() {
        ASSERT_EQ(Boxes().size(), 1u);
        EXPECT_EQ(Boxes()[0].title, "Web Page Download failure");
        EXPECT_NE(Boxes()[0].text.find("Make sure that you are connected to the Internet"),
                  std::string::npos);
    }

    HttpTestServer server;
    std::shared_ptr<EventfulPrompter> events_ = std::make_shared<EventfulPrompter>();
    std::shared_ptr<Prompter> saved_;
};

TEST_F(DownloadWindow, ANotFoundPageIsCompared) {
    server.Route("/gone", [](HttpConnection& c) {
        c.Send(Response(404, "<p>Not here</p>\n<p>Sorry</p>\n"));
    });
    Compare(dir.Write("a.html", "<p>Not here</p>\n"), server.Url("/gone"));
    EXPECT_TRUE(Boxes().empty()) << Boxes()[0].title;
    EXPECT_FALSE(Idle());
    EXPECT_EQ(window->RevisedGrid().RowText(2), " 2:<p>Sorry</p>");
    EXPECT_EQ(ErrDetail(), "");
}

// 30 pieces, one every 100 ms: the window's timers keep firing all through the fetch.
TEST_F(DownloadWindow, TheWindowKeepsRunningDuringASlowFetch) {
    server.Route("/slow", [](HttpConnection& c) {
        if (!c.Send("HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n<p>")) return;
        for (int i = 0; i < 30; ++i)
            if (!c.Pause(100) || !c.Send("t")) return;
        c.Send("</p>\n");
    });
    int ticks = 0;
    QTimer ticker;
    QObject::connect(&ticker, &QTimer::timeout, [&] { ++ticks; });
    ticker.start(50);
    const double seconds = TimedCompare(dir.Write("a.html", "<p>x</p>\n"), server.Url("/slow"));
    EXPECT_TRUE(Boxes().empty());
    EXPECT_EQ(window->RevisedGrid().RowText(1), " 1:<p>" + std::string(30, 't') + "</p>");
    EXPECT_GT(seconds, 2.5);
    EXPECT_GT(ticks, static_cast<int>(seconds * 20 / 3)); // a third of the ticks at the least
}

TEST_F(DownloadWindow, EscCancelsAServerThatNeverAnswers) {
    server.Route("/silent", [](HttpConnection& c) { c.WaitForClose(30'000); });
    QTimer::singleShot(300, [this] { QTest::keyClick(window->OriginalFileBox(), Qt::Key_Escape); });
    const double seconds = TimedCompare(dir.Write("a.html", "<p>x</p>\n"), server.Url("/silent"));
    EXPECT_LT(seconds, 5.0); // the fetch's own limits would take 30 s
    ExpectOneFailureBox();
    EXPECT_TRUE(Idle());
    const std::string detail = ErrDetail();
    EXPECT_NE(detail.find(server.Url("/silent")), std::string::npos) << detail;
    EXPECT_NE(detail.find("cancelled by the user"), std::string::npos) << detail;
}

TEST_F(DownloadWindow, ClosingTheWindowCancelsTheFetch) {
    server.Route("/silent", [](HttpConnection& c) { c.WaitForClose(30'000); });
    QTimer::singleShot(300, [this] { window->close(); });
    const double seconds = TimedCompare(dir.Write("a.html", "<p>x</p>\n"), server.Url("/silent"));
    EXPECT_LT(seconds, 5.0);
    ExpectOneFailureBox();
    EXPECT_NE(ErrDetail().find("cancelled by the user"), std::string::npos);
    QTest::qWait(300); // the close, held back during the fetch, follows
    EXPECT_FALSE(window->isVisible());
}

// The cause goes to ERR_DETAIL.TXT in the reporter's record layout, with no box of its own.
TEST_F(DownloadWindow, TheCauseOfAFailureIsRecorded) {
    const std::string url = "http://127.0.0.1:" + std::to_string(ClosedPort()) + "/page";
    Compare(dir.Write("a.html", "<p>x</p>\n"), url);
    ExpectOneFailureBox();
    const std::string detail = ErrDetail();
    ASSERT_TRUE(detail.starts_with("\r\n")) << detail;
    const std::size_t dateEnd = detail.find("\r\n", 2);
    ASSERT_NE(dateEnd, std::string::npos);
    EXPECT_GT(dateEnd, 2u); // the date and time of the report
    const std::string rest = detail.substr(dateEnd + 2);
    EXPECT_TRUE(rest.starts_with("Error: Web page not downloaded: refused connection")) << rest;
    EXPECT_NE(rest.find("\r\nSource: modOrvane.DownloadWebPage\r\nNo: "), std::string::npos);
    EXPECT_NE(rest.find("\r\n\r\n- More Information - \r\nAddress: " + url + "\r\n"),
              std::string::npos)
        << rest;
    EXPECT_TRUE(rest.ends_with("\r\n"));
}

} // namespace
} // namespace orvane::test
