#include "HtmlPairGenerator.h"

namespace linediff_bench {
namespace {
constexpr const char* kSyllables[] = {"ka", "lo",  "mer", "tis", "van", "ro",  "pe", "dun", "sal",
                                      "ti", "bor", "en",  "qua", "mi",  "ste", "ul", "gra", "fo"};
constexpr std::size_t kVocabulary = 4000;
} // namespace

HtmlPairGenerator::HtmlPairGenerator(std::uint64_t seed) : rng_(seed) {
    for (std::size_t i = 0; i < kVocabulary; ++i) {
        std::string w;
        for (std::size_t s = 0, n = 1 + Below(3); s < n; ++s)
            w += kSyllables[Below(std::size(kSyllables))];
        vocabulary_.push_back(w);
    }
}

std::string HtmlPairGenerator::Words(int count) {
    std::string s;
    for (int i = 0; i < count; ++i)
        s += (i ? " " : "") + vocabulary_[Below(vocabulary_.size())];
    return s;
}

std::string HtmlPairGenerator::TextLine(const std::string& indent) {
    return indent + Words(6 + static_cast<int>(Below(10)));
}

void HtmlPairGenerator::Paragraph(Lines& out, const std::string& indent) {
    out.push_back(indent + "<p>");
    for (std::size_t i = 0, n = 1 + Below(4); i < n; ++i)
        out.push_back(TextLine(indent + "    "));
    out.push_back(indent + "</p>");
    if (Below(4) == 0) out.push_back("");
}

void HtmlPairGenerator::List(Lines& out, const std::string& indent) {
    out.push_back(indent + "<ul class=\"links\">");
    for (std::size_t i = 0, n = 2 + Below(6); i < n; ++i)
        out.push_back(indent + "    <li><a href=\"/page/" + std::to_string(Below(5000)) +
                      ".html\">" + Words(1 + static_cast<int>(Below(3))) + "</a></li>");
    out.push_back(indent + "</ul>");
}

void HtmlPairGenerator::Table(Lines& out, const std::string& indent) {
    out.push_back(indent + "<table>");
    for (std::size_t i = 0, n = 2 + Below(5); i < n; ++i) {
        out.push_back(indent + "    <tr>");
        out.push_back(indent + "        <td>" + Words(1) + "</td>");
        out.push_back(indent + "        <td>" + std::to_string(Below(1000)) + "</td>");
        out.push_back(indent + "    </tr>");
    }
    out.push_back(indent + "</table>");
}

void HtmlPairGenerator::Section(Lines& out) {
    out.push_back("<div class=\"section\" id=\"s" + std::to_string(serial_++) + "\">");
    out.push_back("    <h2>" + Words(2 + static_cast<int>(Below(3))) + "</h2>");
    for (std::size_t i = 0, n = 2 + Below(5); i < n; ++i) {
        std::size_t kind = Below(6);
        if (kind == 0)
            List(out, "    ");
        else if (kind == 1)
            Table(out, "    ");
        else
            Paragraph(out, "    ");
    }
    out.push_back("</div>");
}

Lines HtmlPairGenerator::Page(std::size_t lines) {
    Lines out{"<!DOCTYPE html>", "<html>", "<head>", "  <title>" + Words(3) + "</title>",
              "</head>",         "<body>"};
    while (out.size() + 2 < lines)
        Section(out);
    out.push_back("</body>");
    out.push_back("</html>");
    return out;
}

Lines HtmlPairGenerator::ScatteredEdits(const Lines& page, double fraction) {
    Lines out;
    out.reserve(page.size() + page.size() / 50);
    std::bernoulli_distribution edit(fraction);
    for (const std::string& line : page) {
        if (!edit(rng_)) {
            out.push_back(line);
            continue;
        }
        std::size_t indent = line.find_first_not_of(' ');
        std::string pad(indent == std::string::npos ? 0 : indent, ' ');
        switch (Below(3)) {
        case 0:
            out.push_back(TextLine(pad));
            break; // replaced
        case 1:
            break; // deleted
        default:
            out.push_back(line), out.push_back(TextLine(pad)); // inserted after
        }
    }
    return out;
}

Lines HtmlPairGenerator::RewrittenBlocks(const Lines& page, int blocks, double fraction) {
    auto length = static_cast<std::size_t>(static_cast<double>(page.size()) * fraction);
    std::size_t stride = page.size() / static_cast<std::size_t>(blocks);
    Lines out;
    std::size_t next = 0;
    for (int k = 0; k < blocks; ++k) {
        std::size_t start = k * stride + Below(stride - length);
        out.insert(out.end(), page.begin() + next, page.begin() + start);
        Lines fresh;
        while (fresh.size() < length)
            Section(fresh);
        out.insert(out.end(), fresh.begin(), fresh.end());
        next = start + length;
    }
    out.insert(out.end(), page.begin() + next, page.end());
    return out;
}

std::string Join(const Lines& lines) {
    std::string s;
    for (const std::string& l : lines)
        s.append(l).push_back('\n');
    return s;
}

} // namespace linediff_bench
