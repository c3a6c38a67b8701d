#include "frame/CommandLine.h"

#include "frame/ErrorReporter.h"
#include "frame/KWCommon.h"

namespace orvane {
namespace {

constexpr char kQuote = '"';

// The text between the opening quote at 0 and the next quote; npos when there is none.
std::size_t ClosingQuote(const std::string& s) {
    return s.find(kQuote, 1);
}

std::string Quoted(const std::string& s) {
    return kQuote + s + kQuote;
}

} // namespace

void GetFilesFromCommandLine(const std::string& CommandLine, std::string& Original,
                             std::string& Revised, std::string& ReportFile) {
    try {
        const std::string line = Trim(CommandLine);
        if (line.empty() || line[0] != kQuote) {
            Original.clear(), Revised.clear(), ReportFile.clear();
            return;
        }
        std::size_t close = ClosingQuote(line);
        if (close == std::string::npos) {
            Original = line.substr(1);
            Revised.clear();
            return;
        }
        Original = line.substr(1, close - 1);
        std::string rest = Trim(kw::RemainingString(line, Quoted(Original)));
        if (rest.empty()) {
            Revised.clear(), ReportFile.clear();
            return;
        }
        if (rest[0] != kQuote) { // an unquoted second token voids the whole line
            Original.clear(), Revised.clear(), ReportFile.clear();
            return;
        }
        close = ClosingQuote(rest);
        if (close == std::string::npos) {
            Revised = rest.substr(1);
            return;
        }
        Revised = rest.substr(1, close - 1);
        rest = Trim(kw::RemainingString(line, Quoted(Revised)));
        ReportFile.clear();
        if (!rest.empty() && rest[0] == kQuote) {
            close = ClosingQuote(rest);
            ReportFile = close == std::string::npos ? rest.substr(1) : rest.substr(1, close - 1);
        }
    } catch (...) {
        ReportUnexpectedError("modDiff.GetFilesFromCommandLine");
    }
}

std::string JoinArgumentsAsCommandLine(const std::vector<std::string>& arguments) {
    std::string line;
    for (const std::string& a : arguments) {
        if (!line.empty()) line += ' ';
        line += Quoted(a);
    }
    return line;
}

} // namespace orvane
