// The html5lib encoding data: which encoding a page's bytes declare. Cases under scripted/
// need a page script to run, which we never do; they are counted and shown, not required.
#include "intake/html/EncodingSniffer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

namespace {

namespace fs = std::filesystem;

const fs::path kEncodingDir = fs::path(ORVANE_CORPORA_DIR) / "html5lib-tests/encoding";
constexpr std::size_t kExpectedCases = 83;

struct EncodingCase {
    std::string file;
    std::string data;
    std::string encoding;
};

std::string ReadBinary(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream buffer;
    buffer << in.rdbuf();
    return buffer.str();
}

std::string Lower(std::string s) {
    std::transform(s.begin(), s.end(), s.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return s;
}

// "#data\n<bytes>\n#encoding\n<name>\n", repeated; the bytes are taken as they are.
std::vector<EncodingCase> LoadCases(const fs::path& path) {
    const std::string text = ReadBinary(path);
    std::vector<EncodingCase> cases;
    for (std::size_t at = text.find("#data\n"); at != std::string::npos;
         at = text.find("\n#data\n", at)) {
        const std::size_t dataStart = text.find('\n', at + 1) + 1;
        const std::size_t marker = text.find("\n#encoding\n", dataStart - 1);
        if (marker == std::string::npos) break;
        const std::size_t nameStart = marker + 11;
        const std::size_t nameEnd = std::min(text.find('\n', nameStart), text.size());
        cases.push_back({path.filename().string(), text.substr(dataStart, marker - dataStart),
                         Lower(text.substr(nameStart, nameEnd - nameStart))});
        at = nameEnd;
    }
    return cases;
}

std::vector<fs::path> DataFiles() {
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(kEncodingDir))
        if (entry.path().extension() == ".dat") files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

TEST(Html5libEncoding, PrescanFindsTheDeclaredEncoding) {
    std::size_t total = 0, passed = 0, scripted = 0;
    for (const fs::path& file : DataFiles()) {
        const bool needsScript = file.parent_path().filename() == "scripted";
        for (const EncodingCase& c : LoadCases(file)) {
            ++total;
            const std::string actual(html::SniffEncoding(c.data).encoding);
            if (needsScript) {
                ++scripted;
                std::cout << "NOT APPLICABLE (needs a page script) " << c.file << ": expected "
                          << c.encoding << ", sniffed " << actual << "\n";
                continue;
            }
            passed += actual == c.encoding;
            EXPECT_EQ(actual, c.encoding) << c.file << ":\n" << c.data;
        }
    }
    std::cout << "html5lib encoding: " << passed << "/" << total - scripted << " passed, "
              << scripted << " need a script\n";
    EXPECT_EQ(total, kExpectedCases);
}

} // namespace
