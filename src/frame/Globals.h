#pragma once
// The application's globals. Only the application layer reads them; engines take their options
// as arguments.
#include <memory>
#include <string>

namespace orvane {

struct cViewFileDiffsOptions;
struct clsExtractionOptions;
class FileDiffEngine;

extern std::string gAppPath;  // program folder, ends in '/'
extern std::string gStartDir; // current directory at start, ends in '/'
extern std::unique_ptr<cViewFileDiffsOptions> gViewOptions;
extern std::unique_ptr<FileDiffEngine> gFileDiff;
extern std::unique_ptr<clsExtractionOptions> gExtractionOptions;
extern std::string gHTMLEditorFileSpec;
extern std::string gTextWithLayoutConverterPath;

} // namespace orvane
