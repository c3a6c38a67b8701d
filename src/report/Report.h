#pragma once
// The merged report engine: two inputs (paths or web addresses) and the options in, one
// self-contained page and a result code out.
#include "report/ReportTypes.h"

#include <string>

namespace orvane::report {

ReportResult MakeReport(const std::string& original, const std::string& revised,
                        const ReportOptions& options);

} // namespace orvane::report
