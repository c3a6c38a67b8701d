// The Source and Text kinds: one merged listing, line by line, inner differences at the level.
#include "report/Engine.h"
#include "report/ReportChecks.h"

#include <gtest/gtest.h>

using namespace orvane::report;
using namespace orvane::test;

namespace {

std::string Rows(const std::string& report) {
    const auto from = report.find("<table class=\"orvane-listing\">");
    return WithoutNavigation(report.substr(from, report.find("</table>", from) - from));
}

ReportOptions Kind(CompareKind kind, DetailLevel level = DetailLevel::Word) {
    ReportOptions o;
    o.kind = kind;
    o.level = level;
    return o;
}

} // namespace

TEST(Listing, ChangedLinesShowInnerDifferencesAtTheLevel) {
    struct Case {
        DetailLevel level;
        const char* expected;
    } cases[] = {
        {DetailLevel::Word, "<td><del>cat</del><ins>cow</ins> sat</td>"},
        {DetailLevel::Character, "<td>c<del>at</del><ins>ow</ins> sat</td>"},
        {DetailLevel::Line, "<td><del>cat sat</del><ins>cow sat</ins></td>"},
    };
    for (const auto& c : cases) {
        const ReportResult r = MakeReportFromContent("a\ncat sat\nb\n", "a\ncow sat\nb\n",
                                                     Kind(CompareKind::Text, c.level));
        EXPECT_NE(Rows(r.html).find(c.expected), std::string::npos) << Rows(r.html);
        EXPECT_EQ(r.differenceCount, 1);
    }
}

TEST(Listing, DeletedAndInsertedLinesAndNumbers) {
    ReportOptions o = Kind(CompareKind::Source);
    o.showNumbers = true;
    const ReportResult r =
        MakeReportFromContent("<p>one</p>\n<p>two</p>\nsame\n", "same\nnew & <b>\n", o);
    const std::string rows = Rows(r.html);
    EXPECT_NE(rows.find("<td class=\"orvane-chrome orvane-num\">1</td><td class=\"orvane-chrome "
                        "orvane-num\"></td>"
                        "<td><del>&lt;p&gt;one&lt;/p&gt;</del></td>"),
              std::string::npos)
        << rows;
    EXPECT_NE(rows.find("<td class=\"orvane-chrome orvane-num\">3</td><td class=\"orvane-chrome "
                        "orvane-num\">1</td>"
                        "<td>same</td>"),
              std::string::npos);
    EXPECT_NE(rows.find("<ins>new &amp; &lt;b&gt;</ins>"), std::string::npos) << rows;
    // The listing reads as either side when the other side's marks are dropped.
    EXPECT_EQ(VisibleText(r.html, Drop::Deleted), U"samenew&<b>");
    EXPECT_EQ(VisibleText(r.html, Drop::Inserted), U"<p>one</p><p>two</p>same");
    EXPECT_EQ(StructureFault(r.html), "");
}

TEST(Listing, SwitchesMakeLinesEqual) {
    ReportOptions o = Kind(CompareKind::Text);
    EXPECT_EQ(MakeReportFromContent("A  b\r\nc\n", "A  b\nc\n", o).code, kIdentical); // CRLF
    EXPECT_EQ(MakeReportFromContent("A b\n", "a b\n", o).code, kDifferent);
    o.ignoreCase = true;
    EXPECT_EQ(MakeReportFromContent("A b\n", "a b\n", o).code, kIdentical);
    EXPECT_EQ(MakeReportFromContent("a b\n", "a  b\t\n", o).code, kDifferent);
    o.whiteSpaceMode = 2;
    EXPECT_EQ(MakeReportFromContent("a b\n", "a  b\t\n", o).code, kIdentical);
}

TEST(Listing, EmptySidesAndTextThatIsNotHtml) {
    const ReportResult r = MakeReportFromContent("", "x\ny\n", Kind(CompareKind::Text));
    EXPECT_EQ(r.differenceCount, 1);
    EXPECT_EQ(VisibleText(r.html, Drop::Deleted), U"xy");
    // Plain text is fine for the listings but not HTML for the visual kind.
    EXPECT_EQ(MakeReportFromContent("just text", "other text", Kind(CompareKind::Source)).code,
              kDifferent);
    EXPECT_EQ(MakeReportFromContent("just text", "other text", {}).code, kNotHtml);
    EXPECT_EQ(MakeReportFromContent(std::string("<p>a\0b</p>", 9), "<p>b</p>", {}).code, kNotHtml);
}
