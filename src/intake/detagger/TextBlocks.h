#pragma once
// The page as a reader sees it: a list of blocks (paragraphs, headings, list items, table
// rows, preformatted text), each one run of text. Made from the parsed tree by LayOutBlocks and
// turned into lines by WriteLines.
#include "intake/html/Dom.h"

#include <string>
#include <vector>

namespace detagger {

// In a block's text: a collapsed run of white space that held a line end in the source, which
// the "single line" policy decides about, and a forced break (<br>, a line of <pre>).
inline constexpr char32_t kSoftBreak = U'\n';
inline constexpr char32_t kHardBreak = U'\u2028';

struct TextBlock {
    std::u32string text;
    std::u32string prefix; // list marker, first line only
    int indent = 0;        // columns
    bool preformatted = false;
    bool blankBefore = false;
};

struct LayoutOptions {
    bool displayLinkUrls = false; // "text <url>"
    bool numberLinks = false;     // "text[n]", with the address in `references`
};

struct Layout {
    std::vector<TextBlock> blocks;
    std::vector<std::u32string> references;
};

Layout LayOutBlocks(const html::Node* root, const LayoutOptions& options);

} // namespace detagger
