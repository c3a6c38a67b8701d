#pragma once
// A scripted HTTP server on 127.0.0.1 for download tests. It serves one connection at a time on
// its own thread; each path runs a script that writes whatever bytes the test wants, including
// nothing at all. Every loop is bounded in count and in time, and the destructor stops it.
#include <atomic>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace orvane::test {

class HttpConnection {
  public:
    HttpConnection(int fd, const std::atomic<bool>& stopping) : fd_(fd), stopping_(stopping) {}
    // False once the client has gone or the server stops.
    bool Send(const std::string& bytes);
    // Sleeps; false when the server stops meanwhile.
    bool Pause(int milliseconds);
    // Returns when the client closes, the server stops or the time is up.
    void WaitForClose(int milliseconds);

  private:
    int fd_;
    const std::atomic<bool>& stopping_;
};

class HttpTestServer {
  public:
    using Script = std::function<void(HttpConnection&)>;
    HttpTestServer();
    ~HttpTestServer();
    HttpTestServer(const HttpTestServer&) = delete;
    HttpTestServer& operator=(const HttpTestServer&) = delete;

    // Paths without a route get a 404.
    void Route(const std::string& path, Script script);
    std::string Url(const std::string& path) const;
    std::vector<std::string> RequestedPaths() const;

  private:
    void Serve();
    void Handle(int fd);

    int port_ = 0; // before listener_: set while listener_ is made
    int listener_ = -1;
    std::atomic<bool> stopping_{false};
    mutable std::mutex mutex_;
    std::map<std::string, Script> routes_;
    std::vector<std::string> requested_;
    std::thread thread_;
};

// A whole response with Content-Length and "Connection: close".
std::string Response(int status, const std::string& body, const std::string& headers = {});
std::string Redirect(const std::string& location);

// A port on 127.0.0.1 whose accept queue is full, so that a new connection attempt hangs until
// the client's connect timeout: a host that cannot be reached, without leaving the machine.
class FullBacklogPort {
  public:
    FullBacklogPort();
    ~FullBacklogPort();
    int Port() const { return port_; }

  private:
    int port_ = 0; // before listener_: set while listener_ is made
    int listener_ = -1;
    std::vector<int> fillers_;
};

// A port on 127.0.0.1 that nobody listens on.
int ClosedPort();

} // namespace orvane::test
