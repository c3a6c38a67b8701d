#include "results/DetailPainter.h"

#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextEdit>

namespace orvane {
namespace {

// UTF-16 offset of each code point, and of the end.
std::vector<int> Utf16Offsets(const QString& text) {
    std::vector<int> offsets;
    offsets.reserve(static_cast<std::size_t>(text.size()) + 1);
    for (int i = 0; i < text.size(); ++i) {
        offsets.push_back(i);
        if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) ++i;
    }
    offsets.push_back(static_cast<int>(text.size()));
    return offsets;
}

void Colour(QTextEdit& box, int from, int to, const QColor& colour) {
    QTextCursor c(box.document());
    c.setPosition(from);
    c.setPosition(to, QTextCursor::KeepAnchor);
    QTextCharFormat f;
    f.setForeground(colour);
    c.mergeCharFormat(f);
}

void SetPlain(QTextEdit& box, const QString& text) {
    box.setPlainText(text);
    Colour(box, 0, static_cast<int>(text.size()), Qt::black);
    QTextCursor start(box.document());
    box.setTextCursor(start);
}

} // namespace

QString FromUtf32(const std::u32string& text) {
    return QString::fromUcs4(text.data(), static_cast<qsizetype>(text.size()));
}

std::u32string ToUtf32(const QString& text) {
    const QList<uint> ucs4 = text.toUcs4();
    return std::u32string(ucs4.begin(), ucs4.end());
}

void PaintDetail(QTextEdit& box, const QString& text, const std::vector<WordRun>& runs) {
    box.setUpdatesEnabled(false);
    SetPlain(box, text);
    const std::vector<int> at = Utf16Offsets(text);
    const long last = static_cast<long>(at.size()) - 1;
    for (const WordRun& r : runs) {
        const long from = std::clamp(r.Start, 0L, last),
                   to = std::clamp(r.Start + r.Length, 0L, last);
        if (to > from)
            Colour(box, at[static_cast<std::size_t>(from)], at[static_cast<std::size_t>(to)],
                   Qt::red);
    }
    box.setUpdatesEnabled(true);
}

void PaintDetail(QTextEdit& box, const QString& text, bool allRed) {
    std::vector<WordRun> runs;
    if (allRed) runs.push_back({0, static_cast<long>(ToUtf32(text).size())});
    PaintDetail(box, text, runs);
}

} // namespace orvane
