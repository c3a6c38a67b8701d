#pragma once
// Reading printed PDF files back with poppler-utils.
#include "support/Process.h"

#include <regex>
#include <string>
#include <vector>

namespace orvane::test {

inline std::string Output(std::vector<std::string> args) {
    return RunProgram(std::move(args)).out;
}

inline bool HavePoppler() {
    for (const char* tool : {"pdfinfo", "pdftotext", "pdffonts", "pdftohtml"})
        if (!RunProgram({tool, "-v"}).started) return false;
    return true;
}

inline int PageCount(const std::string& pdf) {
    std::smatch m;
    const std::string info = Output({"pdfinfo", pdf});
    return std::regex_search(info, m, std::regex("Pages:\\s+(\\d+)")) ? std::stoi(m[1]) : -1;
}

// Width and height of the first page in points.
inline std::pair<double, double> PageSize(const std::string& pdf) {
    std::smatch m;
    const std::string info = Output({"pdfinfo", pdf});
    if (!std::regex_search(info, m, std::regex("Page size:\\s+([\\d.]+) x ([\\d.]+)"))) return {};
    return {std::stod(m[1]), std::stod(m[2])};
}

// The text lines of one page (1-based), empty lines dropped. Runs of blanks come back as one:
// a PDF places words, and the reader guesses the gaps between them.
inline std::vector<std::string> PageLines(const std::string& pdf, int page) {
    const std::string p = std::to_string(page);
    const std::string text = Output({"pdftotext", "-layout", "-f", p, "-l", p, pdf, "-"});
    std::vector<std::string> lines;
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        if (end == std::string::npos) end = text.size();
        std::string line = text.substr(start, end - start);
        while (!line.empty() && (line.back() == ' ' || line.back() == '\f'))
            line.pop_back();
        while (!line.empty() && line.front() == '\f')
            line.erase(0, 1);
        line = std::regex_replace(line, std::regex(" +"), " ");
        if (!line.empty() && line.front() == ' ') line.erase(0, 1);
        if (!line.empty()) lines.push_back(line);
        start = end + 1;
    }
    return lines;
}

struct WordBox {
    int page;
    double pageHeight, yMin, yMax;
    std::string text;
};

inline std::vector<WordBox> Words(const std::string& pdf) {
    const std::string html = Output({"pdftotext", "-bbox", pdf, "-"});
    std::vector<WordBox> words;
    const std::regex tag("<page width=\"[\\d.]+\" height=\"([\\d.]+)\">|<word xMin=\"[\\d.]+\" "
                         "yMin=\"([\\d.]+)\" xMax=\"[\\d.]+\" yMax=\"([\\d.]+)\">([^<]*)</word>");
    int page = 0;
    double height = 0;
    for (std::sregex_iterator it(html.begin(), html.end(), tag), end; it != end; ++it) {
        const std::smatch& m = *it;
        if (m[1].matched) {
            ++page;
            height = std::stod(m[1]);
        } else {
            words.push_back({page, height, std::stod(m[2]), std::stod(m[3]), m[4]});
        }
    }
    return words;
}

} // namespace orvane::test
