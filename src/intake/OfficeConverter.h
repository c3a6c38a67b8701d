#pragma once
// The office-suite text engine: opens a document in the suite and saves it as text.
#include <string>

namespace orvane {

class clsMSWordConverter {
  public:
    // Starts the suite. Throws RuntimeError 429 where no suite can be started.
    bool Initialize(bool Visible);
    bool ConvertFileToText(const std::string& Path, const std::string& TextFile, int SaveAsFormat,
                           bool Visible);
};

} // namespace orvane
