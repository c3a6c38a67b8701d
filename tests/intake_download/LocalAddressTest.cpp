// file: addresses read the local file they name; every scheme but http, https and file is
// refused without a connection.
#include "DownloadFixture.h"
#include "frame/ProgramFolder.h"

#include <regex>

namespace orvane::test {
namespace {

class LocalAddressTest : public DownloadTest {
  protected:
    void SetUp() override {
        DownloadTest::SetUp();
        source = dir.Write("saved page.html", page);
        // dir.Path() is absolute and ends in '/'; the name's blank is encoded in addresses.
        encoded = dir.Path() + "saved%20page.html";
    }
    const std::string page = "<html><body>saved\r\n</body></html>\n";
    std::string source;
    std::string encoded;
};

TEST_F(LocalAddressTest, EveryFormOfAFileAddressReadsTheFile) {
    const std::string forms[] = {
        "file://" + encoded,
        "file://localhost" + encoded,
        "file:" + encoded,
        "FILE://" + encoded,
        "file://" + source, // a typed blank
        "file://" + dir.Path() + "saved%20p%61ge.html",
    };
    for (const std::string& url : forms) {
        SCOPED_TRACE(url);
        target = dir.Write("htm1A2B.tmp", std::string(300, 'o'));
        const DownloadResult result = Fetch(url);
        ASSERT_TRUE(result.Ok()) << result.Reason;
        EXPECT_EQ(ReadWhole(target), page);
    }
}

TEST_F(LocalAddressTest, FileAddressThatNamesNoRegularFileFails) {
    const std::string addresses[] = {
        "file://" + dir.Path() + "missing.html",
        "file://" + dir.Path(),                   // a folder
        "file:///dev/zero",                       // endless
        "file://example.com" + encoded,           // another host
        "file://" + dir.Path() + "saved%00.html", // an encoded NUL
    };
    for (const std::string& url : addresses) {
        SCOPED_TRACE(url);
        target = dir.Write("htm1A2B.tmp", "old");
        EXPECT_EQ(Fetch(url).Failure, DownloadFailure::LocalFile);
        EXPECT_FALSE(Exists(target));
    }
}

TEST_F(LocalAddressTest, LocalFileOverTheCapIsRefused) {
    limits.MaxBytes = static_cast<std::int64_t>(page.size()) - 1;
    EXPECT_EQ(Fetch("file://" + encoded).Failure, DownloadFailure::TooLarge);
    EXPECT_FALSE(Exists(target));
    limits.MaxBytes = static_cast<std::int64_t>(page.size());
    target = dir.Write("htm1A2B.tmp", "");
    EXPECT_TRUE(Fetch("file://" + encoded).Ok());
}

TEST_F(LocalAddressTest, OtherSchemesAreRefused) {
    const std::string port = std::to_string(ClosedPort());
    const std::string addresses[] = {
        "ftp://127.0.0.1:" + port + "/page",
        "gopher://127.0.0.1/",
        "dict://127.0.0.1/d",
        "mailto:someone@example.com",
        "javascript:alert(1)",
        "www.example.com",
        "",
    };
    for (const std::string& url : addresses) {
        SCOPED_TRACE(url);
        target = dir.Write("htm1A2B.tmp", "old");
        EXPECT_EQ(Fetch(url).Failure, DownloadFailure::Refused);
        EXPECT_FALSE(Exists(target));
    }
}

TEST_F(LocalAddressTest, SchemeIsMatchedWithoutRegardToCase) {
    server.Route("/page", [this](HttpConnection& c) { c.Send(Response(200, page)); });
    const std::string url = server.Url("/page");
    ASSERT_TRUE(Fetch("HTTP" + url.substr(4)).Ok());
    EXPECT_EQ(ReadWhole(target), page);
}

TEST_F(DownloadTest, DownloadFileNameHasTheFormThatDetectionKnows) {
    gAppPath = ORVANE_BIN_DIR; // the name is finished by the kwcommon engine
    const char* previous = std::getenv("TMPDIR");
    const std::string kept = previous ? previous : "";
    ::setenv("TMPDIR", dir.Path().c_str(), 1);
    const std::string name = MakeDownloadFileSpec();
    const std::string second = MakeDownloadFileSpec();
    previous ? ::setenv("TMPDIR", kept.c_str(), 1) : ::unsetenv("TMPDIR");
    ASSERT_EQ(name.rfind(dir.Path(), 0), 0u) << name;
    EXPECT_TRUE(std::regex_match(name.substr(dir.Path().size()), std::regex("htm[0-9A-F]+\\.tmp")))
        << name;
    EXPECT_TRUE(Exists(name));
    EXPECT_NE(second, name);
}

} // namespace
} // namespace orvane::test
