#pragma once
#include "frame/RuntimeError.h"

#include <string>

namespace orvane {

// The one reporter of run-time errors. Call inside a catch block: it reads the error being
// handled. In a report-file run the text goes to gViewOptions->CommandLineMessage instead of a box.
void ReportUnexpectedError(const std::string& Location, const std::string& Detail = {});
void ReportUnexpectedError(const std::string& Location, const std::string& Detail,
                           const ErrorInfo& error);

// Appends a record to ERR_DETAIL.TXT, in the reporter's layout, without a box: for causes that
// the user's message does not name. False where the file cannot be written.
bool AppendErrorDetail(const std::string& Location, const ErrorInfo& error,
                       const std::string& Detail);

// The system's text for an errno value, or "Error (n) not defined.".
std::string GetAPIErrorText(long errorNumber);

// The text the reporter shows for an error (without the detail-file and support lines).
std::string ComposeErrorText(const std::string& Location, const ErrorInfo& error);

} // namespace orvane
