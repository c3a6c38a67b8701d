#pragma once
// Runs a program with an argument list (never a shell) and collects what it prints. Standard input
// is /dev/null, so that a program waiting for input fails its test instead of hanging it.
#include <string>
#include <vector>

namespace orvane::test {

struct ProgramRun {
    bool started = false;
    int exitCode = -1; // -1 when it did not exit normally
    int signal = 0;    // the signal that ended it, if one did
    std::string out;   // standard output
    std::string err;   // standard error
};

// `environment` entries ("NAME=value") are added to this process's own environment. With
// `terminateAfterMs`, the program is sent SIGTERM that long after its start if it still runs.
ProgramRun RunProgram(std::vector<std::string> args,
                      const std::vector<std::string>& environment = {}, int terminateAfterMs = 0);

// A program left running in the background, its output discarded; ended by SIGTERM when the
// object goes.
class BackgroundProgram {
  public:
    explicit BackgroundProgram(std::vector<std::string> args);
    ~BackgroundProgram();
    BackgroundProgram(const BackgroundProgram&) = delete;
    BackgroundProgram& operator=(const BackgroundProgram&) = delete;
    bool Started() const { return pid_ > 0; }

  private:
    int pid_ = -1;
};

} // namespace orvane::test
