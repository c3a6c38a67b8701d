#include "HttpTestServer.h"

#include <arpa/inet.h>
#include <chrono>
#include <fcntl.h>
#include <netinet/in.h>
#include <poll.h>
#include <stdexcept>
#include <sys/socket.h>
#include <unistd.h>

namespace orvane::test {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr int kSliceMs = 20;         // how often a waiting loop looks at the stop flag
constexpr int kMaxConnections = 500; // far more than any test makes
constexpr auto kLifetime = std::chrono::seconds(60);
constexpr auto kRequestHeadTimeout = milliseconds(2000);
constexpr std::size_t kMaxRequestHead = 16 * 1024;
constexpr auto kSendTimeout = milliseconds(10000);

int ListenOn127(int backlog, int& port) {
    const int fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (fd < 0) throw std::runtime_error("socket");
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    if (::bind(fd, reinterpret_cast<sockaddr*>(&address), length) != 0 ||
        ::listen(fd, backlog) != 0 ||
        ::getsockname(fd, reinterpret_cast<sockaddr*>(&address), &length) != 0) {
        ::close(fd);
        throw std::runtime_error("listen on 127.0.0.1");
    }
    port = ntohs(address.sin_port);
    return fd;
}

bool Readable(int fd, int timeoutMs) {
    pollfd p{fd, POLLIN, 0};
    return ::poll(&p, 1, timeoutMs) > 0;
}

// The request line's path, or empty when no whole request head came in time.
std::string ReadRequestPath(int fd, const std::atomic<bool>& stopping) {
    std::string head;
    const auto deadline = Clock::now() + kRequestHeadTimeout;
    while (head.find("\r\n\r\n") == std::string::npos && head.size() < kMaxRequestHead) {
        if (stopping || Clock::now() > deadline) return {};
        if (!Readable(fd, kSliceMs)) continue;
        char buffer[4096];
        const ssize_t got = ::recv(fd, buffer, sizeof buffer, 0);
        if (got <= 0) return {};
        head.append(buffer, static_cast<std::size_t>(got));
    }
    const std::size_t start = head.find(' ');
    const std::size_t end = head.find(' ', start + 1);
    if (start == std::string::npos || end == std::string::npos) return {};
    return head.substr(start + 1, end - start - 1);
}

} // namespace

bool HttpConnection::Send(const std::string& bytes) {
    std::size_t sent = 0;
    const auto deadline = Clock::now() + kSendTimeout;
    while (sent < bytes.size()) {
        if (stopping_ || Clock::now() > deadline) return false;
        pollfd p{fd_, POLLOUT, 0};
        if (::poll(&p, 1, kSliceMs) <= 0) continue;
        const ssize_t n =
            ::send(fd_, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL | MSG_DONTWAIT);
        if (n < 0 && (errno == EAGAIN || errno == EWOULDBLOCK)) continue;
        if (n <= 0) return false;
        sent += static_cast<std::size_t>(n);
    }
    return true;
}

bool HttpConnection::Pause(int milliseconds) {
    const auto deadline = Clock::now() + std::chrono::milliseconds(milliseconds);
    while (Clock::now() < deadline) {
        if (stopping_) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(std::min(kSliceMs, milliseconds)));
    }
    return !stopping_;
}

void HttpConnection::WaitForClose(int milliseconds) {
    const auto deadline = Clock::now() + std::chrono::milliseconds(milliseconds);
    while (!stopping_ && Clock::now() < deadline) {
        if (!Readable(fd_, kSliceMs)) continue;
        char buffer[512];
        if (::recv(fd_, buffer, sizeof buffer, 0) <= 0) return;
    }
}

HttpTestServer::HttpTestServer() : listener_(ListenOn127(16, port_)) {
    thread_ = std::thread([this] { Serve(); });
}

HttpTestServer::~HttpTestServer() {
    stopping_ = true;
    thread_.join();
    ::close(listener_);
}

void HttpTestServer::Route(const std::string& path, Script script) {
    std::lock_guard lock(mutex_);
    routes_[path] = std::move(script);
}

std::string HttpTestServer::Url(const std::string& path) const {
    return "http://127.0.0.1:" + std::to_string(port_) + path;
}

std::vector<std::string> HttpTestServer::RequestedPaths() const {
    std::lock_guard lock(mutex_);
    return requested_;
}

void HttpTestServer::Serve() {
    const auto end = Clock::now() + kLifetime;
    for (int served = 0; served < kMaxConnections && !stopping_ && Clock::now() < end;) {
        if (!Readable(listener_, kSliceMs)) continue;
        const int fd = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
        if (fd < 0) continue;
        ++served;
        Handle(fd);
        ::shutdown(fd, SHUT_RDWR);
        ::close(fd);
    }
}

void HttpTestServer::Handle(int fd) {
    const std::string path = ReadRequestPath(fd, stopping_);
    if (path.empty()) return;
    Script script;
    {
        std::lock_guard lock(mutex_);
        requested_.push_back(path);
        const auto found = routes_.find(path);
        if (found != routes_.end()) script = found->second;
    }
    HttpConnection connection(fd, stopping_);
    if (script)
        script(connection);
    else
        connection.Send(Response(404, "<html><body>Not Found</body></html>"));
}

std::string Response(int status, const std::string& body, const std::string& headers) {
    return "HTTP/1.1 " + std::to_string(status) + " Status\r\nContent-Type: text/html\r\n" +
           "Content-Length: " + std::to_string(body.size()) + "\r\nConnection: close\r\n" +
           headers + "\r\n" + body;
}

std::string Redirect(const std::string& location) {
    return Response(302, "", "Location: " + location + "\r\n");
}

FullBacklogPort::FullBacklogPort() : listener_(ListenOn127(0, port_)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<uint16_t>(port_));
    // A queue of length 0 takes one finished handshake; the next attempts wait in vain.
    for (int i = 0; i < 3; ++i) {
        const int fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
        ::connect(fd, reinterpret_cast<sockaddr*>(&address), sizeof address);
        fillers_.push_back(fd);
    }
    std::this_thread::sleep_for(milliseconds(50));
}

FullBacklogPort::~FullBacklogPort() {
    for (int fd : fillers_)
        ::close(fd);
    ::close(listener_);
}

int ClosedPort() {
    int port = 0;
    const int fd = ListenOn127(1, port);
    ::close(fd);
    return port;
}

} // namespace orvane::test
