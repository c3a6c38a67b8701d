#pragma once
// The session's options. The application object creates one session at start and releases it
// after the last window has gone; windows and dialogues are handed the parts they use, engines
// take them as arguments.
#include "settings/ExtractionOptions.h"
#include "settings/ViewOptions.h"

#include <string>

namespace orvane {

struct Session {
    cViewFileDiffsOptions ViewOptions;
    clsExtractionOptions ExtractionOptions;
    std::string HTMLEditorFileSpec;
    std::string TextWithLayoutConverterPath;
};

// In a report-file run an unexpected error's text becomes the run's message instead of a box.
// The options must outlive the route: it ends with SetErrorTextSink({}).
void RouteErrorsToReportRun(cViewFileDiffsOptions& options);

} // namespace orvane
