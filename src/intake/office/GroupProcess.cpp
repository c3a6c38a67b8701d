#include "intake/office/GroupProcess.h"

#include <cerrno>
#include <csignal>
#include <dirent.h>
#include <fcntl.h>
#include <fstream>
#include <sstream>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

extern char** environ;

namespace office {
namespace {

using Clock = std::chrono::steady_clock;
constexpr std::chrono::milliseconds kPollInterval{20};
constexpr std::chrono::milliseconds kKillGrace{2000};

std::vector<char*> Pointers(std::vector<std::string>& strings) {
    std::vector<char*> out;
    for (std::string& s : strings)
        out.push_back(s.data());
    out.push_back(nullptr);
    return out;
}

// Members of the group that still run. Zombies do not count: an exited helper whose new
// parent has not reaped it yet holds nothing.
int LiveMembers(pid_t group) {
    int live = 0;
    DIR* proc = ::opendir("/proc");
    if (proc == nullptr) return ::kill(-group, 0) == 0 ? 1 : 0;
    while (const dirent* entry = ::readdir(proc)) {
        if (entry->d_name[0] < '0' || entry->d_name[0] > '9') continue;
        std::ifstream stat(std::string("/proc/") + entry->d_name + "/stat");
        std::string text;
        std::getline(stat, text);
        const std::size_t close = text.rfind(')');
        if (close == std::string::npos) continue;
        std::istringstream fields(text.substr(close + 1));
        char state = 0;
        long parent = 0, pgrp = 0;
        fields >> state >> parent >> pgrp;
        if (pgrp == group && state != 'Z' && state != 'X') ++live;
    }
    ::closedir(proc);
    return live;
}

// Runs in the child between fork and exec: only async-signal-safe calls.
[[noreturn]] void ExecChild(const char* program, char* const* argv, char* const* envp,
                            const char* workDir, const char* outputFile) {
    ::setsid();
    const int devNull = ::open("/dev/null", O_RDONLY);
    if (devNull >= 0) ::dup2(devNull, STDIN_FILENO);
    const int out = ::open(outputFile, O_WRONLY | O_CREAT | O_TRUNC, 0600);
    if (out >= 0) {
        ::dup2(out, STDOUT_FILENO);
        ::dup2(out, STDERR_FILENO);
    }
    // The window's sockets and pipes stay with the window, not with a suite that may outlive it.
    ::close_range(3, ~0U, 0);
    if (*workDir != '\0' && ::chdir(workDir) != 0) ::_exit(127);
    ::execve(program, argv, envp);
    ::_exit(127);
}

// Waits for the first process to exit without reaping it, so that its id, which is the
// group's id, cannot pass to another process while the group is being ended.
bool WaitForExit(pid_t pid, Clock::time_point deadline, const std::function<void()>& poll) {
    for (;;) {
        siginfo_t info{};
        if (::waitid(P_PID, static_cast<id_t>(pid), &info, WEXITED | WNOHANG | WNOWAIT) == 0 &&
            info.si_pid == pid)
            return true;
        if (Clock::now() >= deadline) return false;
        if (poll) poll();
        std::this_thread::sleep_for(kPollInterval);
    }
}

bool WaitForNoMembers(pid_t group, std::chrono::milliseconds grace,
                      const std::function<void()>& poll) {
    const auto deadline = Clock::now() + grace;
    while (LiveMembers(group) > 0) {
        if (Clock::now() >= deadline) return false;
        if (poll) poll();
        std::this_thread::sleep_for(kPollInterval);
    }
    return true;
}

// SIGTERM lets the suite remove its lock files; some of its helpers ignore it, hence SIGKILL.
void EndGroup(pid_t group, const std::function<void()>& poll) {
    if (LiveMembers(group) == 0) return;
    ::kill(-group, SIGTERM);
    if (WaitForNoMembers(group, kKillGrace, poll)) return;
    ::kill(-group, SIGKILL);
    WaitForNoMembers(group, kKillGrace, poll);
}

} // namespace

GroupResult RunInOwnGroup(const GroupRun& run) {
    GroupResult result;
    std::vector<std::string> argStrings{run.program};
    argStrings.insert(argStrings.end(), run.args.begin(), run.args.end());
    std::vector<std::string> envStrings = run.environment;
    const std::vector<char*> argv = Pointers(argStrings);
    const std::vector<char*> envp = Pointers(envStrings);

    const pid_t pid = ::fork();
    if (pid < 0) return result;
    if (pid == 0)
        ExecChild(run.program.c_str(), argv.data(), envp.data(), run.workDir.c_str(),
                  run.outputFile.c_str());
    // The child may not have called setsid() yet; doing it here too closes that gap.
    ::setpgid(pid, pid);
    result.started = true;

    result.timedOut = !WaitForExit(pid, Clock::now() + run.timeLimit, run.poll);
    EndGroup(pid, run.poll);
    int status = 0;
    while (::waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }
    if (!result.timedOut && WIFEXITED(status)) result.exitCode = WEXITSTATUS(status);
    if (result.exitCode == 127) result.started = false;
    return result;
}

std::string FindOnPath(const std::string& name, const std::string& path) {
    std::istringstream folders(path);
    std::string folder;
    while (std::getline(folders, folder, ':')) {
        if (folder.empty()) continue;
        const std::string candidate = folder + "/" + name;
        struct stat info {};
        if (::stat(candidate.c_str(), &info) == 0 && S_ISREG(info.st_mode) &&
            ::access(candidate.c_str(), X_OK) == 0)
            return candidate;
    }
    return {};
}

std::vector<std::string> EnvironmentWith(const std::vector<std::string>& overrides) {
    std::vector<std::string> out;
    for (char** e = environ; e != nullptr && *e != nullptr; ++e) {
        const std::string entry = *e;
        const std::string name = entry.substr(0, entry.find('='));
        bool replaced = false;
        for (const std::string& o : overrides)
            replaced |= o.substr(0, o.find('=')) == name;
        if (!replaced) out.push_back(entry);
    }
    out.insert(out.end(), overrides.begin(), overrides.end());
    return out;
}

} // namespace office
