#pragma once
// modConvertFormats.ConvertHTMLToText: the internal text engine, driven through the detagger
// library's CONVERTER_* calls, with the policies chosen from the extraction options.
#include "settings/ExtractionOptions.h"

#include <string>
#include <utility>
#include <vector>

namespace orvane {

// True when OutputFile has been written. On an engine error ErrorMessage is the code's text
// (empty for a status without code or an unknown code); an unexpected failure is reported under
// "modConvertFormats.ConvertHTMLToText" and gives false.
bool ConvertHTMLToText(const std::string& InputFile, const std::string& OutputFile,
                       std::string& ErrorMessage, const clsExtractionOptions& Options);

// The policies a conversion sets, in order, as name and value.
std::vector<std::pair<std::string, std::string>>
DetaggerPolicies(const clsExtractionOptions& Options);

// The text of an engine error code; empty for 0 and for codes outside the table.
std::string DetaggerErrorText(int code);

} // namespace orvane
