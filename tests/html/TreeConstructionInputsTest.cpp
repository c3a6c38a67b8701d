// html5lib's tree-construction documents as a corpus of bad input: every one is tokenized
// with the state switches a tree builder makes, and must end cleanly in linear work.
#include "TokenizerCases.h"
#include "intake/html/Utf8.h"

#include "support/TreeConstructionCorpus.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kExpectedDocuments = 1792;

TEST(TreeConstructionInputs, EveryDocumentTokenizesToTheEnd) {
    std::size_t documents = 0;
    for (const std::string& doc : orvane::test::TreeConstructionDocuments()) {
        ++documents;
        const std::u32string input = html::DecodeUtf8(doc);
        const DrivenRun run = TokenizeLikeATreeBuilder(input);
        ASSERT_FALSE(run.tokens.empty());
        EXPECT_EQ(run.tokens.back().kind, html::TokenKind::EndOfFile) << doc;
        EXPECT_LE(run.steps, 3 * input.size() + 8) << doc;
        EXPECT_LE(run.errors, input.size() + 1) << doc;
    }
    EXPECT_EQ(documents, kExpectedDocuments);
}

} // namespace
