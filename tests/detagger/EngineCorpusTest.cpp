// Every html5lib tree-construction document, however broken, converts to text under each
// layout policy, and no markup from a script, style or comment reaches the text.
#include "intake/detagger/Convert.h"

#include "support/TreeConstructionCorpus.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace detagger {
namespace {

namespace fs = std::filesystem;

Policies Layout(bool singleLine, bool width) {
    Policies p;
    p.singleLineParagraphs = singleLine;
    p.imposePageWidth = width;
    p.pageWidth = 10; // narrow, so wrapping runs on nearly every line
    p.displayLinkUrls = p.addUrlReferences = width;
    return p;
}

TEST(EngineCorpus, EveryDocumentConvertsUnderEveryLayout) {
    const std::vector<std::string> docs = orvane::test::TreeConstructionDocuments();
    ASSERT_EQ(docs.size(), 1792u);
    for (const std::string& doc : docs) {
        for (bool singleLine : {false, true}) {
            for (bool width : {false, true}) {
                const std::string text = ConvertHtml(doc, Layout(singleLine, width));
                EXPECT_TRUE(text.empty() || text.ends_with("\r\n")) << doc;
            }
        }
    }
}

TEST(EngineCorpus, HiddenContentNeverLeaks) {
    const std::string page = "<p>shown<script>alert('SCRIPTTEXT')</script>"
                             "<style>.STYLETEXT{}</style><!-- COMMENTTEXT -->"
                             "<svg><style>SVGSTYLE</style><text>drawn</text></svg>";
    const std::string text = ConvertHtml(page, Policies{});
    for (const char* hidden : {"SCRIPTTEXT", "STYLETEXT", "COMMENTTEXT", "SVGSTYLE", "<", ">"})
        EXPECT_EQ(text.find(hidden), std::string::npos) << hidden;
    EXPECT_NE(text.find("shown"), std::string::npos);
    EXPECT_NE(text.find("drawn"), std::string::npos);
}

} // namespace
} // namespace detagger
