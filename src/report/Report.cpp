#include "report/Report.h"

#include "report/Engine.h"
#include "report/Inputs.h"

#include <exception>

namespace orvane::report {

ReportResult MakeReport(const std::string& original, const std::string& revised,
                        const ReportOptions& options) {
    try {
        LoadedInput a = LoadInput(original);
        LoadedInput b = LoadInput(revised);
        // Asked before reading: comparing a file with itself is a mistake of the caller.
        if (!original.empty() && a.identity == b.identity) {
            ReportResult r;
            r.code = kSameFile;
            return r;
        }
        if (!a.ok || !b.ok) {
            ReportResult r;
            r.code = !a.ok ? kOriginalUnreadable : kRevisedUnreadable;
            return r;
        }
        return CompareInputs(std::move(a), std::move(b), options, original, revised, LoadInput);
    } catch (const std::exception&) {
        ReportResult r;
        r.code = kUnknownProblem;
        return r;
    }
}

} // namespace orvane::report
