#pragma once
// Where the program runs from. Set once at start, before anything reads them.
#include <string>

namespace orvane {

extern std::string gAppPath;  // program folder, ends in '/'
extern std::string gStartDir; // current directory at start, ends in '/'

} // namespace orvane
