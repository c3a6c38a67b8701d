// The recogniser from the command line: "detfile PATH" prints the format code and the
// description on two lines; "detfile --score PATH" prints the whole-file text score, and
// "detfile --list" every code and description the recogniser can give.
#include "frame/EngineCli.h"
#include "intake/detfile/Recognise.h"

#include <cstdio>
#include <cstring>
#include <string>

namespace {

void Print(const orvane::detfile::FormatName& f) {
    std::printf("%.*s\n%.*s\n", static_cast<int>(f.code.size()), f.code.data(),
                static_cast<int>(f.description.size()), f.description.data());
}

constexpr char kUsage[] = "usage: detfile PATH | --score PATH | --list\n"
                          "  PATH          prints the format code and its description\n"
                          "  --score PATH  prints the whole-file text score\n"
                          "  --list        prints every code and description\n"
                          "Exit status: 0 recognised, 1 not recognised, 2 trouble.\n";

} // namespace

int main(int argc, char** argv) {
    using namespace orvane::detfile;
    if (orvane::cli::WantsHelp(argc, argv)) return orvane::cli::PrintUsage(kUsage);
    const char* input = argc == 3 && std::strcmp(argv[1], "--score") == 0  ? argv[2]
                        : argc == 2 && std::strcmp(argv[1], "--list") != 0 ? argv[1]
                                                                           : nullptr;
    if (input && !orvane::cli::IsInputFile("detfile", input)) return orvane::cli::kTrouble;
    if (argc == 3 && std::strcmp(argv[1], "--score") == 0) {
        const int score = FileTextScore(argv[2], true);
        std::printf("%d\n", score);
        return score < 0 ? 1 : 0;
    }
    if (argc == 2 && std::strcmp(argv[1], "--list") == 0) {
        for (const FormatName& f : kAllFormats)
            Print(f);
        return 0;
    }
    if (argc != 2) {
        std::fputs(kUsage, stderr);
        return orvane::cli::kTrouble;
    }
    const FormatName f = RecogniseFile(argv[1]).format;
    Print(f);
    return f.code.starts_with('!') ? 1 : 0;
}
