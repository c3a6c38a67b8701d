#include "frame/ProgramFolder.h"

namespace orvane {

std::string gAppPath;
std::string gStartDir;

} // namespace orvane
