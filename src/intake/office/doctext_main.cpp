// doctext SOURCE TARGET [--format 2|3|4|5|7] [--max-chars N] [--time-limit SECONDS]
// The office engine alone, for scripts and tests: whatever the suite opens becomes text.
#include "intake/doctxt/LineLimiter.h"
#include "intake/office/GroupProcess.h"
#include "intake/office/OfficeEngine.h"

#include <charconv>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <string>

namespace {

constexpr int kFailed = 2;

bool ParseNumber(const char* text, int& value) {
    const char* end = text + std::strlen(text);
    const auto [ptr, ec] = std::from_chars(text, end, value);
    return ec == std::errc() && ptr == end;
}

int Fail(const std::string& message) {
    std::cerr << "doctext: " << message << '\n';
    return kFailed;
}

} // namespace

int main(int argc, char** argv) {
    const std::string usage = "usage: doctext SOURCE TARGET [--format 2|3|4|5|7] [--max-chars N] "
                              "[--time-limit SECONDS]";
    std::string source, target;
    int format = office::kTextOnly, maxChars = 0;
    int seconds = static_cast<int>(office::kDefaultTimeLimit.count() / 1000);
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        int* number = arg == "--format"       ? &format
                      : arg == "--max-chars"  ? &maxChars
                      : arg == "--time-limit" ? &seconds
                                              : nullptr;
        if (number != nullptr) {
            if (i + 1 >= argc || !ParseNumber(argv[++i], *number) || *number < 0)
                return Fail(arg + " needs a number.\n" + usage);
        } else if (arg.starts_with("--")) {
            return Fail("unknown option " + arg + "\n" + usage);
        } else if (source.empty()) {
            source = arg;
        } else if (target.empty()) {
            target = arg;
        } else {
            return Fail(usage);
        }
    }
    if (target.empty()) return Fail(usage);
    if (office::ExportFilter(format).empty())
        return Fail("unknown save format " + std::to_string(format) + " (2, 3, 4, 5 or 7).");

    const char* path = std::getenv("PATH");
    office::SuiteSettings settings;
    settings.program = office::FindOnPath("soffice", path != nullptr ? path : "");
    if (settings.program.empty()) return Fail("soffice was not found on the PATH.");
    settings.timeLimit = std::chrono::seconds(seconds);

    const office::Outcome outcome = office::ConvertToText(source, target, format, settings);
    if (!outcome.ok()) return Fail(office::Describe(outcome, source));
    if (maxChars > 0) {
        const std::string wrapped = target + ".wrap";
        if (!doctxt::LimitFile(target, maxChars, wrapped) ||
            std::rename(wrapped.c_str(), target.c_str()) != 0)
            return Fail("the lines of " + target + " could not be limited.");
    }
    return 0;
}
