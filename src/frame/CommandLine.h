#pragma once
#include <string>
#include <vector>

namespace orvane {

// Splits a command line of up to three double-quoted tokens: Original, Revised, report file.
// ReportFile is left as passed where the line ends inside the second token.
void GetFilesFromCommandLine(const std::string& CommandLine, std::string& Original,
                             std::string& Revised, std::string& ReportFile);

// The process arguments joined back into one line of quoted tokens; empty without arguments.
std::string JoinArgumentsAsCommandLine(const std::vector<std::string>& arguments);

} // namespace orvane
