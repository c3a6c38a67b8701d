#include "frame/Globals.h"

#include "compare/FileDiffEngine.h"
#include "compare/ViewOptions.h"
#include "settings/ExtractionOptions.h"

namespace orvane {

std::string gAppPath;
std::string gStartDir;
std::unique_ptr<cViewFileDiffsOptions> gViewOptions;
std::unique_ptr<FileDiffEngine> gFileDiff;
std::unique_ptr<clsExtractionOptions> gExtractionOptions;
std::string gHTMLEditorFileSpec;
std::string gTextWithLayoutConverterPath;

} // namespace orvane
