// Fetches from a real server on 127.0.0.1: pages, redirects, error statuses, answers cut short
// and answers that never end.
#include "DownloadFixture.h"
#include "support/RecordingPrompter.h"

#include <zlib.h>

namespace orvane::test {
namespace {

using namespace std::string_literals;

const std::string kPage = "<html>\r\n<body>caf\xc3\xa9\0 and bytes\x01\xff</body>\n</html>"s;

std::string HeadWithoutLength(const std::string& extra = {}) {
    return "HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nConnection: close\r\n" + extra + "\r\n";
}

std::string Gzip(const std::string& bytes) {
    z_stream z{};
    deflateInit2(&z, Z_BEST_COMPRESSION, Z_DEFLATED, 15 + 16, 9, Z_DEFAULT_STRATEGY);
    std::string out(deflateBound(&z, bytes.size()), '\0');
    z.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
    z.avail_in = static_cast<uInt>(bytes.size());
    z.next_out = reinterpret_cast<Bytef*>(out.data());
    z.avail_out = static_cast<uInt>(out.size());
    deflate(&z, Z_FINISH);
    out.resize(z.total_out);
    deflateEnd(&z);
    return out;
}

class HttpDownloadTest : public DownloadTest {
  protected:
    void SetUp() override {
        DownloadTest::SetUp();
        server.Route("/page", [](HttpConnection& c) { c.Send(Response(200, kPage)); });
        for (int hop = 1; hop <= 21; ++hop)
            server.Route("/hop/" + std::to_string(hop), [hop](HttpConnection& c) {
                c.Send(Redirect(hop == 1 ? "/page" : "/hop/" + std::to_string(hop - 1)));
            });
    }
};

TEST_F(HttpDownloadTest, PageArrivesByteForByteAndReplacesWhatWasThere) {
    std::ofstream(target, std::ios::binary) << std::string(500, 'x');
    const DownloadResult result = FetchPath("/page");
    ASSERT_TRUE(result.Ok()) << result.Reason;
    EXPECT_EQ(result.HttpStatus, 200);
    EXPECT_EQ(ReadWhole(target), kPage);
}

// No box: the cause of a failure goes to ERR_DETAIL.TXT only.
TEST_F(HttpDownloadTest, ProgramEntryUsesTheProgramLimitsAndReportsNothing) {
    ScopedRecordingPrompter prompter;
    EXPECT_TRUE(modOrvane::DownloadWebPage(server.Url("/page"), target));
    EXPECT_EQ(ReadWhole(target), kPage);
    EXPECT_TRUE(modOrvane::DownloadWebPage(server.Url("/missing"), target)); // the 404 page
    EXPECT_FALSE(Exists(dir.Path() + "ERR_DETAIL.TXT"));
    EXPECT_FALSE(modOrvane::DownloadWebPage("ftp://127.0.0.1/page", target));
    EXPECT_TRUE(prompter->boxes.empty());
    const std::string detail = ReadWhole(dir.Path() + "ERR_DETAIL.TXT");
    EXPECT_NE(detail.find("refused scheme"), std::string::npos) << detail;
    EXPECT_NE(detail.find("Address: ftp://127.0.0.1/page\r\n"), std::string::npos) << detail;
}

TEST_F(HttpDownloadTest, ProgramLimitsAreTheDocumentedOnes) {
    const DownloadLimits d;
    EXPECT_LE(d.ConnectTimeoutMs + d.LowSpeedSeconds * 1000, 30'000);
    EXPECT_GT(d.LowSpeedBytesPerSecond, 0);
    EXPECT_EQ(d.MaxRedirects, 20);
    EXPECT_EQ(d.MaxBytes, 100LL * 1024 * 1024);
}

TEST_F(HttpDownloadTest, TwentyRedirectsAreFollowedAndTheTwentyFirstIsNot) {
    ASSERT_TRUE(FetchPath("/hop/20").Ok());
    EXPECT_EQ(ReadWhole(target), kPage);
    const DownloadResult result = FetchPath("/hop/21");
    EXPECT_EQ(result.Failure, DownloadFailure::TooManyRedirects);
    EXPECT_FALSE(Exists(target));
}

TEST_F(HttpDownloadTest, AbsoluteRedirectIsFollowed) {
    const std::string page = server.Url("/page");
    server.Route("/moved", [page](HttpConnection& c) { c.Send(Redirect(page)); });
    ASSERT_TRUE(FetchPath("/moved").Ok());
    EXPECT_EQ(ReadWhole(target), kPage);
}

TEST_F(HttpDownloadTest, RedirectLoopEndsAfterTheLimit) {
    server.Route("/a", [](HttpConnection& c) { c.Send(Redirect("/b")); });
    server.Route("/b", [](HttpConnection& c) { c.Send(Redirect("/a")); });
    EXPECT_EQ(FetchPath("/a").Failure, DownloadFailure::TooManyRedirects);
    EXPECT_EQ(server.RequestedPaths().size(), 21u); // the first request and twenty redirects
    EXPECT_FALSE(Exists(target));
}

TEST_F(HttpDownloadTest, RedirectToAnotherSchemeIsRefused) {
    for (const char* location : {"file:///etc/hostname", "ftp://127.0.0.1/page"}) {
        SCOPED_TRACE(location);
        target = dir.Write("htm1A2B.tmp", "");
        server.Route("/away", [location](HttpConnection& c) { c.Send(Redirect(location)); });
        EXPECT_EQ(FetchPath("/away").Failure, DownloadFailure::Refused);
        EXPECT_FALSE(Exists(target));
    }
}

// What the server sends is the page, whatever the status: an error page is compared too.
TEST_F(HttpDownloadTest, ErrorStatusPageIsKept) {
    for (int status : {400, 403, 404, 410, 500, 503}) {
        SCOPED_TRACE(status);
        target = dir.Write("htm1A2B.tmp", "");
        server.Route("/error", [status](HttpConnection& c) {
            c.Send(Response(status, "<html>Error page</html>"));
        });
        const DownloadResult result = FetchPath("/error");
        EXPECT_TRUE(result.Ok()) << result.Reason;
        EXPECT_EQ(result.HttpStatus, status);
        EXPECT_EQ(ReadWhole(target), "<html>Error page</html>");
    }
}

struct CutCase {
    const char* name;
    std::string bytes; // everything the server sends before it closes
    DownloadFailure failure;
};

TEST_F(HttpDownloadTest, AnswerCutShortIsAFailureAndLeavesNoFile) {
    const CutCase cases[] = {
        {"nothing", "", DownloadFailure::Incomplete},
        {"length promised",
         "HTTP/1.1 200 OK\r\nContent-Length: 1000\r\nConnection: close\r\n\r\n" + kPage,
         DownloadFailure::Incomplete},
        {"chunk cut", HeadWithoutLength("Transfer-Encoding: chunked\r\n") + "40\r\n<html>",
         DownloadFailure::Incomplete},
        {"head cut", "HTTP/1.1 200 OK\r\nContent-Le", DownloadFailure::Incomplete},
        {"status line only", "HTTP/1.1 200 OK\r\n", DownloadFailure::Incomplete},
        {"status line cut", "HTTP/1.1 2", DownloadFailure::Incomplete},
    };
    for (const CutCase& c : cases) {
        SCOPED_TRACE(c.name);
        target = dir.Write("htm1A2B.tmp", "old");
        server.Route("/cut", [&c](HttpConnection& connection) { connection.Send(c.bytes); });
        const DownloadResult result = FetchPath("/cut");
        EXPECT_EQ(result.Failure, c.failure) << result.Reason;
        EXPECT_FALSE(Exists(target));
    }
}

// Without a length the close is the end of the body, as HTTP/1.0 servers still do it.
TEST_F(HttpDownloadTest, BodyEndedByTheCloseIsWhole) {
    server.Route("/close", [](HttpConnection& c) { c.Send(HeadWithoutLength() + kPage); });
    ASSERT_TRUE(FetchPath("/close").Ok());
    EXPECT_EQ(ReadWhole(target), kPage);
}

struct CapCase {
    bool announced; // with Content-Length
    int beyondCap;
    bool ok;
};

TEST_F(HttpDownloadTest, ByteCapHoldsExactlyWithAndWithoutAnnouncedLength) {
    const CapCase cases[] = {
        {true, 0, true}, {true, 1, false}, {false, 0, true}, {false, 1, false}};
    for (const CapCase& c : cases) {
        SCOPED_TRACE(testing::Message() << c.announced << " " << c.beyondCap);
        target = dir.Write("htm1A2B.tmp", "");
        const std::string body(static_cast<std::size_t>(limits.MaxBytes + c.beyondCap), 'p');
        server.Route("/big", [&](HttpConnection& connection) {
            connection.Send(c.announced ? Response(200, body) : HeadWithoutLength() + body);
        });
        const DownloadResult result = FetchPath("/big");
        EXPECT_EQ(result.Ok(), c.ok) << result.Reason;
        if (c.ok) {
            EXPECT_EQ(ReadWhole(target).size(), body.size());
        } else {
            EXPECT_EQ(result.Failure, DownloadFailure::TooLarge);
            EXPECT_FALSE(Exists(target));
        }
    }
}

TEST_F(HttpDownloadTest, EndlessBodyStopsAtTheCap) {
    server.Route("/endless", [](HttpConnection& c) {
        if (!c.Send(HeadWithoutLength())) return;
        const std::string chunk(16 * 1024, 'e');
        for (int i = 0; i < 4096 && c.Send(chunk); ++i) {
        }
    });
    DownloadResult result;
    EXPECT_LT(TimedFetchPath("/endless", result), 5.0);
    EXPECT_EQ(result.Failure, DownloadFailure::TooLarge);
    EXPECT_FALSE(Exists(target));
}

TEST_F(HttpDownloadTest, CompressedBodyIsCappedAfterDecoding) {
    const std::string small = Gzip(kPage);
    const std::string bomb = Gzip(std::string(8 * 1024 * 1024, '\0'));
    ASSERT_LT(bomb.size(), static_cast<std::size_t>(limits.MaxBytes));
    server.Route("/small", [&small](HttpConnection& c) {
        c.Send(Response(200, small, "Content-Encoding: gzip\r\n"));
    });
    server.Route("/bomb", [&bomb](HttpConnection& c) {
        c.Send(Response(200, bomb, "Content-Encoding: gzip\r\n"));
    });
    ASSERT_TRUE(FetchPath("/small").Ok());
    EXPECT_EQ(ReadWhole(target), kPage);
    EXPECT_EQ(FetchPath("/bomb").Failure, DownloadFailure::TooLarge);
    EXPECT_FALSE(Exists(target));
}

TEST_F(HttpDownloadTest, TypedSpacesAndLettersAreEncodedInThePath) {
    server.Route("/a%20b%C3%A9?q=1%202", [](HttpConnection& c) { c.Send(Response(200, kPage)); });
    ASSERT_TRUE(Fetch(server.Url("/a b\xc3\xa9?q=1 2")).Ok());
    EXPECT_EQ(server.RequestedPaths().back(), "/a%20b%C3%A9?q=1%202");
}

TEST_F(HttpDownloadTest, UnwritableTargetIsAFailureWithoutABox) {
    ScopedRecordingPrompter prompter;
    target = dir.Path() + "no/such/folder/htm1.tmp";
    EXPECT_EQ(FetchPath("/page").Failure, DownloadFailure::Write);
    EXPECT_FALSE(modOrvane::DownloadWebPage(server.Url("/page"), target));
    EXPECT_TRUE(prompter->boxes.empty());
}

} // namespace
} // namespace orvane::test
