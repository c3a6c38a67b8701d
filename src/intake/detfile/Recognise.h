#pragma once
// The recogniser: what a file is, from its content alone. Signatures of binary and document
// formats come first, then markup, then the text score; what none of them claims is unknown.
#include "intake/detfile/FormatNames.h"

#include <cstddef>
#include <string>

namespace orvane::detfile {

struct Recognition {
    FormatName format;
    std::size_t bytesRead = 0; // of the file, however large it is
};

Recognition RecogniseFile(const std::string& path);

// The C interface's text score: -1 when the file cannot be read.
int FileTextScore(const std::string& path, bool wholeFile);

} // namespace orvane::detfile
