// detag INPUT OUTPUT ["policy name=value"]...: runs the detagger engine on one file. Without
// policies it sets the four that the program always sets. On failure it prints the error text
// to standard error and exits 1; an input that is not a regular file exits 2.
#include "frame/EngineCli.h"
#include "intake/Detagger.h"
#include "intake/detagger/Convert.h"

#include <cstdio>
#include <string>
#include <utility>
#include <vector>

namespace {

using Policy = std::pair<std::string, std::string>;

const std::vector<Policy> kAlwaysSet = {
    {"Add URL references at end of file", "No"},
    {"Display link URLs", "No"},
    {"Allow 8-bit ANSI values in output", "Yes"},
    {"Allow ANSI alternatives (e.g. space for &nbsp;)", "Yes"},
};

int Fail(int code) {
    std::fprintf(stderr, "detag: %s\n", orvane::DetaggerErrorText(code).c_str());
    return 1;
}

constexpr char kUsage[] =
    "usage: detag INPUT OUTPUT [\"policy name=value\"]...\n"
    "Writes the text of the HTML file INPUT to OUTPUT. Without policies the four that the\n"
    "program always sets are used.\n"
    "Exit status: 0 done, 1 the engine failed, 2 trouble with the arguments or the input.\n";

} // namespace

int main(int argc, char** argv) {
    if (orvane::cli::WantsHelp(argc, argv)) return orvane::cli::PrintUsage(kUsage);
    if (argc < 3) {
        std::fputs(kUsage, stderr);
        return orvane::cli::kTrouble;
    }
    if (!orvane::cli::IsInputFile("detag", argv[1])) return orvane::cli::kTrouble;
    std::vector<Policy> policies;
    for (int i = 3; i < argc; ++i) {
        const std::string arg = argv[i];
        const std::size_t eq = arg.rfind('=');
        if (eq == std::string::npos) return Fail(detagger::kNullArgument);
        policies.emplace_back(arg.substr(0, eq), arg.substr(eq + 1));
    }
    if (policies.empty()) policies = kAlwaysSet;
    detagger::Policies set;
    for (const auto& [name, value] : policies)
        if (const int code = detagger::SetPolicy(set, name, value)) return Fail(code);
    if (const int code = detagger::ConvertFile(argv[1], argv[2], set)) return Fail(code);
    return 0;
}
