#pragma once
// A printing surface that keeps what was asked of it, on a page of known size where every line
// is kLineHeight twips high.
#include "output/DiffPrint.h"

#include <string>
#include <vector>

namespace orvane::test {

struct PrintedLine {
    long page;
    double y;
    std::string text;
    bool bold, italic;
};

class RecordingSurface : public PrintSurface {
  public:
    static constexpr double kWidth = 8000, kHeight = 10000, kLineHeight = 1000;
    double Width() const override { return kWidth; }
    double Height() const override { return kHeight; }
    long Page() const override { return page; }
    double CurrentX() const override { return x; }
    double CurrentY() const override { return y; }
    void SetCurrentX(double v) override { x = v; }
    void SetCurrentY(double v) override { y = v; }
    void SetFontName(const std::string& name) override { fonts.push_back(name); }
    void SetFontBold(bool on) override { bold = on; }
    void SetFontItalic(bool on) override { italic = on; }
    void SetFontUnderline(bool on) override { underline = on; }
    void SetDrawStyle(int) override {}
    void SetDrawWidth(int) override {}
    void Print(const std::string& text) override {
        lines.push_back({page, y, text, bold, italic});
        x = 0;
        y += kLineHeight;
    }
    void Line(double, double y1, double x2, double y2) override {
        rules.push_back(y1);
        x = x2;
        y = y2;
    }
    void NewPage() override {
        ++page;
        x = y = 0;
    }
    void EndDoc() override {
        ++documents;
        page = 1;
        x = y = 0;
    }
    void SetOrientation(PageOrientation) override {}

    // The body lines: what was printed below the rule, skipping the blank after it.
    std::vector<PrintedLine> Body() const {
        std::vector<PrintedLine> body;
        for (const PrintedLine& l : lines)
            if (l.y > kHeight * 0.05 + 2 * kLineHeight) body.push_back(l);
        return body;
    }

    long page = 1;
    double x = 0, y = 0;
    bool bold = false, italic = false, underline = false;
    int documents = 0;
    std::vector<PrintedLine> lines;
    std::vector<double> rules;
    std::vector<std::string> fonts;
};

// A one-column grid of lines with their back colours; row 0 is the fixed row.
class FakeGrid : public PrintableGrid {
  public:
    explicit FakeGrid(std::vector<std::pair<std::string, unsigned long>> r = {})
        : rows(std::move(r)) {
        rows.insert(rows.begin(), {"fixed row", 0});
    }
    long Rows() const override { return static_cast<long>(rows.size()); }
    long Row() const override { return row; }
    int Col() const override { return col; }
    void SetRow(long r) override { row = r; }
    void SetCol(int c) override { col = c; }
    void SetRowSel(long r) override { rowSel = r; }
    std::string Text() const override { return rows[static_cast<std::size_t>(row)].first; }
    unsigned long CellBackColor() const override {
        return rows[static_cast<std::size_t>(row)].second;
    }

    std::vector<std::pair<std::string, unsigned long>> rows;
    long row = 1, rowSel = 1;
    int col = 0;
};

// Lines "line 1" ... "line n"; every `differEvery`th one differs (0: none).
inline FakeGrid NumberedGrid(int n, int differEvery, const std::string& prefix = "line ") {
    std::vector<std::pair<std::string, unsigned long>> rows;
    for (int i = 1; i <= n; ++i)
        rows.push_back(
            {prefix + std::to_string(i), differEvery && i % differEvery == 0 ? 13680592ul : 0ul});
    return FakeGrid(rows);
}

class FakeSource : public DiffPrintSource {
  public:
    FakeSource(FakeGrid o, FakeGrid r) : original(std::move(o)), revised(std::move(r)) {}
    PrintableGrid& Grid(bool isOriginal) override { return isOriginal ? original : revised; }
    std::string FileBoxText(bool isOriginal) const override {
        return isOriginal ? "/in/old.html" : "/in/new.html";
    }
    std::string GeneralDateNow() const override { return "23/11/2026 16:05"; }
    void SetHourglass(bool busy) override { hourglass.push_back(busy); }

    FakeGrid original, revised;
    std::vector<bool> hourglass;
};

} // namespace orvane::test
