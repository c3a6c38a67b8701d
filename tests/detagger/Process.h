#pragma once
// Runs a program with an argument list (never a shell) and collects what it prints.
#include <string>
#include <vector>

namespace orvane::test {

// False when the program could not be started; otherwise `exitCode` is its exit status (-1 if
// it did not exit normally).
bool RunProgram(std::vector<std::string> args, std::string& out, int& exitCode);

} // namespace orvane::test
