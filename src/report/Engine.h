#pragma once
// The engine without any fetching: inputs already read, and a loader for the frames of framed
// pages. The report library adds web addresses on top of it.
#include "report/Inputs.h"
#include "report/ReportTypes.h"

#include <functional>
#include <string>

namespace orvane::report {

using InputLoader = std::function<LoadedInput(const std::string&)>;

ReportResult CompareInputs(LoadedInput original, LoadedInput revised, const ReportOptions& options,
                           const std::string& originalLabel, const std::string& revisedLabel,
                           const InputLoader& load);

// The same over content already in memory; `originalBase` and `revisedBase` resolve relative
// addresses (may be empty).
ReportResult MakeReportFromContent(const std::string& originalBytes,
                                   const std::string& revisedBytes, const ReportOptions& options,
                                   const std::string& originalLabel = "Original",
                                   const std::string& revisedLabel = "Revised");

} // namespace orvane::report
