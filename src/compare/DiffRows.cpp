#include "compare/DiffRows.h"

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

// Row numbers are final when they are given: every later hunk lies below.
void Mark(AlignedSide& side, long first, long count, AlignedRow row) {
    if (count <= 0 || first < 0) return;
    const auto end = static_cast<std::size_t>(first + count);
    if (side.size() < end) side.resize(end);
    std::fill(side.begin() + first, side.begin() + static_cast<long>(end), row);
}

class HunkWalk {
  public:
    explicit HunkWalk(Alignment& a) : a_(a) {}

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
    static constexpr AlignedRow kGap{RowKind::Gap, true};
    static constexpr AlignedRow kOrphan{RowKind::Orphan, false};

    void Added(long after, Range lines) {
        Mark(a_.Original, after + addedToOriginal_ + 1, lines.Count(), kGap);
        addedToOriginal_ += lines.Count();
        const long first = lines.First + addedToRevised_;
        Mark(a_.Revised, first, lines.Count(), kOrphan);
        a_.Diffs.push_back({first, lines.Count(), DiffKind::Orphan});
    }

    void Deleted(Range lines, long after) {
        const long first = lines.First + addedToOriginal_;
        Mark(a_.Original, first, lines.Count(), kOrphan);
        Mark(a_.Revised, after + addedToRevised_ + 1, lines.Count(), kGap);
        addedToRevised_ += lines.Count();
        a_.Diffs.push_back({first, lines.Count(), DiffKind::Orphan});
    }

    void Changed(Range left, Range right) {
        const long baseOriginal = addedToOriginal_, baseRevised = addedToRevised_;
        const long rows = std::max(left.Count(), right.Count());
        const long first = left.First + baseOriginal;
        Pad(a_.Original, first, left.Count(), rows);
        Pad(a_.Revised, first, right.Count(), rows);
        addedToOriginal_ += rows - left.Count();
        addedToRevised_ += rows - right.Count();
        a_.Diffs.push_back({right.First + baseRevised, rows, DiffKind::Changed});
    }

    // A changed block: the side's own lines, then inserted rows up to the longer side.
    static void Pad(AlignedSide& side, long first, long lines, long rows) {
        Mark(side, first, lines, {RowKind::Changed, false});
        Mark(side, first + lines, rows - lines, {RowKind::Changed, true});
    }

    Alignment& a_;
    long addedToOriginal_ = 0;
    long addedToRevised_ = 0;
};

} // namespace

Alignment AlignRows(const DiffOutput& Engine) {
    Alignment result;
    try {
        HunkWalk walk(result);
        YieldPoint yield;
        const long count = Engine.OutputLineCount();
        for (long index = 0; index < count; ++index) {
            yield();
            walk.Apply(Engine.OutputLine(index));
        }
    } catch (...) {
        result.Complete = false;
    }
    return result;
}

} // namespace orvane
