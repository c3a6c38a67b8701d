// Hosts that do not answer, answer slowly or cannot be reached: each gives up within the limits
// and leaves no file, while a slow but living host is waited for.
#include "DownloadFixture.h"

namespace orvane::test {
namespace {

// Sends count pieces of size bytes, one every pauseMs, after a head without length.
HttpTestServer::Script Trickle(int count, std::size_t size, int pauseMs) {
    return [=](HttpConnection& c) {
        if (!c.Send("HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n")) return;
        for (int i = 0; i < count; ++i)
            if (!c.Pause(pauseMs) || !c.Send(std::string(size, 't'))) return;
    };
}

TEST_F(DownloadTest, SilentServerGivesUpAtTheLowSpeedLimit) {
    server.Route("/silent", [](HttpConnection& c) { c.WaitForClose(20'000); });
    DownloadResult result;
    const double seconds = TimedFetchPath("/silent", result);
    EXPECT_EQ(result.Failure, DownloadFailure::Timeout) << result.Reason;
    EXPECT_GE(seconds, limits.LowSpeedSeconds - 0.5);
    EXPECT_LT(seconds, limits.LowSpeedSeconds + 2.0);
    EXPECT_FALSE(Exists(target));
}

// 1000 bytes a second against a limit of 200, for longer than the low-speed window.
TEST_F(DownloadTest, TrickleAboveTheLimitIsWaitedFor) {
    server.Route("/trickle", Trickle(35, 100, 100));
    DownloadResult result;
    const double seconds = TimedFetchPath("/trickle", result);
    ASSERT_TRUE(result.Ok()) << result.Reason;
    EXPECT_GT(seconds, limits.LowSpeedSeconds + 1.0);
    EXPECT_EQ(ReadWhole(target), std::string(3500, 't'));
}

// 25 bytes a second against a limit of 200: given up long before the server would finish.
TEST_F(DownloadTest, TrickleBelowTheLimitGivesUp) {
    server.Route("/drip", Trickle(40, 10, 400));
    DownloadResult result;
    const double seconds = TimedFetchPath("/drip", result);
    EXPECT_EQ(result.Failure, DownloadFailure::Timeout) << result.Reason;
    EXPECT_LT(seconds, limits.LowSpeedSeconds + 2.5);
    EXPECT_FALSE(Exists(target));
}

TEST_F(DownloadTest, TotalTimeBoundsAHostThatDripsJustFastEnough) {
    limits.TotalTimeoutMs = 1500;
    server.Route("/steady", Trickle(40, 100, 100));
    DownloadResult result;
    const double seconds = TimedFetchPath("/steady", result);
    EXPECT_EQ(result.Failure, DownloadFailure::Timeout) << result.Reason;
    EXPECT_LT(seconds, 3.0);
    EXPECT_FALSE(Exists(target));
}

TEST_F(DownloadTest, HostThatDoesNotTakeTheConnectionGivesUpAtTheConnectTimeout) {
    FullBacklogPort port;
    const std::string url = "http://127.0.0.1:" + std::to_string(port.Port()) + "/page";
    const auto start = std::chrono::steady_clock::now();
    const DownloadResult result = Fetch(url);
    const double seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    EXPECT_EQ(result.Failure, DownloadFailure::Timeout) << result.Reason;
    EXPECT_GE(seconds, limits.ConnectTimeoutMs / 1000.0 - 0.1);
    EXPECT_LT(seconds, limits.ConnectTimeoutMs / 1000.0 + 1.5);
    EXPECT_FALSE(Exists(target));
}

TEST_F(DownloadTest, ClosedPortFailsAtOnce) {
    const DownloadResult result =
        Fetch("http://127.0.0.1:" + std::to_string(ClosedPort()) + "/page");
    EXPECT_EQ(result.Failure, DownloadFailure::Connect) << result.Reason;
    EXPECT_FALSE(Exists(target));
}

} // namespace
} // namespace orvane::test
