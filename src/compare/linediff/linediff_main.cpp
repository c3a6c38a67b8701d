// linediff ORIGINAL REVISED [-i] [-w] [-a]: the differ from a shell. Prints the output lines as
// the engine gives them and exits with its status (0 identical, 1 different, 2 trouble).
#include "FileDiff.h"
#include "frame/EngineCli.h"

#include <cstdio>
#include <string>
#include <vector>

namespace {

constexpr char kUsage[] = "usage: linediff ORIGINAL REVISED [-i] [-w] [-a]\n"
                          "  -i  ignore the case of letters\n"
                          "  -w  ignore all white space\n"
                          "  -a  treat all files as text\n"
                          "Exit status: 0 identical, 1 different, 2 trouble.\n";

bool ParseSwitches(const std::string& arg, linediff::Options& options) {
    if (arg.size() < 2) return false;
    for (std::size_t i = 1; i < arg.size(); ++i) {
        switch (arg[i]) {
        case 'i':
            options.ignoreCase = true;
            break;
        case 'w':
            options.ignoreWhiteSpace = true;
            break;
        case 'a':
            options.forceText = true;
            break;
        default:
            return false;
        }
    }
    return true;
}

bool ParseArguments(int argc, char** argv, linediff::Options& options,
                    std::vector<std::string>& paths) {
    bool switchesDone = false;
    for (int i = 1; i < argc; ++i) {
        std::string arg = argv[i];
        if (!switchesDone && arg == "--")
            switchesDone = true;
        else if (!switchesDone && arg.size() > 1 && arg[0] == '-') {
            if (!ParseSwitches(arg, options)) return false;
        } else
            paths.push_back(arg);
    }
    return paths.size() == 2;
}

} // namespace

int main(int argc, char** argv) {
    if (orvane::cli::WantsHelp(argc, argv)) return orvane::cli::PrintUsage(kUsage);
    linediff::Options options;
    std::vector<std::string> paths;
    if (!ParseArguments(argc, argv, options, paths)) {
        std::fputs(kUsage, stderr);
        return linediff::kTrouble;
    }
    for (const std::string& path : paths)
        if (!orvane::cli::IsInputFile("linediff", path)) return linediff::kTrouble;
    linediff::OutputLines out;
    linediff::Status status = linediff::CompareFiles(paths[0], paths[1], options, out);
    std::string_view text = out.Text();
    // In trouble the engine's only line is the reason, which belongs with the other errors.
    FILE* stream = status == linediff::kTrouble ? stderr : stdout;
    bool written = text.empty() || std::fwrite(text.data(), 1, text.size(), stream) == text.size();
    if (!written || std::fflush(stream) != 0) return linediff::kTrouble;
    return status;
}
