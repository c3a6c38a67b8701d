#pragma once
// The small page an unattended run leaves at the report's place when there is no merged report
// to save: the two inputs and the message, so whoever named that place finds an answer there.
#include <string>

namespace orvane {

// The page's exact lines; "Error!" heads every message but the identical-files outcome.
std::string ErrorReportPage(const std::string& message, const std::string& original,
                            const std::string& revised);

// Writes that page to `outputFile` in one step; false (and an error report) when it cannot.
bool WriteErrMsgToOutputFile(const std::string& message, const std::string& outputFile,
                             const std::string& original, const std::string& revised);

} // namespace orvane
