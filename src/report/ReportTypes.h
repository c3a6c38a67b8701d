#pragma once
// What the merged report is asked for and what it answers. Plain values, so the view, the
// command line and the tests drive the engine without any program state.
#include <string>

namespace orvane::report {

enum class CompareKind : int { Text = 0, Visual = 2, Source = 3 };

// Level of the inner differences of a changed line in the listings.
enum class DetailLevel : int { Character = 0, Word = 1, Line = 2 };

struct ReportOptions {
    CompareKind kind = CompareKind::Visual;
    bool ignoreCase = false;
    int whiteSpaceMode = 0; // 2: white space is ignored, as on the grid path
    bool ignoreFormatting = false;
    DetailLevel level = DetailLevel::Word;
    bool showNumbers = false;
    std::string bannerText = "Click Here to navigate differences";
    std::string productTitle = "Orvane";
    std::string reportTitle = "Orvane Difference Report";

    bool IgnoreWhiteSpace() const { return whiteSpaceMode == 2; }
};

// The result codes of a comparison, as the driver acts on them.
enum ResultCode : int {
    kDifferent = 0,
    kIdentical = 1,
    kUnknownProblem = 2,
    kSameFile = 3,
    kNotHtml = 4,
    kOriginalUnreadable = 5,
    kRevisedUnreadable = 6,
    kFrameCountDiffers = 7,
};

// The message the driver shows for a code; any code, also one outside the table.
std::string ResultText(int code);

struct ReportResult {
    int code = kUnknownProblem;
    int differenceCount = 0;
    std::string html; // the page, UTF-8; also written for identical inputs
};

} // namespace orvane::report
