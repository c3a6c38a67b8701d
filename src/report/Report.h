#pragma once
// The merged report engine: two inputs (paths or web addresses) and the options in, one
// self-contained page and a result code out.
#include "report/ReportTypes.h"

#include <string>

namespace orvane::report {

ReportResult MakeReport(const std::string& original, const std::string& revised,
                        const ReportOptions& options);

// The same over content already in memory; `originalBase` and `revisedBase` resolve relative
// addresses (may be empty).
ReportResult MakeReportFromContent(const std::string& originalBytes,
                                   const std::string& revisedBytes, const ReportOptions& options,
                                   const std::string& originalLabel = "Original",
                                   const std::string& revisedLabel = "Revised");

} // namespace orvane::report
