#include "settings/Session.h"

#include "frame/ErrorReporter.h"

namespace orvane {

void RouteErrorsToReportRun(cViewFileDiffsOptions& options) {
    SetErrorTextSink([&options](const std::string& text) {
        if (!options.RunFromCommandLine) return false;
        options.CommandLineMessage = text;
        return true;
    });
}

} // namespace orvane
