#include "compare/DiffRows.h"

#include "frame/Prompter.h"
#include "frame/RuntimeError.h"
#include "frame/YieldPoint.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace orvane {
namespace {

struct Range {
    long First = 0;
    long Last = 0;
    long Count() const { return Last - First + 1; }
};

long ToNumber(std::string_view s) {
    long v = 0;
    const auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), v);
    if (ec != std::errc() || end != s.data() + s.size()) throw RuntimeError(err::TypeMismatch);
    return v;
}

Range ToRange(std::string_view s) {
    const std::size_t comma = s.find(',');
    if (comma == std::string_view::npos) return {ToNumber(s), ToNumber(s)};
    return {ToNumber(s.substr(0, comma)), ToNumber(s.substr(comma + 1))};
}

void InsertBlankRows(FlexGrid& grid, long index, long count) {
    for (long i = 0; i < count; ++i)
        grid.AddItem("", index);
}

void ColourRows(FlexGrid& grid, long first, long last, Colour colour) {
    grid.SetRow(first);
    grid.SetRowSel(last);
    grid.SetCellBackColor(colour);
}

class HunkWalk {
  public:
    HunkWalk(FlexGrid& o, FlexGrid& r, DiffList& l) : original_(o), revised_(r), list_(l) {}

    void Apply(const std::string& line) {
        if (line.empty() || !std::isdigit(static_cast<unsigned char>(line[0]))) return;
        for (char letter : {'a', 'd', 'c'}) {
            const std::size_t at = line.find(letter);
            if (at == std::string::npos) continue;
            const std::string_view left(line.data(), at);
            const std::string_view right(line.data() + at + 1, line.size() - at - 1);
            if (letter == 'a') Added(ToNumber(left), ToRange(right));
            if (letter == 'd') Deleted(ToRange(left), ToNumber(right));
            if (letter == 'c') Changed(ToRange(left), ToRange(right));
            return;
        }
    }

  private:
    void Added(long after, Range lines) {
        InsertBlankRows(original_, after + addedToOriginal_ + 1, lines.Count());
        addedToOriginal_ += lines.Count();
        const long first = lines.First + addedToRevised_;
        ColourRows(revised_, first, lines.Last + addedToRevised_, ColourOrphanRows);
        list_.push_back(FormatDiffItem({first, lines.Count(), ColourOrphanRows}));
    }

    void Deleted(Range lines, long after) {
        const long first = lines.First + addedToOriginal_;
        ColourRows(original_, first, lines.Last + addedToOriginal_, ColourOrphanRows);
        InsertBlankRows(revised_, after + addedToRevised_ + 1, lines.Count());
        addedToRevised_ += lines.Count();
        list_.push_back(FormatDiffItem({first, lines.Count(), ColourOrphanRows}));
    }

    void Changed(Range left, Range right) {
        const long baseOriginal = addedToOriginal_, baseRevised = addedToRevised_;
        if (right.Count() > left.Count()) {
            const long pad = right.Count() - left.Count();
            InsertBlankRows(original_, left.Last + addedToOriginal_ + 1, pad);
            addedToOriginal_ += pad;
        }
        if (left.Count() > right.Count()) {
            const long pad = left.Count() - right.Count();
            InsertBlankRows(revised_, right.Last + addedToRevised_ + 1, pad);
            addedToRevised_ += pad;
        }
        const long rows = std::max(left.Count(), right.Count());
        const long first = left.First + baseOriginal, last = left.Last + addedToOriginal_;
        ColourRows(original_, first, last, ColourDifferRows);
        ColourRows(revised_, first, last, ColourDifferRows);
        list_.push_back(FormatDiffItem({right.First + baseRevised, rows, ColourDifferRows}));
    }

    FlexGrid& original_;
    FlexGrid& revised_;
    DiffList& list_;
    long addedToOriginal_ = 0;
    long addedToRevised_ = 0;
};

void EvenUpRows(FlexGrid& original, FlexGrid& revised) {
    const long rows = std::max(original.Rows(), revised.Rows());
    while (original.Rows() < rows)
        original.AddItem("");
    while (revised.Rows() < rows)
        revised.AddItem("");
}

} // namespace

std::string FormatDiffItem(const DiffItem& item) {
    return std::to_string(item.FirstRow) + "-" + std::to_string(item.RowCount) + "-" +
           std::to_string(item.ColourValue);
}

bool ParseDiffItem(const std::string& text, DiffItem& item) {
    const std::size_t a = text.find('-');
    const std::size_t b = a == std::string::npos ? a : text.find('-', a + 1);
    if (b == std::string::npos) return false;
    try {
        item.FirstRow = ToNumber(std::string_view(text).substr(0, a));
        item.RowCount = ToNumber(std::string_view(text).substr(a + 1, b - a - 1));
        item.ColourValue = static_cast<Colour>(ToNumber(std::string_view(text).substr(b + 1)));
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

bool InsertDiffRowsInGrids(const DiffOutput& Engine, FlexGrid& original, FlexGrid& revised,
                           DiffList& list) {
    try {
        HunkWalk walk(original, revised, list);
        YieldPoint yield;
        const long count = Engine.OutputLineCount();
        for (long index = 0; index < count; ++index) {
            yield();
            walk.Apply(Engine.OutputLine(index));
        }
        return true;
    } catch (...) {
        EvenUpRows(original, revised);
        prompter().MsgBox("Not able to show the file differences.\r\n\r\nThis can happen if the "
                          "files contain non-ASCII characters.",
                          MsgIcon::Critical, "Show File Differences");
        return false;
    }
}

} // namespace orvane
