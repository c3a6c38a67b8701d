#include "report/ReportTypes.h"

#include "compare/ReportPath.h"

namespace orvane::report {

std::string ResultText(int code) {
    return ReportResultText(code);
}

} // namespace orvane::report
