#pragma once
// Text Content mode: an input file turned into a plain text file by the preferred engine, and by
// the other one when the first fails.
#include "settings/ExtractionOptions.h"
#include "settings/ViewOptions.h"

#include <string>

namespace orvane::modConvertFormats {

// True when TextFile (a new temporary "tmp*.wtd" name) holds the text; else FailureReason says
// why. Path is a local file, Format its code ("HTML" for a downloaded page). The internal engine
// works by Mode (Source Code copies, Text Content extracts); EnginePreference is read anew at
// each choice.
bool ConvertFileIfNeeded(const std::string& Path, const std::string& Format, std::string& TextFile,
                         std::string& FailureReason, ComparisonMode Mode,
                         const clsExtractionOptions& Options);

// The internal engine, by conversion method and comparison mode.
bool ConvertFile(const std::string& Path, int Method, const std::string& Format,
                 std::string& TextFile, std::string& FailureReason, ComparisonMode Mode,
                 const clsExtractionOptions& Options);

} // namespace orvane::modConvertFormats
