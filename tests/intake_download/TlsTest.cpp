// TLS verification is on: a server whose certificate nobody vouches for is refused. The server is
// openssl's own test server, started and stopped here.
#include "DownloadFixture.h"

#include <arpa/inet.h>
#include <csignal>
#include <fcntl.h>
#include <netinet/in.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

extern char** environ;

namespace orvane::test {
namespace {

int Run(std::vector<std::string> args, bool wait) {
    std::vector<char*> argv;
    for (std::string& a : args)
        argv.push_back(a.data());
    argv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
    pid_t pid = -1;
    const int failed = posix_spawnp(&pid, argv[0], &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (failed) return -1;
    if (!wait) return pid;
    int status = 0;
    ::waitpid(pid, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

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
        if (Run({"openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-keyout", key, "-out",
                 cert, "-days", "1", "-subj", "/CN=127.0.0.1", "-addext",
                 "subjectAltName=IP:127.0.0.1"},
                true) != 0)
            return;
        pid_ = Run({"openssl", "s_server", "-accept", "127.0.0.1:" + std::to_string(port_), "-cert",
                    cert, "-key", key, "-www", "-quiet"},
                   false);
        for (int i = 0; i < 100 && pid_ > 0 && !Accepts(port_); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(30));
    }
    ~SelfSignedServer() {
        if (pid_ <= 0) return;
        ::kill(pid_, SIGTERM);
        ::waitpid(pid_, nullptr, 0);
    }
    bool Running() const { return pid_ > 0 && Accepts(port_); }
    std::string Url() const { return "https://127.0.0.1:" + std::to_string(port_) + "/"; }

  private:
    int port_;
    pid_t pid_ = -1;
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
