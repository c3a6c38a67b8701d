#include "compare/ErrorReportFile.h"

#include "frame/ErrorReporter.h"
#include "settings/AtomicWrite.h"

#include <algorithm>
#include <cctype>
#include <cerrno>

namespace orvane {
namespace {

bool IsIdenticalOutcome(const std::string& message) {
    static const std::string kIdentical = "The files are identical.";
    return std::equal(
        message.begin(), message.end(), kIdentical.begin(), kIdentical.end(),
        [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); });
}

} // namespace

std::string ErrorReportPage(const std::string& message, const std::string& original,
                            const std::string& revised) {
    // No closing head tag and no title, and the texts go in as they are: readers of these
    // files depend on this exact shape.
    constexpr const char* kEnd = "\r\n";
    std::string page;
    for (const std::string& line :
         {std::string("<html>"), std::string("<head>"), std::string("<body>"),
          "<p><i>Original: " + original + "</i></p>", "<p><i>Revised: " + revised + "</i></p>"})
        page += line + kEnd;
    if (!IsIdenticalOutcome(message)) page += std::string("<p><b>Error!</b></p>") + kEnd;
    page += "<p>" + message + "</p>" + kEnd;
    page += std::string("</body>") + kEnd + "</html>" + kEnd;
    return page;
}

bool WriteErrMsgToOutputFile(const std::string& message, const std::string& outputFile,
                             const std::string& original, const std::string& revised) {
    if (WriteFileAtomically(outputFile, ErrorReportPage(message, original, revised))) return true;
    const int why = errno;
    ReportUnexpectedError("WriteErrMsgToOutputFile", "",
                          {err::PathFileAccess, ErrorDescription(err::PathFileAccess), why});
    return false;
}

} // namespace orvane
