// The failures other merged-page tools are known for, one case each: where a mark lands and what
// it is allowed to wrap.
#include "report/Engine.h"
#include "report/ReportChecks.h"

#include <gtest/gtest.h>

using namespace orvane::report;
using namespace orvane::test;

namespace {

// The report's body without the navigation chrome and without line breaks, for matching.
std::string Body(const std::string& report) {
    std::string body = WithoutNavigation(report.substr(report.find("</div></div>") + 12));
    return body.substr(0, body.find("</body>"));
}

std::string Page(const std::string& body) {
    return "<!DOCTYPE html><html><head><title>t</title></head><body>" + body + "</body></html>";
}

struct Golden {
    const char* name;
    const char* original;
    const char* revised;
    const char* expected; // a part of the body, marks included
    int differences;
};

const Golden kGolden[] = {
    {"deleted row stays a row of its table",
     "<table><tr><td>a1</td><td>b1</td></tr><tr><td>a2</td><td>b2</td></tr><tr><td>a3</td><td>b3</"
     "td></tr></table>",
     "<table><tr><td>a1</td><td>b1</td></tr><tr><td>a3</td><td>b3</td></tr></table>",
     "<tr><td>a1</td><td>b1</td></tr><tr><td><del>a2</del></td><td><del>b2</del></td></"
     "tr><tr><td>a3</td>",
     1},
    {"deleted cell stays in its row and column",
     "<table><tr><td>a</td><td>b</td><td>c</td></tr></table>",
     "<table><tr><td>a</td><td>c</td></tr></table>",
     "<tr><td>a</td><td><del>b</del></td><td>c</td></tr>", 1},
    {"deletion at a paragraph's start stays at its start",
     "<p>One two.</p><p>Gone words here stay.</p>", "<p>One two.</p><p>here stay.</p>",
     "<p>One two.</p><p><del>Gone words</del> here stay.</p>", 1},
    {"deletion at a paragraph's end stays at its end", "<p>One two three.</p><p>Next.</p>",
     "<p>One two.</p><p>Next.</p>", "<p>One two <del>three</del>.</p>", 1},
    {"bold changed to italic is shown", "<p>a <b>word</b> b</p>", "<p>a <i>word</i> b</p>",
     "<i><span class=\"orvane-changed\" title=\"Italic added; Bold removed\">word</span></i>", 1},
    {"image swapped shows old and new", "<p>x <img src=\"old.png\"> y</p>",
     "<p>x <img src=\"new.png\"> y</p>", "<img src=\"new.png\"></ins>", 1},
    {"link target only change is visible", "<p><a href=\"a.html\">go</a></p>",
     "<p><a href=\"b.html\">go</a></p>",
     "title=\"Link to b.html added; Link to a.html removed\">go</span>", 1},
    {"list item inserted keeps a valid list", "<ul><li>one</li><li>two</li></ul>",
     "<ul><li>one</li><li>new</li><li>two</li></ul>",
     "<ul><li>one</li><li><ins>new</ins></li><li>two</li></ul>", 1},
    {"list item removed is a list item", "<ol><li>one</li><li>old</li><li>two</li></ol>",
     "<ol><li>one</li><li>two</li></ol>",
     "<ol><li>one</li><li><del>old</del></li><li>two</li></ol>", 1},
    {"whitespace between table tags is no change", "<table><tr><td>a</td><td>b</td></tr></table>",
     "<table>\n  <tr>\n    <td>a</td>\n    <td>b</td>\n  </tr>\n</table>", "<td>a</td>", 0},
    {"the page's own ins and del become spans", "<p><ins>x</ins> <del>y</del> z</p>",
     "<p><ins>x</ins> <del>y</del> z</p>",
     "<span class=\"orvane-page-ins\">x</span> <span class=\"orvane-page-del\">y</span>", 0},
    {"scripts, handlers and refresh are gone", "<p onclick=\"x()\">a</p><script>alert(1)</script>",
     "<meta http-equiv=\"refresh\" content=\"0;url=x\"><p onclick=\"x()\">a <a "
     "href=\"javascript:y()\">b</a></p><script>alert(2)</script>",
     "<p>a <a><ins>b</ins></a></p>", 1},
    {"an embedded frame becomes a placeholder", "<p>a</p>",
     "<p>a</p><iframe src=\"f.html\"></iframe>",
     "<ins><span class=\"orvane-chrome orvane-placeholder\">[iframe: f.html]</span></ins>", 1},
    {"an edited sentence is one change, not confetti",
     "<p>The quick brown fox jumps over the lazy dog.</p>",
     "<p>A slow red cat jumps over the sleepy dog.</p>",
     "<p><ins>A slow red cat</ins> <del>The quick brown fox</del> jumps over the <del>lazy</del>  "
     "<ins>sleepy</ins> dog.</p>",
     2},
};

} // namespace

TEST(VisualGolden, KnownFailuresOfOtherToolsDoNotHappen) {
    for (const Golden& g : kGolden) {
        const ReportResult r = MakeReportFromContent(Page(g.original), Page(g.revised), {});
        EXPECT_NE(Body(r.html).find(g.expected), std::string::npos)
            << g.name << "\n  body: " << Body(r.html);
        EXPECT_EQ(r.differenceCount, g.differences) << g.name;
        EXPECT_EQ(r.code, g.differences ? kDifferent : kIdentical) << g.name;
        EXPECT_EQ(StructureFault(r.html), "") << g.name;
    }
}

TEST(VisualGolden, IgnoreFormattingHidesFormattingChangesOnly) {
    ReportOptions options;
    options.ignoreFormatting = true;
    const ReportResult same =
        MakeReportFromContent(Page("<p>a <b>word</b></p>"), Page("<p>a <i>word</i></p>"), options);
    EXPECT_EQ(same.code, kIdentical);
    const ReportResult other =
        MakeReportFromContent(Page("<p>a <b>word</b></p>"), Page("<p>a <i>ward</i></p>"), options);
    EXPECT_EQ(other.differenceCount, 1);
}

TEST(VisualGolden, IgnoreCaseMakesCaseVariantsEqual) {
    ReportOptions options;
    options.ignoreCase = true;
    EXPECT_EQ(
        MakeReportFromContent(Page("<p>Hello World</p>"), Page("<p>hello world</p>"), options).code,
        kIdentical);
    EXPECT_EQ(
        MakeReportFromContent(Page("<p>Hello World</p>"), Page("<p>hello world</p>"), {}).code,
        kDifferent);
}

TEST(VisualGolden, NavigationLinksWalkRoundTheDifferences) {
    const ReportResult r = MakeReportFromContent(Page("<p>a</p><p>b</p><p>c</p>"),
                                                 Page("<p>x</p><p>b</p><p>y</p>"), {});
    ASSERT_EQ(r.differenceCount, 2);
    EXPECT_NE(r.html.find("href=\"#orvane-diff-0\">Click Here to navigate differences</a>"),
              std::string::npos);
    // The first links back to the last and the last on to the first: no link leads nowhere.
    EXPECT_NE(
        r.html.find("id=\"orvane-diff-0\"><a class=\"orvane-chrome\" href=\"#orvane-diff-1\""),
        std::string::npos);
    EXPECT_NE(
        r.html.find("id=\"orvane-diff-1\"><a class=\"orvane-chrome\" href=\"#orvane-diff-0\""),
        std::string::npos);
    EXPECT_EQ(r.html.find("orvane-diff-2"), std::string::npos);
    EXPECT_EQ(r.html.find("orvane-diff--1"), std::string::npos);
}

TEST(VisualGolden, RelativeAddressesPointWhereEachPageCameFrom) {
    const ReportResult r =
        MakeReportFromContent(Page("<img src=\"a.png\">"), Page("<img src=\"b.png\">"), {});
    EXPECT_NE(r.html.find("src=\"b.png\""), std::string::npos); // no base known: left as it is
}

TEST(VisualGolden, DeepOrUnclosedMarkupStaysBounded) {
    std::string deep, unclosed;
    for (int k = 0; k < 2000; ++k)
        deep += "<div><span>w" + std::to_string(k % 7) + " ";
    for (int k = 0; k < 2000; ++k)
        unclosed += "<b><i>x" + std::to_string(k % 5) + " ";
    for (const auto& [a, b] :
         {std::pair{deep, deep + "<p>end"}, std::pair{unclosed, unclosed + "<p>end"}}) {
        const ReportResult r = MakeReportFromContent(a, b, {});
        EXPECT_EQ(r.code, kDifferent);
        EXPECT_EQ(StructureFault(r.html), "");
        EXPECT_LT(r.html.size(), 40 * (a.size() + b.size()));
    }
}
