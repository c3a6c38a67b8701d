#include "support/Process.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace orvane::test {

ProgramRun RunProgram(std::vector<std::string> args, const std::vector<std::string>& environment) {
    ProgramRun run;
    int fds[2];
    if (::pipe(fds) != 0) return run;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, fds[1], 1);
    posix_spawn_file_actions_addclose(&actions, fds[0]);
    std::vector<char*> argv;
    for (std::string& a : args)
        argv.push_back(a.data());
    argv.push_back(nullptr);
    std::vector<std::string> env(environment);
    std::vector<char*> envp;
    for (std::string& e : env)
        envp.push_back(e.data());
    for (char** e = environ; *e; ++e)
        envp.push_back(*e); // the first of two equal names wins
    envp.push_back(nullptr);
    pid_t pid;
    const int rc = posix_spawnp(&pid, argv[0], &actions, nullptr, argv.data(), envp.data());
    posix_spawn_file_actions_destroy(&actions);
    ::close(fds[1]);
    if (rc != 0) {
        ::close(fds[0]);
        return run;
    }
    char buf[65536];
    for (ssize_t n; (n = ::read(fds[0], buf, sizeof buf)) > 0;)
        run.out.append(buf, static_cast<std::size_t>(n));
    ::close(fds[0]);
    int status = 0;
    ::waitpid(pid, &status, 0);
    run.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    run.signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    // posix_spawnp reports a missing program only through the child's exit status 127.
    run.started = run.exitCode != 127;
    return run;
}

bool RunProgram(std::vector<std::string> args, std::string& out, int& exitCode) {
    ProgramRun run = RunProgram(std::move(args), {});
    out = std::move(run.out);
    exitCode = run.exitCode;
    return run.started;
}

} // namespace orvane::test
