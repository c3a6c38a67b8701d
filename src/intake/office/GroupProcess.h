#pragma once
// Runs a program in a process group of its own, so that everything it starts can be ended
// together: the office suite starts helpers that outlive a plain kill of the first process.
#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace office {

struct GroupRun {
    std::string program; // full path
    std::vector<std::string> args;
    std::vector<std::string> environment; // "NAME=value", the whole environment of the child
    std::string workDir;
    std::string outputFile; // standard output and error go here
    std::chrono::milliseconds timeLimit{120'000};
    std::function<void()> poll; // called every few milliseconds while waiting
};

struct GroupResult {
    bool started = false;
    bool timedOut = false;
    int exitCode = -1; // -1 when it did not exit on its own
};

// Starts the program and waits for it. On the time limit the group gets SIGTERM, and SIGKILL
// two seconds later if any member is left. Members still alive after the first process has
// exited are ended the same way, so nothing is left behind in either case.
GroupResult RunInOwnGroup(const GroupRun& run);

// The full path of `name` found in the folders of `path` (as $PATH), empty when none.
std::string FindOnPath(const std::string& name, const std::string& path);

// The current environment with `overrides` ("NAME=value") in place of same-named entries.
std::vector<std::string> EnvironmentWith(const std::vector<std::string>& overrides);

} // namespace office
