// What the html5lib data leaves out: the tree builder's side of the tokenizer (switching
// states between tokens, the last start tag, CDATA in foreign content), one token per run of
// characters, and where errors are placed in a multi-line input.
#include "intake/html/Tokenizer.h"
#include "TokenizerCases.h"

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;
using html::State;
using html::TokenKind;

std::vector<std::string> TokensOf(html::Tokenizer& tokenizer) {
    std::vector<std::string> out;
    for (html::Token t; tokenizer.Next(t);)
        out.push_back(FormatToken(t));
    return out;
}

std::vector<std::string> Driven(std::u32string_view input) {
    std::vector<std::string> out;
    for (const html::Token& t : TokenizeLikeATreeBuilder(input).tokens)
        out.push_back(FormatToken(t));
    return out;
}

struct SwitchCase {
    const char32_t* input;
    std::vector<std::string> tokens;
};

void PrintTo(const SwitchCase& c, std::ostream* os) {
    *os << Slug(c.input);
}

class StateSwitch : public testing::TestWithParam<SwitchCase> {};

TEST_P(StateSwitch, TakesEffectFromTheNextCharacter) {
    EXPECT_EQ(Driven(GetParam().input), GetParam().tokens);
}

INSTANTIATE_TEST_SUITE_P(
    TreeBuilder, StateSwitch,
    testing::Values(SwitchCase{U"<title>a<b>&amp;</title><b>",
                               {"StartTag \"title\"", "Character \"a<b>&\"", "EndTag \"title\"",
                                "StartTag \"b\"", "EOF"}},
                    SwitchCase{U"<style>&amp;</styles></style>",
                               {"StartTag \"style\"", "Character \"&amp;</styles>\"",
                                "EndTag \"style\"", "EOF"}},
                    SwitchCase{U"<script><!--<script></script>--></script>",
                               {"StartTag \"script\"", "Character \"<!--<script></script>-->\"",
                                "EndTag \"script\"", "EOF"}},
                    SwitchCase{U"<plaintext></plaintext>",
                               {"StartTag \"plaintext\"", "Character \"</plaintext>\"", "EOF"}},
                    SwitchCase{U"<svg><![CDATA[<x>]]></svg>",
                               {"StartTag \"svg\"", "Character \"<x>\"", "EndTag \"svg\"", "EOF"}},
                    SwitchCase{U"<![CDATA[<x>]]>",
                               {"Comment \"[CDATA[<x\"", "Character \"]]>\"", "EOF"}}));

TEST(Tokenizer, LastStartTagIsTheLastOneEmitted) {
    html::Tokenizer tokenizer(U"<textarea><title></textarea>");
    html::Token t;
    ASSERT_TRUE(tokenizer.Next(t));
    tokenizer.SetState(State::Rcdata);
    EXPECT_EQ(TokensOf(tokenizer),
              (std::vector<std::string>{"Character \"<title>\"", "EndTag \"textarea\"", "EOF"}));
}

TEST(Tokenizer, JoinsACharacterRunIntoOneTokenAndEndsOnce) {
    html::Tokenizer tokenizer(U"a&amp;b&#x41;\0c"s);
    EXPECT_EQ(TokensOf(tokenizer), (std::vector<std::string>{"Character \"a&bA\\u{0}c\"", "EOF"}));
    html::Token t;
    EXPECT_FALSE(tokenizer.Next(t));
}

TEST(Tokenizer, PlacesErrorsByLineAndColumnAfterLineEndsFold) {
    // Line 2 ends in a lone CR, line 3 holds a control character and an unknown reference.
    html::Tokenizer tokenizer(U"<a>\r\nx\ry\x01&zz;");
    TokensOf(tokenizer);
    const auto errors = tokenizer.Errors();
    ASSERT_EQ(errors.size(), 2u);
    EXPECT_EQ(errors[0].code, html::ParseErrorCode::ControlCharacterInInputStream);
    EXPECT_EQ(errors[1].code, html::ParseErrorCode::UnknownNamedCharacterReference);
    const html::Location control = tokenizer.Input().LocationOf(errors[0].offset);
    const html::Location unknown = tokenizer.Input().LocationOf(errors[1].offset);
    EXPECT_EQ(control.line, 3u);
    EXPECT_EQ(control.column, 2u);
    EXPECT_EQ(unknown.line, 3u);
    EXPECT_EQ(unknown.column, 6u);
}

TEST(Tokenizer, KeepsTheFirstOfRepeatedAttributes) {
    html::Tokenizer tokenizer(U"<a x=1 y=2 X=3 x=4 y>");
    html::Token t;
    ASSERT_TRUE(tokenizer.Next(t));
    EXPECT_EQ(FormatToken(t), "StartTag \"a\" \"x\"=\"1\" \"y\"=\"2\"");
    EXPECT_EQ(tokenizer.Errors().size(), 3u);
}

} // namespace
