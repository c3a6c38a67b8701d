#pragma once
// The line differ as a whole: two files and the switches in, a status and the output lines out.
#include "Options.h"
#include "OutputLines.h"

#include <string>
#include <string_view>

namespace linediff {

enum Status : int {
    kIdentical = 0, // equal under the switches; no output
    kDiffer = 1,    // hunks, or the single "Binary files ... differ" line
    kTrouble = 2    // output line 0 names the file and the reason
};

// Replaces `out`. Never throws.
Status CompareFiles(const std::string& originalPath, const std::string& revisedPath,
                    const Options& options, OutputLines& out);

// The text stage alone, on two contents already read (no binary test).
Status CompareTexts(std::string_view original, std::string_view revised, const Options& options,
                    OutputLines& out);

} // namespace linediff
