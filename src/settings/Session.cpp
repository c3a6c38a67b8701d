#include "settings/Session.h"

#include "frame/ErrorReporter.h"
#include "settings/ExtractionOptions.h"
#include "settings/ViewOptions.h"

namespace orvane {

std::unique_ptr<cViewFileDiffsOptions> gViewOptions;
std::unique_ptr<clsExtractionOptions> gExtractionOptions;
std::string gHTMLEditorFileSpec;
std::string gTextWithLayoutConverterPath;

void RouteErrorsToReportRun() {
    SetErrorTextSink([](const std::string& text) {
        if (!gViewOptions || !gViewOptions->RunFromCommandLine) return false;
        gViewOptions->CommandLineMessage = text;
        return true;
    });
}

} // namespace orvane
