#pragma once
// A fresh target file, a local server and short limits, so that every way a fetch can end is
// reached in a second or two.
#include "HttpTestServer.h"
#include "frame/ProgramFolder.h"
#include "intake/download/Download.h"
#include "support/TempDir.h"

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace orvane::test {

inline DownloadLimits ShortLimits() {
    DownloadLimits limits;
    limits.ConnectTimeoutMs = 500;
    limits.LowSpeedBytesPerSecond = 200;
    limits.LowSpeedSeconds = 2;
    limits.TotalTimeoutMs = 15'000;
    limits.MaxRedirects = 20;
    limits.MaxBytes = 64 * 1024;
    return limits;
}

inline std::string ReadWhole(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

inline bool Exists(const std::string& path) {
    return std::ifstream(path).good();
}

class DownloadTest : public ::testing::Test {
  protected:
    void SetUp() override {
        // A proxy in the environment must not stand between the test and its own server.
        ::setenv("no_proxy", "127.0.0.1,localhost", 1);
        target = dir.Write("htm1A2B.tmp", "");
        gAppPath = dir.Path(); // where a failure's ERR_DETAIL.TXT record goes
    }
    DownloadResult Fetch(const std::string& url) { return FetchToFile(url, target, limits); }
    DownloadResult FetchPath(const std::string& path) { return Fetch(server.Url(path)); }
    // Seconds that a fetch of path takes, with its result.
    double TimedFetchPath(const std::string& path, DownloadResult& result) {
        const auto start = std::chrono::steady_clock::now();
        result = FetchPath(path);
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }

    TempDir dir;
    HttpTestServer server;
    std::string target;
    DownloadLimits limits = ShortLimits();
};

} // namespace orvane::test
