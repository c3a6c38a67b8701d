#pragma once
// The options that a Linux desktop expects of a program, read before any window or display:
// --help and --version print and end; --open is the desktop entry's way in, and can never start
// a report-file run. Every other argument keeps its meaning as a token of the command line.
#include <string>
#include <vector>

namespace orvane {

struct StartDecision {
    bool ExitNow = false; // print Out and end with Status, no window
    int Status = 0;
    std::string Out;                    // for standard output
    std::string Err;                    // for standard error (notes, usage errors)
    std::vector<std::string> Arguments; // the tokens for the window's command line
};

// `arguments` are the process's arguments without the program name.
StartDecision DecideStart(const std::vector<std::string>& arguments);

std::string UsageText();
std::string VersionText();

} // namespace orvane
