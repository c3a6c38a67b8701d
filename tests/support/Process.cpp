#include "support/Process.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <optional>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace orvane::test {
namespace {

std::vector<char*> Pointers(std::vector<std::string>& strings) {
    std::vector<char*> pointers;
    for (std::string& s : strings)
        pointers.push_back(s.data());
    pointers.push_back(nullptr);
    return pointers;
}

// Both pipes at once: a child that fills one while we wait on the other would never end. At
// `terminateAt` (if set) the child is sent SIGTERM once; reading goes on until it has gone.
void ReadBoth(int outFd, int errFd, std::string& out, std::string& err, pid_t pid,
              std::optional<std::chrono::steady_clock::time_point> terminateAt) {
    pollfd fds[2] = {{outFd, POLLIN, 0}, {errFd, POLLIN, 0}};
    std::string* sinks[2] = {&out, &err};
    int open = 2;
    char buf[65536];
    while (open > 0) {
        int timeout = -1;
        if (terminateAt) {
            const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
                *terminateAt - std::chrono::steady_clock::now());
            timeout = static_cast<int>(std::max<long long>(0, left.count()));
        }
        const int ready = ::poll(fds, 2, timeout);
        if (ready < 0 && errno != EINTR) break;
        if (ready == 0 && terminateAt) {
            ::kill(pid, SIGTERM); // not reaped yet, so the pid is still the child's
            terminateAt.reset();
            continue;
        }
        for (int i = 0; i < 2 && ready > 0; ++i) {
            if (fds[i].fd < 0 || fds[i].revents == 0) continue;
            const ssize_t n = ::read(fds[i].fd, buf, sizeof buf);
            if (n > 0) {
                sinks[i]->append(buf, static_cast<std::size_t>(n));
            } else {
                ::close(fds[i].fd);
                fds[i].fd = -1;
                --open;
            }
        }
    }
}

} // namespace

ProgramRun RunProgram(std::vector<std::string> args, const std::vector<std::string>& environment,
                      int terminateAfterMs) {
    ProgramRun run;
    int out[2], err[2];
    if (::pipe2(out, O_CLOEXEC) != 0) return run;
    if (::pipe2(err, O_CLOEXEC) != 0) {
        ::close(out[0]);
        ::close(out[1]);
        return run;
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, out[1], 1);
    posix_spawn_file_actions_adddup2(&actions, err[1], 2);
    std::vector<char*> argv = Pointers(args);
    std::vector<std::string> env(environment);
    for (char** e = environ; *e; ++e)
        env.emplace_back(*e); // the first of two equal names wins
    std::vector<char*> envp = Pointers(env);
    pid_t pid;
    const int rc = posix_spawnp(&pid, argv[0], &actions, nullptr, argv.data(), envp.data());
    posix_spawn_file_actions_destroy(&actions);
    ::close(out[1]);
    ::close(err[1]);
    if (rc != 0) {
        ::close(out[0]);
        ::close(err[0]);
        return run;
    }
    std::optional<std::chrono::steady_clock::time_point> terminateAt;
    if (terminateAfterMs > 0)
        terminateAt =
            std::chrono::steady_clock::now() + std::chrono::milliseconds(terminateAfterMs);
    ReadBoth(out[0], err[0], run.out, run.err, pid, terminateAt);
    int status = 0;
    ::waitpid(pid, &status, 0);
    run.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    run.signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    // posix_spawnp reports a missing program only through the child's exit status 127.
    run.started = run.exitCode != 127;
    return run;
}

BackgroundProgram::BackgroundProgram(std::vector<std::string> args) {
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
    std::vector<char*> argv = Pointers(args);
    pid_t pid;
    if (posix_spawnp(&pid, argv[0], &actions, nullptr, argv.data(), environ) == 0) pid_ = pid;
    posix_spawn_file_actions_destroy(&actions);
}

BackgroundProgram::~BackgroundProgram() {
    if (pid_ <= 0) return;
    ::kill(pid_, SIGTERM);
    ::waitpid(pid_, nullptr, 0);
}

} // namespace orvane::test
