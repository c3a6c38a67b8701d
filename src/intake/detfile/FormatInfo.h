#pragma once
// What the Test File Format dialogue shows for a file, gathered without the dialogue.
#include "intake/detfile/FileTypes.h"

#include <string>

namespace orvane {

struct FileFormatInfo {
    std::string Format; // the code, failure codes included ("!UNK", "!EMPTY")
    std::string Description;
    std::string RegisteredAs; // the desktop's name for the kind of file
    modFileTypes::FileIcon Icon;
};

// The format as the program finds it for a comparison; its verdict and reason are not shown.
// Unexpected errors are reported and leave the fields found so far.
FileFormatInfo GetFileFormatInfo(const std::string& Path);

} // namespace orvane
