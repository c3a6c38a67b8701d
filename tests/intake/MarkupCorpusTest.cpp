// html5lib's tree-construction documents: all of them are markup, much of it broken, and the
// recogniser must take each for a page or for text, never for some other format.
#include "frame/ProgramFolder.h"
#include "intake/detfile/DetectFileFormat.h"
#include "support/TempDir.h"
#include "support/TreeConstructionCorpus.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <map>

namespace orvane {
namespace {

namespace fs = std::filesystem;

// The first characters after white space, in lower case.
std::string LowerStart(const std::string& doc) {
    const std::size_t start = std::min(doc.find_first_not_of(" \t\r\n\f"), doc.size());
    std::string s = doc.substr(start, 16);
    for (char& c : s)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return s;
}

TEST(MarkupCorpus, Html5libDocumentsArePagesOrText) {
    const fs::path corpus = test::TreeConstructionDir();
    if (!fs::exists(corpus)) GTEST_SKIP() << "no corpus at " << corpus;
    gAppPath = ORVANE_BIN_DIR;
    test::TempDir dir;
    std::map<std::string, int> codes;
    int count = 0;
    for (const std::string& doc : test::TreeConstructionDocuments()) {
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
    EXPECT_GT(codes["HTML"], 1000);
    for (const auto& [code, count] : codes)
        std::cout << code << ": " << count << '\n';
}

} // namespace
} // namespace orvane
