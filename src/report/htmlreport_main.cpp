// htmlreport ORIGINAL REVISED OUTPUT.html [options]: the merged report from a script. Exits as
// diff does: 0 identical, 1 differences, 2 trouble.
#include "report/Report.h"
#include "settings/AtomicWrite.h"

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

using namespace orvane::report;

namespace {

constexpr const char* kUsage =
    "usage: htmlreport ORIGINAL REVISED OUTPUT.html [--kind visual|source|text] [--ignore-case]\n"
    "                  [--ignore-whitespace] [--ignore-formatting] [--level char|word|line] "
    "[--numbers]\n";

bool ParseArguments(int argc, char** argv, std::vector<std::string>& files, ReportOptions& o) {
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        const auto value = [&](std::string& v) {
            if (i + 1 >= argc) return false;
            v = argv[++i];
            return true;
        };
        std::string v;
        if (arg == "--kind") {
            if (!value(v)) return false;
            if (v == "visual")
                o.kind = CompareKind::Visual;
            else if (v == "source")
                o.kind = CompareKind::Source;
            else if (v == "text")
                o.kind = CompareKind::Text;
            else
                return false;
        } else if (arg == "--level") {
            if (!value(v)) return false;
            if (v == "char")
                o.level = DetailLevel::Character;
            else if (v == "word")
                o.level = DetailLevel::Word;
            else if (v == "line")
                o.level = DetailLevel::Line;
            else
                return false;
        } else if (arg == "--ignore-case") {
            o.ignoreCase = true;
        } else if (arg == "--ignore-whitespace") {
            o.whiteSpaceMode = 2;
        } else if (arg == "--ignore-formatting") {
            o.ignoreFormatting = true;
        } else if (arg == "--numbers") {
            o.showNumbers = true;
        } else if (arg.starts_with("--")) {
            return false;
        } else {
            files.push_back(arg);
        }
    }
    return files.size() == 3;
}

} // namespace

int main(int argc, char** argv) {
    std::vector<std::string> files;
    ReportOptions options;
    if (!ParseArguments(argc, argv, files, options)) {
        std::fputs(kUsage, stderr);
        return 2;
    }
    const ReportResult r = MakeReport(files[0], files[1], options);
    if (r.code != kDifferent && r.code != kIdentical) {
        std::fprintf(stderr, "htmlreport: %s\n", ResultText(r.code).c_str());
        return 2;
    }
    if (!orvane::WriteFileAtomically(files[2], r.html)) {
        std::fprintf(stderr, "htmlreport: cannot write %s: %s\n", files[2].c_str(),
                     std::strerror(errno));
        return 2;
    }
    std::printf("%d %s\n", r.differenceCount,
                r.differenceCount == 1 ? "difference" : "differences");
    return r.code == kIdentical ? 0 : 1;
}
