#include "intake/OfficeConverter.h"

#include "frame/EngineLibraries.h"
#include "frame/KWCommon.h"
#include "frame/Prompter.h"
#include "frame/RuntimeError.h"
#include "intake/office/GroupProcess.h"
#include "intake/office/OfficeEngine.h"

#include <cstdint>
#include <cstdlib>
#include <filesystem>

namespace orvane {
namespace {

using LimitFn = std::int16_t(const char*, std::int32_t, const char*);

// The word processor's own error for a run: number and description.
RuntimeError OfficeError(const office::Outcome& outcome, const std::string& source) {
    switch (outcome.status) {
    case office::Status::BadFormat:
        return RuntimeError(err::InvalidCall);
    case office::Status::NotStarted:
        return RuntimeError(wordErr::NotRunning, "Word is not running.");
    case office::Status::TimedOut:
        return RuntimeError(wordErr::TimedOut, office::Describe(outcome, source));
    case office::Status::TargetNotWritten:
        return RuntimeError(wordErr::SaveFailed, office::Describe(outcome, source));
    default:
        return RuntimeError(wordErr::CannotOpen, "Word was unable to open the file.");
    }
}

} // namespace

clsMSWordConverter::clsMSWordConverter(const clsExtractionOptions& Options,
                                       std::chrono::milliseconds TimeLimit)
    : options_(Options), timeLimit_(TimeLimit) {}

bool clsMSWordConverter::Initialize(bool Visible) {
    // The suite runs headless whatever Visible says: a window of its own would only flash.
    (void)Visible;
    const char* path = std::getenv("PATH");
    suite_ = office::FindOnPath("soffice", path != nullptr ? path : "");
    supportsAutomation_ = !suite_.empty();
    if (suite_.empty()) throw RuntimeError(err::CannotCreateObject);
    return true;
}

bool clsMSWordConverter::ConvertFileToText(const std::string& SourceFile,
                                           const std::string& TargetFile, int SaveFormat,
                                           bool Visible) {
    (void)Visible;
    errors_.clear();
    try {
        if (suite_.empty()) throw RuntimeError(wordErr::NotRunning, "Word is not running.");
        if (!supportsAutomation_)
            throw RuntimeError(wordErr::NoAutomation, "Word does not support automation.");
        DoEvents();
        office::SuiteSettings settings;
        settings.program = suite_;
        settings.timeLimit = timeLimit_;
        settings.poll = [] { DoEvents(); };
        const office::Outcome outcome =
            office::ConvertToText(SourceFile, TargetFile, SaveFormat, settings);
        DoEvents();
        if (!outcome.ok()) throw OfficeError(outcome, SourceFile);
        LimitLineLength(TargetFile);
        return true;
    } catch (...) {
        const ErrorInfo info = CurrentErrorInfo();
        errors_.push_back("Error #: " + std::to_string(info.Number) +
                          " Error Description: " + info.Description +
                          " Error Module: clsWord.ConvertFileToText" + " File: " + SourceFile);
        return false;
    }
}

// The internal engine's width settings apply here too; the word processor's own width
// settings are shown in the options but have never governed this path.
void clsMSWordConverter::LimitLineLength(const std::string& TargetFile) const {
    if (!options_.LimitLineLength) return;
    std::string extension = "tmp";
    const std::string limited = GetTempFileSpec("htm", extension, GetSystemTempFolder());
    auto* limit =
        reinterpret_cast<LimitFn*>(EngineSymbol(Engine::DocTxt, "LimitTextFileLineLength"));
    // A limiter that wrote nothing leaves the suite's text as it stands, and its file too.
    if (limit(TargetFile.c_str(), options_.MaxNumCharsPerLine, limited.c_str()) == 0) return;
    std::error_code ec;
    if (std::filesystem::copy_file(limited, TargetFile,
                                   std::filesystem::copy_options::overwrite_existing, ec))
        std::filesystem::remove(limited, ec);
}

} // namespace orvane
