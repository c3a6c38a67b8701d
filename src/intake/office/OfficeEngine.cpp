#include "intake/office/OfficeEngine.h"

#include "intake/doctxt/LineLimiter.h"
#include "intake/office/GroupProcess.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace office {
namespace fs = std::filesystem;
namespace {

// A private folder for one run, removed with all it holds when the run ends.
class RunFolder {
  public:
    RunFolder() {
        std::error_code ec;
        std::string pattern = (fs::temp_directory_path(ec) / "orvane-office-XXXXXX").string();
        if (::mkdtemp(pattern.data()) != nullptr) path_ = pattern;
    }
    ~RunFolder() {
        std::error_code ec;
        if (!path_.empty()) fs::remove_all(path_, ec);
    }
    RunFolder(const RunFolder&) = delete;
    RunFolder& operator=(const RunFolder&) = delete;
    bool ok() const { return !path_.empty(); }
    fs::path operator/(const char* name) const { return path_ / name; }

  private:
    fs::path path_;
};

// The suite takes its profile folder as a file URL.
std::string FileUrl(const fs::path& path) {
    static const char* const kHex = "0123456789ABCDEF";
    std::string url = "file://";
    for (unsigned char c : path.string()) {
        if (std::isalnum(c) || c == '/' || c == '-' || c == '_' || c == '.' || c == '~') {
            url += static_cast<char>(c);
        } else {
            url += '%';
            url += kHex[c >> 4];
            url += kHex[c & 15];
        }
    }
    return url;
}

std::string ReadAll(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// The suite's last complaint, e.g. "Error: source file could not be loaded".
std::string LastErrorLine(const std::string& log) {
    std::string last;
    std::size_t start = 0;
    while (start < log.size()) {
        std::size_t end = log.find('\n', start);
        if (end == std::string::npos) end = log.size();
        const std::string line = log.substr(start, end - start);
        if (line.starts_with("Error")) last = line;
        start = end + 1;
    }
    return last;
}

bool WriteAll(const std::string& path, const std::string& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    if (!out) return false;
    out << bytes;
    out.close();
    return static_cast<bool>(out);
}

} // namespace

std::string ExportFilter(int saveFormat) {
    // Only the suite's own character set names work; any other silently writes garbage.
    switch (saveFormat) {
    case kTextOnly:
    case kTextWithLineBreaks:
        return "txt:Text (encoded):MS_1252,CRLF,,,";
    case kDosText:
    case kDosTextWithLineBreaks:
        return "txt:Text (encoded):IBM_850,CRLF,,,";
    case kEncodedText:
        return "txt:Text (encoded):UTF8,CRLF,,,"; // with the byte order mark
    default:
        return {};
    }
}

std::string NormaliseLineEnds(const std::string& text) {
    std::string out;
    out.reserve(text.size() + text.size() / 32);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\n' && (i == 0 || text[i - 1] != '\r')) out += '\r';
        out += text[i];
    }
    return out;
}

Outcome ConvertToText(const std::string& source, const std::string& target, int saveFormat,
                      const SuiteSettings& settings) {
    const std::string filter = ExportFilter(saveFormat);
    if (filter.empty()) return {Status::BadFormat, std::to_string(saveFormat)};
    std::error_code ec;
    if (!fs::is_regular_file(source, ec)) return {Status::NotOpened, source};
    // The suite would make one empty line of nothing; say plainly that there was nothing.
    if (fs::file_size(source, ec) == 0) return {Status::NotOpened, "the file is empty"};
    RunFolder folder;
    if (!folder.ok()) return {Status::NotStarted, "temporary folder"};
    for (const char* sub : {"home", "profile", "in", "out"})
        fs::create_directory(folder / sub, ec);

    // A copy under a fixed name: the result's name is known, and the suite's lock file lands
    // in our folder instead of beside the user's document.
    const fs::path input = (folder / "in") / ("document" + fs::path(source).extension().string());
    if (!fs::copy_file(source, input, ec)) return {Status::NotOpened, source};

    GroupRun run;
    run.program = settings.program;
    run.args = {"-env:UserInstallation=" + FileUrl(folder / "profile"),
                "--headless",
                "--norestore",
                "--nolockcheck",
                "--convert-to",
                filter,
                "--outdir",
                (folder / "out").string(),
                input.string()};
    run.environment = EnvironmentWith({"HOME=" + (folder / "home").string()});
    run.workDir = (folder / "home").string();
    run.outputFile = (folder / "log.txt").string();
    run.timeLimit = settings.timeLimit;
    run.poll = settings.poll;
    const GroupResult result = RunInOwnGroup(run);
    if (!result.started) return {Status::NotStarted, settings.program};
    if (result.timedOut) return {Status::TimedOut, std::to_string(settings.timeLimit.count())};

    // The suite exits with 0 whether it converted or not: the file alone tells.
    const fs::path produced = (folder / "out") / "document.txt";
    if (!fs::is_regular_file(produced, ec))
        return {Status::NotOpened, LastErrorLine(ReadAll(folder / "log.txt"))};
    std::string text = NormaliseLineEnds(ReadAll(produced));
    if (saveFormat == kTextWithLineBreaks || saveFormat == kDosTextWithLineBreaks)
        text = doctxt::LimitLines(text, kPageWidth);
    if (!WriteAll(target, text)) return {Status::TargetNotWritten, target};
    return {Status::Converted, {}};
}

std::string Describe(const Outcome& outcome, const std::string& source) {
    switch (outcome.status) {
    case Status::Converted:
        return "Converted " + source + ".";
    case Status::BadFormat:
        return "Unknown save format " + outcome.detail + " (2, 3, 4, 5 or 7).";
    case Status::NotStarted:
        return "The office suite could not be started (" + outcome.detail + ").";
    case Status::NotOpened:
        return "The office suite could not open " + source +
               (outcome.detail.empty() || outcome.detail == source ? "." : ": " + outcome.detail);
    case Status::TimedOut:
        return "The office suite did not finish " + source + " within " + outcome.detail +
               " ms and was ended.";
    case Status::TargetNotWritten:
        return "The text file could not be written: " + outcome.detail;
    }
    return {};
}

} // namespace office
