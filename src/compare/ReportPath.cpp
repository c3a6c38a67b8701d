#include "compare/ReportPath.h"

namespace orvane {

ReportRequest ReportRequestFor(const cViewFileDiffsOptions& o) {
    ReportRequest r;
    // Extracted text stands in for its input; otherwise a web address goes as it is, not its
    // downloaded copy, so the report can resolve the page's own relative addresses.
    r.Original = o.OriginalTextExtracted ? o.OriginalTextFile : o.OriginalFile;
    r.Revised = o.RevisedTextExtracted ? o.RevisedTextFile : o.RevisedFile;
    r.CompareKind = o.ComparisonMode == ComparisonMode::Visual ? 2
                    : o.ComparisonMode == ComparisonMode::Code ? 3
                                                               : 0;
    r.IgnoreFormatting = o.IgnoreTextFormatting;
    r.IgnoreCase = o.IgnoreCase;
    r.WhiteSpaceMode = o.IgnoreWhiteSpace ? 2 : 0;
    r.Level = o.ComparisonLevel;
    r.ShowNumbers = o.ShowLineNumbers;
    r.AllowWeb = o.OriginalSourceType == SourceType::WebAddress ||
                 o.RevisedSourceType == SourceType::WebAddress;
    return r;
}

std::string ReportResultText(int code) {
    switch (code) {
    case 1:
        return "The files are identical.";
    case 2:
        return "An unknown problem occurred while comparing the files.";
    case 3:
        return "The same file has been defined as both the Original and the Revised file.";
    case 4:
        return "One of the files is not in HTML format.";
    case 5:
        return "Unable to prepare the Original file for comparison.";
    case 6:
        return "Unable to prepare the Revised file for comparison.";
    case 7:
        return "Files contain different number of frames.";
    default:
        return "An error code " + std::to_string(code) + " occurred while comparing the files.";
    }
}

MsgIcon ReportResultIcon(int code) {
    return code == 2 ? MsgIcon::Exclamation : MsgIcon::Information;
}

} // namespace orvane
