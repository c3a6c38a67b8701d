#pragma once
// The report-file run: Original, Revised and a report file on the command line. It compares,
// leaves the report (or the small answer page) at the report file's place and ends. It makes no
// widget and waits on no box, so it runs from cron or ssh with no display at all.
#include <string>

namespace orvane {

// The exit status, as diff gives it: 0 the inputs are identical, 1 a report of differences was
// written, 2 trouble (the answer page says what, or could not be written).
int RunUnattended(const std::string& appFolder, const std::string& original,
                  const std::string& revised, const std::string& reportFile);

} // namespace orvane
