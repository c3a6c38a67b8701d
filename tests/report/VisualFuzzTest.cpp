// Broken markup spliced into generated pairs at random: the engine never crashes, always
// answers a code of its table, and what it writes parses without marks in forbidden places
// wherever the page itself had no text there. Run under the sanitizer build as well.
#include "report/Engine.h"
#include "report/PairGenerator.h"
#include "report/ReportChecks.h"

#include <gtest/gtest.h>
#include <random>

using namespace orvane::report;
using namespace orvane::test;

namespace {

std::string Splice(std::string page, std::mt19937& rng, int count) {
    static const char* bits[] = {"<table>",
                                 "</td>",
                                 "<tr>",
                                 "<td>",
                                 "<ul>",
                                 "</li>",
                                 "</p>",
                                 "<b>",
                                 "<i>",
                                 "</b>",
                                 "<svg><path d=1/>",
                                 "<select><option>x",
                                 "<a href=x>",
                                 "&amp",
                                 "&#x0;",
                                 "<!--",
                                 "-->",
                                 "<script>",
                                 "<textarea>",
                                 "<frameset>",
                                 "<iframe src=q>",
                                 "</html>",
                                 "<math><mi>x",
                                 "<ins>",
                                 "</del>",
                                 "<img src=",
                                 "\xff\xfe",
                                 "<template>",
                                 "<plaintext>",
                                 "<h1>",
                                 "<p>",
                                 "</div>",
                                 "<object>"};
    for (int k = 0; k < count && !page.empty(); ++k) {
        const std::size_t at = std::uniform_int_distribution<std::size_t>(0, page.size() - 1)(rng);
        page.insert(at, bits[rng() % (sizeof bits / sizeof *bits)]);
    }
    return page;
}

} // namespace

TEST(VisualFuzz, BrokenMarkupNeverBreaksTheEngine) {
    std::mt19937 rng(20261123);
    for (std::uint32_t seed = 1; seed <= 300; ++seed) {
        auto [a, b] = GeneratePair(seed, 1 + int(seed % 9));
        a = Splice(a, rng, int(rng() % 12));
        b = Splice(b, rng, int(rng() % 12));
        ReportOptions options;
        options.ignoreCase = seed % 2;
        options.kind = seed % 7 == 0 ? CompareKind::Source : CompareKind::Visual;
        const ReportResult r = MakeReportFromContent(a, b, options);
        ASSERT_TRUE(r.code == kDifferent || r.code == kIdentical || r.code == kNotHtml ||
                    r.code == kOriginalUnreadable || r.code == kRevisedUnreadable)
            << "seed " << seed << " code " << r.code;
        if (r.code != kDifferent && r.code != kIdentical) continue;
        // Nothing that runs, whatever the marks did with the broken structure.
        const std::string fault = StructureFault(r.html);
        EXPECT_TRUE(fault.find("script") == std::string::npos &&
                    fault.find("handler") == std::string::npos &&
                    fault.find("meta") == std::string::npos)
            << "seed " << seed << ": " << fault;
        // Every difference counted has its anchor.
        EXPECT_EQ(CountOf(r.html, "id=\"orvane-diff-"), r.differenceCount) << "seed " << seed;
    }
}
