#include "intake/Detagger.h"

#include "frame/EngineLibraries.h"
#include "frame/ErrorReporter.h"

namespace orvane {
namespace {

using AllocateFn = int();
using SetPolicyValueFn = int(int, const char*, const char*, int*);
using DoFileConvertFn = int(int, int, const char*, const char*, int*);
using FreeFn = void(int*);

// The library's fixed argument for an HTML file to text file conversion.
constexpr int kFileToFileConversion = 7;

// Bound at the call, as the library's declarations bind: a missing entry fails only there.
template <typename Fn> Fn* Entry(const char* name) {
    return reinterpret_cast<Fn*>(EngineSymbol(Engine::Detagger, name));
}

} // namespace

std::vector<std::pair<std::string, std::string>>
DetaggerPolicies(const clsExtractionOptions& Options) {
    std::vector<std::pair<std::string, std::string>> policies = {
        {"Add URL references at end of file", "No"},
        {"Display link URLs", "No"},
        {"Allow 8-bit ANSI values in output", "Yes"},
        {"Allow ANSI alternatives (e.g. space for &nbsp;)", "Yes"},
    };
    if (Options.OriginalFormat) return policies;
    policies.emplace_back("Output each paragraph on a single line",
                          Options.SingleLineParagraph ? "Yes" : "No");
    policies.emplace_back("Impose a page width on the output",
                          Options.LimitLineLength ? "Yes" : "No");
    if (Options.LimitLineLength)
        policies.emplace_back("Target Page width", std::to_string(Options.MaxNumCharsPerLine));
    return policies;
}

bool ConvertHTMLToText(const std::string& InputFile, const std::string& OutputFile,
                       std::string& ErrorMessage, const clsExtractionOptions& Options) {
    try {
        int handle = Entry<AllocateFn>("CONVERTER_Allocate")();
        int code = 0;
        bool ok = true;
        for (const auto& [name, value] : DetaggerPolicies(Options)) {
            const int status = Entry<SetPolicyValueFn>("CONVERTER_SetPolicyValue_Ptr")(
                handle, name.c_str(), value.c_str(), &code);
            if (status != 0 || code != 0) {
                ok = false;
                break;
            }
        }
        if (ok) {
            const int status = Entry<DoFileConvertFn>("CONVERTER_DoFileConvert_Ptr")(
                handle, kFileToFileConversion, InputFile.c_str(), OutputFile.c_str(), &code);
            ok = status == 0 && code == 0;
        }
        if (!ok) ErrorMessage = DetaggerErrorText(code);
        Entry<FreeFn>("CONVERTER_Free")(&handle);
        return ok;
    } catch (...) {
        ReportUnexpectedError("modConvertFormats.ConvertHTMLToText");
        return false;
    }
}

} // namespace orvane
