// linediffs FILE1 FILE2 [--word] [-i]: the marks of the first line of each file, for oracles and
// benchmarks. Prints one line of marks per file, one character per element: 1 common, 0
// different.
#include "compare/StringDiffs.h"
#include "compare/lcs/CodePoints.h"
#include "frame/EngineCli.h"
#include "frame/ProgramFolder.h"
#include "frame/Prompter.h"

#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <string>
#include <unistd.h>

namespace {

// Boxes go to standard error; a run that showed one fails.
class StderrPrompter : public orvane::Prompter {
  public:
    void MsgBox(const std::string& text, orvane::MsgIcon, const std::string& title) override {
        std::cerr << title << "\n" << text << "\n";
        shown = true;
    }
    bool InputBox(const std::string&, const std::string&, std::string&) override { return false; }
    bool OpenFileDialog(const std::string&, const std::string&, std::string&) override {
        return false;
    }
    bool shown = false;
};

bool ReadFirstLine(const std::string& path, std::u32string& line) {
    std::ifstream in(path, std::ios::binary);
    if (!in) return false;
    std::string bytes;
    std::getline(in, bytes, '\n');
    if (!bytes.empty() && bytes.back() == '\r') bytes.pop_back();
    if (bytes.starts_with("\xEF\xBB\xBF")) bytes.erase(0, 3);
    line = orvane::lcs::DecodeText(bytes);
    return true;
}

std::string ProgramFolder() {
    char path[4096];
    const ssize_t n = readlink("/proc/self/exe", path, sizeof path - 1);
    if (n <= 0) return "./";
    const std::string exe(path, static_cast<std::size_t>(n));
    return exe.substr(0, exe.rfind('/') + 1);
}

std::string Digits(const orvane::lcs::Marks& marks) {
    std::string out;
    out.reserve(marks.size());
    for (bool m : marks)
        out.push_back(m ? '1' : '0');
    return out;
}

} // namespace

constexpr char kUsage[] = "usage: linediffs FILE1 FILE2 [--word] [-i]\n"
                          "  --word  compare words instead of characters\n"
                          "  -i      ignore the case of letters\n"
                          "Prints one line of marks per file: 1 common, 0 different.\n"
                          "Exit status: 0 done, 1 an error box was shown, 2 trouble.\n";

int main(int argc, char** argv) {
    if (orvane::cli::WantsHelp(argc, argv)) return orvane::cli::PrintUsage(kUsage);
    std::string files[2];
    int fileCount = 0;
    bool word = false, ignoreCase = false;
    for (int k = 1; k < argc; ++k) {
        const std::string arg = argv[k];
        if (arg == "--word")
            word = true;
        else if (arg == "-i")
            ignoreCase = true;
        else if (fileCount < 2 && !arg.starts_with("-"))
            files[fileCount++] = arg;
        else
            fileCount = 3;
    }
    if (fileCount != 2) {
        std::cerr << kUsage;
        return orvane::cli::kTrouble;
    }
    for (const std::string& file : files)
        if (!orvane::cli::IsInputFile("linediffs", file)) return orvane::cli::kTrouble;
    std::u32string text1, text2;
    if (!ReadFirstLine(files[0], text1) || !ReadFirstLine(files[1], text2)) {
        std::cerr << "linediffs: cannot read " << files[0] << " or " << files[1] << "\n";
        return orvane::cli::kTrouble;
    }
    orvane::gAppPath = ProgramFolder();
    auto prompter = std::make_shared<StderrPrompter>();
    orvane::SetPrompter(prompter);
    orvane::lcs::Marks marks1, marks2;
    if (word)
        orvane::modDiff::StringDiffsWordLevel(text1, text2, ignoreCase, marks1, marks2);
    else
        orvane::modDiff::StringDiffsCharLevel(text1, text2, ignoreCase, marks1, marks2);
    std::cout << Digits(marks1) << "\n" << Digits(marks2) << "\n";
    return prompter->shown ? 1 : 0;
}
