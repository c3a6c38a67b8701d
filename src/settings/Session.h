#pragma once
// The session's options. The application object creates them at start and releases them after
// the last window has gone; engines take them as arguments instead of reading them here.
#include <memory>
#include <string>

namespace orvane {

struct cViewFileDiffsOptions;
struct clsExtractionOptions;

extern std::unique_ptr<cViewFileDiffsOptions> gViewOptions;
extern std::unique_ptr<clsExtractionOptions> gExtractionOptions;
extern std::string gHTMLEditorFileSpec;
extern std::string gTextWithLayoutConverterPath;

// In a report-file run an unexpected error's text becomes the run's message instead of a box.
void RouteErrorsToReportRun();

} // namespace orvane
