// html5lib's tree-construction documents as a corpus of bad input: every one is tokenized
// with the state switches a tree builder makes, and must end cleanly in linear work.
#include "TokenizerCases.h"
#include "intake/html/Utf8.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

namespace fs = std::filesystem;

const fs::path kTreeDir = fs::path(ORVANE_SHARED_DIR) / "corpora/html5lib-tests/tree-construction";
constexpr std::size_t kExpectedDocuments = 1792;

// The text between "#data" and "#errors"; some files hold raw NUL bytes, so read as bytes.
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

TEST(TreeConstructionInputs, EveryDocumentTokenizesToTheEnd) {
    std::size_t documents = 0;
    for (const auto& entry : fs::directory_iterator(kTreeDir)) {
        if (entry.path().extension() != ".dat") continue;
        for (const std::string& doc : Documents(entry.path())) {
            ++documents;
            const std::u32string input = html::DecodeUtf8(doc);
            const DrivenRun run = TokenizeLikeATreeBuilder(input);
            ASSERT_FALSE(run.tokens.empty());
            EXPECT_EQ(run.tokens.back().kind, html::TokenKind::EndOfFile) << doc;
            EXPECT_LE(run.steps, 3 * input.size() + 8) << doc;
            EXPECT_LE(run.errors, input.size() + 1) << doc;
        }
    }
    EXPECT_EQ(documents, kExpectedDocuments);
}

} // namespace
