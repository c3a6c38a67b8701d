#pragma once
// The one-window path of a comparison: what the report is asked for, from the options, and what
// its result codes say to the user.
#include "frame/Prompter.h"
#include "settings/ViewOptions.h"

#include <string>

namespace orvane {

struct ReportRequest {
    std::string Original; // a path or a web address, as the report fetches it itself
    std::string Revised;
    int CompareKind = 2; // 2 visual, 3 source, 0 text
    bool IgnoreFormatting = false;
    bool IgnoreCase = false;
    int WhiteSpaceMode = 0; // 2 when white space is ignored
    ComparisonLevel Level = ComparisonLevel::Character;
    bool ShowNumbers = true;
    // An input came from the web, so the report's pictures and styles may too.
    bool AllowWeb = false;
};

ReportRequest ReportRequestFor(const cViewFileDiffsOptions& options);

// The message for a report's result code; any code, also one outside the table.
std::string ReportResultText(int code);
MsgIcon ReportResultIcon(int code);

} // namespace orvane
