#pragma once
// The Source and Text kinds: one merged listing of two texts, line by line.
#include "report/PageWriter.h"
#include "report/ReportTypes.h"

#include <string_view>

namespace orvane::report {

// Writes the listing into the writer's body; returns true when the texts differ under the
// options.
bool WriteListing(std::u32string_view original, std::u32string_view revised,
                  const ReportOptions& options, PageWriter& writer);

} // namespace orvane::report
