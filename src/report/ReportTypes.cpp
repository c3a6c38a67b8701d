#include "report/ReportTypes.h"

namespace orvane::report {

std::string ResultText(int code) {
    switch (code) {
    case kIdentical:
        return "The files are identical.";
    case kUnknownProblem:
        return "An unknown problem occurred while comparing the files.";
    case kSameFile:
        return "The same file has been defined as both the Original and the Revised file.";
    case kNotHtml:
        return "One of the files is not in HTML format.";
    case kOriginalUnreadable:
        return "Unable to prepare the Original file for comparison.";
    case kRevisedUnreadable:
        return "Unable to prepare the Revised file for comparison.";
    case kFrameCountDiffers:
        return "Files contain different number of frames.";
    default:
        return "An error code " + std::to_string(code) + " occurred while comparing the files.";
    }
}

} // namespace orvane::report
