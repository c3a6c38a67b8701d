#pragma once
// An input of the report: a local file or a web address (fetched with the download module's
// limits), its bytes and where its relative addresses point.
#include "report/Markup.h"

#include <string>

namespace orvane::report {

bool IsWebAddress(const std::string& source);

struct LoadedInput {
    bool ok = false;
    std::string bytes;
    PageBase base;
    std::string identity; // the canonical file path or the address: same identity, same input
};

// Through the download module for a web address (in the report library only).
LoadedInput LoadInput(const std::string& source);
// A local file only: what the engine alone can read (frames of a page given as content).
LoadedInput LoadLocalFile(const std::string& path);
bool ReadWholeFile(const std::string& path, std::string& bytes);

// A page without markup, or binary bytes, is not HTML.
bool LooksLikeHtml(const std::string& bytes);

} // namespace orvane::report
