#pragma once
// What the office engine tests share: the real suite's path, stand-in suites written as shell
// scripts, a PATH changed for one test, and running a program with its output collected.
#include "intake/office/GroupProcess.h"
#include "support/TempDir.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace orvane::test {

inline std::string Slurp(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

inline std::string RealSuite() {
    static const std::string path = [] {
        const char* p = std::getenv("PATH");
        return office::FindOnPath("soffice", p != nullptr ? p : "");
    }();
    return path;
}

// An executable `soffice` script in `folder`.
inline std::string WriteFakeSuite(const TempDir& folder, const std::string& body) {
    const std::string path = folder.Write("soffice", "#!/bin/sh\n" + body);
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    return path;
}

// Sets PATH for the life of the object.
class ScopedPath {
  public:
    explicit ScopedPath(const std::string& path) {
        const char* old = std::getenv("PATH");
        saved_ = old != nullptr ? old : "";
        ::setenv("PATH", path.c_str(), 1);
    }
    ~ScopedPath() { ::setenv("PATH", saved_.c_str(), 1); }
    ScopedPath(const ScopedPath&) = delete;
    ScopedPath& operator=(const ScopedPath&) = delete;

  private:
    std::string saved_;
};

struct ProgramRun {
    int exitCode = -1;
    std::string output; // standard output and error together
};

inline ProgramRun RunCollecting(const std::string& program, const std::vector<std::string>& args) {
    TempDir scratch;
    office::GroupRun run;
    run.program = program;
    run.args = args;
    run.environment = office::EnvironmentWith({});
    run.outputFile = scratch.Path() + "output.txt";
    run.timeLimit = std::chrono::minutes(5);
    const office::GroupResult result = office::RunInOwnGroup(run);
    return {result.exitCode, Slurp(run.outputFile)};
}

// True while the process runs; an exited one waiting for its parent to reap it does not.
inline bool ProcessRuns(long pid) {
    std::ifstream stat("/proc/" + std::to_string(pid) + "/stat");
    std::string text;
    if (!std::getline(stat, text)) return false;
    const std::size_t close = text.rfind(')');
    return close != std::string::npos && close + 2 < text.size() && text[close + 2] != 'Z';
}

inline std::vector<long> Numbers(const std::string& text) {
    std::vector<long> out;
    std::istringstream in(text);
    for (long n; in >> n;)
        out.push_back(n);
    return out;
}

} // namespace orvane::test
