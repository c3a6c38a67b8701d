// What the detagger makes of small pages under each policy. Expected texts use "\n"; the engine
// writes CR LF, checked once on its own.
#include "intake/detagger/Convert.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace detagger {
namespace {

using Settings = std::vector<std::pair<std::string, std::string>>;

const std::string kSingleLine = "Output each paragraph on a single line";
const std::string kImposeWidth = "Impose a page width on the output";
const std::string kWidth = "Target Page width";
const std::string k8Bit = "Allow 8-bit ANSI values in output";
const std::string kAlternatives = "Allow ANSI alternatives (e.g. space for &nbsp;)";

struct RenderCase {
    const char* name;
    std::string html;
    Settings settings;
    std::string expected;
};

void PrintTo(const RenderCase& c, std::ostream* os) {
    *os << c.name;
}

std::string Render(const std::string& html, const Settings& settings) {
    Policies p;
    for (const auto& [name, value] : settings)
        EXPECT_EQ(SetPolicy(p, name, value), kNoError) << name;
    std::string text = ConvertHtml(html, p);
    std::string lf;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (!(text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n')) lf += text[i];
    return lf;
}

class Rendering : public ::testing::TestWithParam<RenderCase> {};

TEST_P(Rendering, GivesTheExpectedText) {
    EXPECT_EQ(Render(GetParam().html, GetParam().settings), GetParam().expected);
}

const std::string kLong = "<p>The quick brown fox jumps over the lazy dog and runs far away";

INSTANTIATE_TEST_SUITE_P(
    Content, Rendering,
    ::testing::Values(
        RenderCase{"ScriptStyleCommentsDropped",
                   "<p>a<script>x = '<p>no</p>';</script>b<style>p{color:red}</style>c"
                   "<!-- hidden -->d<template>t</template></p>",
                   {},
                   "abcd\n"},
        RenderCase{"HeadAndTitleDropped",
                   "<html><head><title>T</title><meta charset=utf-8></head><body>x",
                   {},
                   "x\n"},
        RenderCase{"EntitiesDecoded",
                   "<p>&lt;tag&gt; &amp; &eacute;&#233;&#x41;",
                   {},
                   "<tag> & \u00e9\u00e9A\n"},
        RenderCase{"BlocksBecomeLines",
                   "<div>one</div><div>two</div><h1>Title</h1><p>para</p>end",
                   {},
                   "one\ntwo\n\nTitle\n\npara\n\nend\n"},
        RenderCase{"WhiteSpaceCollapses", "<p>  a \t b  <b> c </b>d  </p>", {}, "a b c d\n"},
        RenderCase{"Lists",
                   "<ul><li>a<li>b<ul><li>c</ul></ul><ol start=3><li>x<li>y</ol>",
                   {},
                   "* a\n* b\n    * c\n\n3. x\n4. y\n"},
        RenderCase{"DefinitionList", "<dl><dt>term<dd>meaning</dl>", {}, "term\n    meaning\n"},
        RenderCase{"TableRowsAreLines",
                   "<table><tr><th>h1<th>h2<tr><td>a<td>b</table>",
                   {},
                   "h1 h2\na b\n"},
        RenderCase{"PreformattedKept", "<pre>\n  x  y\n\n   z</pre>", {}, "  x  y\n\n   z\n"},
        RenderCase{"LineBreakElement", "<p>a<br>b</p>", {{kSingleLine, "Yes"}}, "a\nb\n"},
        RenderCase{
            "ImageAltText", "<p>see <img src=x alt='the map'> here", {}, "see the map here\n"},
        RenderCase{"NoscriptRead", "<noscript><p>enable it</p></noscript>", {}, "enable it\n"},
        RenderCase{"SelectHidden", "<p>pick <select><option>one</select> now", {}, "pick now\n"}));

INSTANTIATE_TEST_SUITE_P(
    LineStructure, Rendering,
    ::testing::Values(
        RenderCase{"SourceBreaksKeptByDefault", "<p>one two\nthree</p>", {}, "one two\nthree\n"},
        RenderCase{"SingleLine",
                   "<p>one two\nthree</p><p>four\nfive",
                   {{kSingleLine, "Yes"}},
                   "one two three\n\nfour five\n"},
        RenderCase{"WidthWrapsWords",
                   kLong,
                   {{kSingleLine, "Yes"}, {kImposeWidth, "Yes"}, {kWidth, "20"}},
                   "The quick brown fox\njumps over the lazy\ndog and runs far\naway\n"},
        RenderCase{"WidthWrapsEachSourceLine",
                   "<p>aaa bbb ccc ddd eee fff ggg\nhhh",
                   {{kImposeWidth, "Yes"}, {kWidth, "12"}},
                   "aaa bbb ccc\nddd eee fff\nggg\nhhh\n"},
        RenderCase{"WidthIgnoredUnlessImposed",
                   kLong,
                   {{kSingleLine, "Yes"}, {kWidth, "20"}},
                   "The quick brown fox jumps over the lazy dog and runs far away\n"},
        RenderCase{"ListContinuationIndented",
                   "<ul><li>alpha beta gamma delta epsilon</ul>",
                   {{kImposeWidth, "Yes"}, {kWidth, "16"}},
                   "* alpha beta\n  gamma delta\n  epsilon\n"},
        RenderCase{"LongWordOwnLine",
                   "<p>a verylongwordindeed b",
                   {{kImposeWidth, "Yes"}, {kWidth, "10"}},
                   "a\nverylongwordindeed\nb\n"},
        RenderCase{"PreformattedCutAtWidth",
                   "<pre>0123456789abcdef</pre>",
                   {{kImposeWidth, "Yes"}, {kWidth, "10"}},
                   "0123456789\nabcdef\n"}));

INSTANTIATE_TEST_SUITE_P(
    Characters, Rendering,
    ::testing::Values(RenderCase{"AlternativesByDefault",
                                 "<p>a&nbsp;b&mdash;c&hellip;&eacute;",
                                 {},
                                 "a b--c...\u00e9\n"},
                      RenderCase{"NoAlternatives",
                                 "<p>a&nbsp;b&mdash;c",
                                 {{kAlternatives, "No"}},
                                 "a\u00a0b\u2014c\n"},
                      RenderCase{"AsciiOnly", "<p>a&nbsp;b&eacute;", {{k8Bit, "No"}}, "a b?\n"},
                      RenderCase{"AsciiOnlyNoAlternatives",
                                 "<p>a&nbsp;b&mdash;",
                                 {{k8Bit, "No"}, {kAlternatives, "No"}},
                                 "a?b?\n"},
                      RenderCase{"LegacyEncodingDecoded",
                                 "<meta charset=windows-1252><p>caf\xe9 \x93q\x94",
                                 {},
                                 "caf\u00e9 \"q\"\n"}));

INSTANTIATE_TEST_SUITE_P(
    Links, Rendering,
    ::testing::Values(
        RenderCase{"PlainByDefault", "<p>see <a href='http://x/'>site</a>.", {}, "see site.\n"},
        RenderCase{"DisplayUrls",
                   "<p>see <a href='http://x/'>site</a>.",
                   {{"Display link URLs", "Yes"}},
                   "see site <http://x/>.\n"},
        RenderCase{"ReferencesAtEnd",
                   "<p><a href='http://x/'>one</a> <a href='#top'>top</a> <a href='y.html'>two</a>",
                   {{"Add URL references at end of file", "Yes"}},
                   "one[1] top two[2]\n\nReferences\n\n1. http://x/\n2. y.html\n"}));

TEST(Rendering, LinesEndInCarriageReturnLineFeed) {
    EXPECT_EQ(ConvertHtml("<p>a</p><p>b", Policies{}), "a\r\n\r\nb\r\n");
}

TEST(Rendering, EmptyPageGivesEmptyText) {
    EXPECT_EQ(ConvertHtml("", Policies{}), "");
    EXPECT_EQ(ConvertHtml("<script>only()</script><!-- c -->", Policies{}), "");
}

} // namespace
} // namespace detagger
