#include "frame/ErrorReporter.h"

#include "frame/ProgramFolder.h"
#include "frame/Prompter.h"
#include "frame/SettingsFolder.h"

#include <cerrno>
#include <cstring>
#include <ctime>
#include <fstream>

namespace orvane {
namespace {

constexpr const char* kLineEnd = "\r\n";

std::string NowText() {
    std::time_t t = std::time(nullptr);
    char buf[64];
    std::strftime(buf, sizeof buf, "%x %X", std::localtime(&t));
    return buf;
}

bool IsBlank(const std::string& s) {
    return s.find_first_not_of(" \t") == std::string::npos;
}

void AppendDetailRecord(const std::string& errorText, const std::string& detail) {
    const std::string folder = SettingsFolder();
    MakeSettingsFolder(folder);
    std::ofstream out(folder + "ERR_DETAIL.TXT", std::ios::binary | std::ios::app);
    if (!out) throw RuntimeError(err::PathFileAccess, ErrorDescription(err::PathFileAccess), errno);
    out << kLineEnd << NowText() << kLineEnd << errorText << kLineEnd << "- More Information - "
        << kLineEnd << detail << kLineEnd;
    out.close();
    if (!out) throw RuntimeError(err::PathFileAccess, ErrorDescription(err::PathFileAccess), errno);
}

ErrorTextSink& Sink() {
    static ErrorTextSink sink;
    return sink;
}

} // namespace

void SetErrorTextSink(ErrorTextSink sink) {
    Sink() = std::move(sink);
}

std::string GetAPIErrorText(long errorNumber) {
    char buf[1024];
    errno = 0;
    const char* text = strerror_r(static_cast<int>(errorNumber), buf, sizeof buf);
    if (!text || std::strncmp(text, "Unknown error", 13) == 0)
        return "Error (" + std::to_string(errorNumber) + ") not defined.";
    return text;
}

std::string ComposeErrorText(const std::string& Location, const ErrorInfo& e) {
    std::string text;
    if (e.LastDllError != 0) {
        text = "DLL Error: " + GetAPIErrorText(e.LastDllError) + kLineEnd;
        text += "Error: " + e.Description + kLineEnd + "Source: " + Location + kLineEnd;
        text += "No: " + std::to_string(e.LastDllError) + kLineEnd;
    } else {
        text = "Error: " + e.Description + kLineEnd + "Source: " + Location + kLineEnd;
        text += "No: " + std::to_string(e.Number) + kLineEnd;
    }
    return text;
}

bool AppendErrorDetail(const std::string& Location, const ErrorInfo& error,
                       const std::string& Detail) {
    try {
        AppendDetailRecord(ComposeErrorText(Location, error), Detail);
        return true;
    } catch (...) {
        return false;
    }
}

void ReportUnexpectedError(const std::string& Location, const std::string& Detail) {
    ReportUnexpectedError(Location, Detail, CurrentErrorInfo());
}

void ReportUnexpectedError(const std::string& Location, const std::string& Detail,
                           const ErrorInfo& error) {
    try {
        std::string text = ComposeErrorText(Location, error);
        if (!IsBlank(Detail)) {
            AppendDetailRecord(text, Detail);
            text +=
                std::string(kLineEnd) + "See the ERR_DETAIL.TXT file before proceeding." + kLineEnd;
        }
        text += std::string(kLineEnd) +
                "* If this problem persists, please contact our technical support staff for "
                "assistance." +
                kLineEnd + "  (Refer to the Troubleshooting section of the Help file for details.)";
        if (Sink() && Sink()(text)) return;
        prompter().MsgBox(text, MsgIcon::Exclamation, "Unexpected Error in " + Location);
    } catch (...) {
        const ErrorInfo inner = CurrentErrorInfo();
        prompter().MsgBox("An error has occured in the error handler." + std::string(kLineEnd) +
                              std::to_string(inner.Number) + kLineEnd + inner.Description,
                          MsgIcon::Exclamation, "Error in Error Handler");
    }
}

} // namespace orvane
