#pragma once
// Runs a program with an argument list (never a shell) and collects what it prints.
#include <string>
#include <vector>

namespace orvane::test {

struct ProgramRun {
    bool started = false;
    int exitCode = -1; // -1 when it did not exit normally
    int signal = 0;    // the signal that ended it, if one did
    std::string out;   // standard output
};

// `environment` entries ("NAME=value") are added to this process's own environment.
ProgramRun RunProgram(std::vector<std::string> args, const std::vector<std::string>& environment);

// False when the program could not be started; otherwise `exitCode` is its exit status (-1 if
// it did not exit normally).
bool RunProgram(std::vector<std::string> args, std::string& out, int& exitCode);

} // namespace orvane::test
