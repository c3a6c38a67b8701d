#include "intake/OfficeConverter.h"

#include "frame/RuntimeError.h"

namespace orvane {

// No office suite is driven by this version: starting one fails as it does on a machine
// without the suite, and the pipeline's callers handle that.
bool clsMSWordConverter::Initialize(bool) {
    throw RuntimeError(err::CannotCreateObject);
}

bool clsMSWordConverter::ConvertFileToText(const std::string&, const std::string&, int, bool) {
    return false;
}

} // namespace orvane
