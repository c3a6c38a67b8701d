#pragma once
// clsMSWordConverter: the word-processor text engine. On this system the word processor is the
// office suite's soffice, run headless, one process per conversion.
#include "intake/office/OfficeEngine.h"
#include "settings/ExtractionOptions.h"

#include <chrono>
#include <string>
#include <vector>

namespace orvane {

// Error numbers raised inside the converter; their texts keep the class's historic name.
namespace wordErr {
constexpr long NotRunning = -999;   // "Word is not running."
constexpr long CannotOpen = -998;   // "Word was unable to open the file."
constexpr long NoAutomation = -997; // "Word does not support automation."
constexpr long TimedOut = -996;     // the suite hung and was ended
constexpr long SaveFailed = -995;   // the text file could not be written
} // namespace wordErr

class clsMSWordConverter {
  public:
    // The line limit after conversion comes from `Options` (LimitLineLength and
    // MaxNumCharsPerLine of the internal engine); it is read at each conversion.
    explicit clsMSWordConverter(const clsExtractionOptions& Options,
                                std::chrono::milliseconds TimeLimit = office::kDefaultTimeLimit);

    // Finds the suite on the PATH. Throws RuntimeError 429 where there is none: the pipeline's
    // error trap takes over, as on a machine without the word processor.
    bool Initialize(bool Visible);
    // True when TargetFile holds the text of SourceFile in SaveFormat (2, 3, 4, 5 or 7).
    // Never throws: a failure is false with one entry in Errors.
    bool ConvertFileToText(const std::string& SourceFile, const std::string& TargetFile,
                           int SaveFormat, bool Visible);

    bool WordSupportsAutomation() const { return supportsAutomation_; }
    void WordSupportsAutomation(bool value) { supportsAutomation_ = value; }
    const std::vector<std::string>& Errors() const { return errors_; }

  private:
    void LimitLineLength(const std::string& TargetFile) const;

    const clsExtractionOptions& options_;
    std::chrono::milliseconds timeLimit_;
    std::string suite_; // the "running" word processor: empty until Initialize succeeds
    bool supportsAutomation_ = false;
    std::vector<std::string> errors_;
};

} // namespace orvane
