#include "report/Listing.h"

#include "report/Markup.h"
#include "report/SequenceDiff.h"

#include <vector>

namespace orvane::report {

namespace {

std::vector<std::u32string_view> SplitLines(std::u32string_view text) {
    std::vector<std::u32string_view> lines;
    std::size_t start = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != U'\n') continue;
        std::size_t end = i;
        if (end > start && text[end - 1] == U'\r') --end;
        lines.push_back(text.substr(start, end - start));
        start = i + 1;
    }
    if (start < text.size()) lines.push_back(text.substr(start));
    return lines;
}

bool IsBlank(char32_t c) {
    return c == U' ' || c == U'\t' || c == U'\r' || c == U'\v' || c == U'\f';
}

char32_t Fold(char32_t c, bool ignoreCase) {
    return ignoreCase && c >= U'A' && c <= U'Z' ? c + 32 : c;
}

std::u32string LineKey(std::u32string_view line, const ReportOptions& options) {
    std::u32string key;
    key.reserve(line.size());
    for (char32_t c : line)
        if (!(options.IgnoreWhiteSpace() && IsBlank(c))) key += Fold(c, options.ignoreCase);
    return key;
}

// The pieces a changed line is compared in: characters, or words, blanks and single marks.
std::vector<std::u32string_view> Pieces(std::u32string_view line, DetailLevel level) {
    std::vector<std::u32string_view> pieces;
    if (level == DetailLevel::Line) {
        pieces.push_back(line);
        return pieces;
    }
    std::size_t i = 0;
    while (i < line.size()) {
        std::size_t j = i + 1;
        const auto wordChar = [](char32_t c) {
            return c == U'_' || (c >= U'0' && c <= U'9') || (c >= U'a' && c <= U'z') ||
                   (c >= U'A' && c <= U'Z') || c >= 0x80;
        };
        if (level == DetailLevel::Word) {
            if (IsBlank(line[i]))
                while (j < line.size() && IsBlank(line[j]))
                    ++j;
            else if (wordChar(line[i]))
                while (j < line.size() && wordChar(line[j]))
                    ++j;
        }
        pieces.push_back(line.substr(i, j - i));
        i = j;
    }
    return pieces;
}

class ListingWriter {
  public:
    ListingWriter(const ReportOptions& options, PageWriter& writer)
        : options_(options), writer_(writer), out_(writer.Out()) {}

    void Row(const char* rowClass, long numA, long numB) {
        out_ += "<tr";
        if (*rowClass) out_ += std::string(" class=\"") + rowClass + "\"";
        out_ += ">";
        if (options_.showNumbers) {
            Number(numA);
            Number(numB);
        }
        out_ += "<td>";
    }
    void EndRow() { out_ += "</td></tr>\n"; }

    void EqualLine(std::u32string_view line, long a, long b) {
        writer_.Equal();
        Row("", a, b);
        AppendEscapedText(out_, line);
        EndRow();
    }
    void OneSided(std::u32string_view line, long a, long b, Mark mark) {
        Row(mark == Mark::Deleted ? "orvane-row-del" : "orvane-row-ins", a, b);
        writer_.Open(mark);
        AppendEscapedText(out_, line);
        writer_.Close(mark);
        EndRow();
    }
    void Changed(std::u32string_view lineA, std::u32string_view lineB, long a, long b);

  private:
    void Number(long n) {
        out_ += "<td class=\"orvane-chrome orvane-num\">";
        if (n > 0) out_ += std::to_string(n);
        out_ += "</td>";
    }
    // Writes the run of changed pieces from i on (none when i is a common piece).
    void Run(const std::vector<std::u32string_view>& pieces,
             const std::vector<std::uint8_t>& changed, std::size_t& i, Mark mark) {
        if (i >= pieces.size() || !changed[i]) return;
        writer_.Open(mark);
        for (; i < pieces.size() && changed[i]; ++i)
            AppendEscapedText(out_, pieces[i]);
        writer_.Close(mark);
    }

    const ReportOptions& options_;
    PageWriter& writer_;
    std::string& out_;
};

void ListingWriter::Changed(std::u32string_view lineA, std::u32string_view lineB, long a, long b) {
    const auto piecesA = Pieces(lineA, options_.level);
    const auto piecesB = Pieces(lineB, options_.level);
    KeyTable keys;
    std::vector<std::uint32_t> idsA, idsB;
    for (auto p : piecesA)
        idsA.push_back(keys.Id(LineKey(p, options_)));
    for (auto p : piecesB)
        idsB.push_back(keys.Id(LineKey(p, options_)));
    const Alignment inner = AlignSequences(idsA, idsB, keys.Count());
    Row("orvane-row-chg", a, b);
    // Deleted pieces go before the inserted ones at each gap, equal pieces from the Revised line.
    std::size_t i = 0, j = 0;
    while (i < piecesA.size() || j < piecesB.size()) {
        Run(piecesA, inner.changedA, i, Mark::Deleted);
        Run(piecesB, inner.changedB, j, Mark::Inserted);
        if (i < piecesA.size() && j < piecesB.size() && !inner.changedA[i] && !inner.changedB[j]) {
            AppendEscapedText(out_, piecesB[j]);
            ++i;
            ++j;
        }
    }
    EndRow();
}

} // namespace

bool WriteListing(std::u32string_view original, std::u32string_view revised,
                  const ReportOptions& options, PageWriter& writer) {
    const auto linesA = SplitLines(original);
    const auto linesB = SplitLines(revised);
    KeyTable keys;
    std::vector<std::uint32_t> idsA, idsB;
    for (auto l : linesA)
        idsA.push_back(keys.Id(LineKey(l, options)));
    for (auto l : linesB)
        idsB.push_back(keys.Id(LineKey(l, options)));
    const Alignment align = AlignSequences(idsA, idsB, keys.Count());

    ListingWriter rows(options, writer);
    writer.Out() += "<table class=\"orvane-listing\">\n";
    bool differ = false;
    std::size_t i = 0, j = 0;
    while (i < linesA.size() || j < linesB.size()) {
        if (i < linesA.size() && j < linesB.size() && !align.changedA[i] && !align.changedB[j]) {
            rows.EqualLine(linesB[j], long(i + 1), long(j + 1));
            ++i, ++j;
            continue;
        }
        differ = true;
        std::size_t endA = i, endB = j;
        while (endA < linesA.size() && align.changedA[endA])
            ++endA;
        while (endB < linesB.size() && align.changedB[endB])
            ++endB;
        // Lines paired in order read as changed lines; the rest of the longer side stays whole.
        while (i < endA && j < endB) {
            rows.Changed(linesA[i], linesB[j], long(i + 1), long(j + 1));
            ++i, ++j;
        }
        for (; i < endA; ++i)
            rows.OneSided(linesA[i], long(i + 1), 0, Mark::Deleted);
        for (; j < endB; ++j)
            rows.OneSided(linesB[j], 0, long(j + 1), Mark::Inserted);
    }
    writer.Out() += "</table>\n";
    return differ;
}

} // namespace orvane::report
