#include "results/DetailPainter.h"

#include "results/LineDetailView.h"

#include <algorithm>

namespace orvane {
namespace {

bool HasSurrogates(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isSurrogate(); });
}

// UTF-16 offset of each code point, and of the end.
std::vector<qsizetype> Utf16Offsets(const QString& text) {
    std::vector<qsizetype> offsets;
    offsets.reserve(static_cast<std::size_t>(text.size()) + 1);
    for (qsizetype i = 0; i < text.size(); ++i) {
        offsets.push_back(i);
        if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) ++i;
    }
    offsets.push_back(text.size());
    return offsets;
}

// Runs in code points to spans in UTF-16 units; most lines need no table for that.
std::vector<RedSpan> SpansOf(const QString& text, const std::vector<WordRun>& runs) {
    std::vector<qsizetype> table;
    if (HasSurrogates(text)) table = Utf16Offsets(text);
    const qsizetype last = table.empty() ? text.size() : static_cast<qsizetype>(table.size()) - 1;
    const auto at = [&](qsizetype i) {
        return table.empty() ? i : table[static_cast<std::size_t>(i)];
    };
    std::vector<RedSpan> spans;
    spans.reserve(runs.size());
    for (const WordRun& r : runs) {
        const qsizetype from = std::clamp<qsizetype>(r.Start, 0, last),
                        to = std::clamp<qsizetype>(r.Start + r.Length, 0, last);
        if (to <= from) continue;
        if (!spans.empty() && spans.back().To == at(from))
            spans.back().To = at(to);
        else
            spans.push_back({at(from), at(to)});
    }
    return spans;
}

} // namespace

QString FromUtf32(const std::u32string& text) {
    return QString::fromUcs4(text.data(), static_cast<qsizetype>(text.size()));
}

// A lone surrogate stays one character of its own, as the offsets above count it.
std::u32string ToUtf32(const QString& text) {
    std::u32string out;
    out.reserve(static_cast<std::size_t>(text.size()));
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            out.push_back(QChar::surrogateToUcs4(c, text[++i]));
        else
            out.push_back(c.unicode());
    }
    return out;
}

void PaintDetail(LineDetailView& box, const QString& text, const std::vector<WordRun>& runs) {
    std::vector<RedSpan> spans = SpansOf(text, runs);
    box.SetLine(text, std::move(spans));
}

void PaintDetail(LineDetailView& box, const QString& text, bool allRed) {
    std::vector<RedSpan> spans;
    if (allRed && !text.isEmpty()) spans.push_back({0, text.size()});
    box.SetLine(text, std::move(spans));
}

} // namespace orvane
