// html5lib's tree-construction documents: all of them are markup, much of it broken, and the
// recogniser must take each for a page or for text, never for some other format.
#include "frame/Globals.h"
#include "intake/detfile/DetectFileFormat.h"
#include "support/TempDir.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

namespace orvane {
namespace {

namespace fs = std::filesystem;

// The text between "#data" and "#errors"; some documents hold raw NUL bytes.
std::vector<std::string> Documents(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::stringstream buffer;
    buffer << in.rdbuf();
    const std::string text = buffer.str();
    std::vector<std::string> docs;
    for (std::size_t at = text.find("#data\n"); at != std::string::npos;
         at = text.find("\n#data\n", at)) {
        const std::size_t start = text.find('\n', at + 1) + 1;
        const std::size_t end = text.find("\n#errors", start - 1);
        if (end == std::string::npos) break;
        docs.push_back(text.substr(start, end - start));
        at = end;
    }
    return docs;
}

// The first characters after white space, in lower case.
std::string LowerStart(const std::string& doc) {
    const std::size_t start = std::min(doc.find_first_not_of(" \t\r\n\f"), doc.size());
    std::string s = doc.substr(start, 16);
    for (char& c : s)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return s;
}

TEST(MarkupCorpus, Html5libDocumentsArePagesOrText) {
    const fs::path corpus =
        fs::path(ORVANE_SHARED_DIR) / "corpora/html5lib-tests/tree-construction";
    if (!fs::exists(corpus)) GTEST_SKIP() << "no corpus at " << corpus;
    gAppPath = ORVANE_BIN_DIR;
    test::TempDir dir;
    std::map<std::string, int> codes;
    int count = 0;
    for (const auto& entry : fs::directory_iterator(corpus)) {
        if (entry.path().extension() != ".dat") continue;
        for (const std::string& doc : Documents(entry.path())) {
            std::string format, description, reason;
            short known = -1;
            // A new name each time: rewriting one file makes the file system flush it.
            const std::string path = dir.Write("doc" + std::to_string(count++), doc);
            modDetFile::DetectFileFormat(path, format, description, known, reason);
            ++codes[format];
            if (doc.empty()) {
                EXPECT_EQ(format, "!EMPTY");
            } else if (doc.find('<') != std::string::npos) {
                EXPECT_TRUE(format == "HTML" || format == "ASC") << format << ": " << doc;
            }
            const std::string start = LowerStart(doc);
            if (start.starts_with("<!doctype html") || start.starts_with("<html")) {
                EXPECT_EQ(format, "HTML") << doc;
            }
        }
    }
    EXPECT_GT(codes["HTML"], 1000);
    for (const auto& [code, count] : codes)
        std::cout << code << ": " << count << '\n';
}

} // namespace
} // namespace orvane
