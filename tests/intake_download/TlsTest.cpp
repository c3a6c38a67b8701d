// TLS verification is on: a server whose certificate nobody vouches for is refused. The server is
// openssl's own test server, started and stopped here.
#include "DownloadFixture.h"
#include "support/Process.h"

#include <arpa/inet.h>
#include <chrono>
#include <memory>
#include <netinet/in.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace orvane::test {
namespace {

bool Accepts(int port) {
    const int fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<uint16_t>(port));
    const bool ok = ::connect(fd, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
    ::close(fd);
    return ok;
}

class SelfSignedServer {
  public:
    explicit SelfSignedServer(const std::string& folder) : port_(ClosedPort()) {
        const std::string cert = folder + "cert.pem", key = folder + "key.pem";
        if (RunProgram({"openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-keyout", key,
                        "-out", cert, "-days", "1", "-subj", "/CN=127.0.0.1", "-addext",
                        "subjectAltName=IP:127.0.0.1"})
                .exitCode != 0)
            return;
        server_ = std::make_unique<BackgroundProgram>(std::vector<std::string>{
            "openssl", "s_server", "-accept", "127.0.0.1:" + std::to_string(port_), "-cert", cert,
            "-key", key, "-www", "-quiet"});
        for (int i = 0; i < 100 && server_->Started() && !Accepts(port_); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(30));
    }
    bool Running() const { return server_ && server_->Started() && Accepts(port_); }
    std::string Url() const { return "https://127.0.0.1:" + std::to_string(port_) + "/"; }

  private:
    int port_;
    std::unique_ptr<BackgroundProgram> server_;
};

TEST_F(DownloadTest, CertificateNobodyVouchesForIsRefused) {
    SelfSignedServer tls(dir.Path());
    if (!tls.Running()) GTEST_SKIP() << "openssl is needed to run a TLS test server";
    const DownloadResult result = Fetch(tls.Url());
    EXPECT_EQ(result.Failure, DownloadFailure::Other);
    EXPECT_NE(result.Reason.find("certificate"), std::string::npos) << result.Reason;
    EXPECT_FALSE(Exists(target));
}

} // namespace
} // namespace orvane::test
