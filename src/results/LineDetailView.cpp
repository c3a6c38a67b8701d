#include "results/LineDetailView.h"

#include <QApplication>
#include <QClipboard>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <cmath>

namespace orvane {
namespace {

// Characters per block of the position index: a lookup walks at most this many advances, and the
// index of a 50 MB line stays under half a megabyte.
constexpr qsizetype kBlock = 1024;
// Space between the frame and the text, as the rich text box had.
constexpr int kMargin = 2;
// One notch of the wheel, and one press of an arrow key, in pixels.
constexpr int kStep = 40;

} // namespace

LineDetailView::LineDetailView(const QString& name, QWidget* parent)
    : QAbstractScrollArea(parent), bmpAdvance_(0x10000, -1.0f) {
    setObjectName(name);
    setFrameShape(QFrame::Box);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setCursor(Qt::IBeamCursor);
    viewport()->setBackgroundRole(QPalette::Base);
    horizontalScrollBar()->setSingleStep(kStep);
    Measure();
}

void LineDetailView::SetLine(QString text, std::vector<RedSpan> spans) {
    text_ = std::move(text);
    spans_ = std::move(spans);
    Measure();
    horizontalScrollBar()->setValue(0);
    viewport()->update();
}

bool LineDetailView::IsRed(qsizetype at) const {
    const auto it = std::upper_bound(spans_.begin(), spans_.end(), at,
                                     [](qsizetype a, const RedSpan& s) { return a < s.To; });
    return it != spans_.end() && it->From <= at;
}

qsizetype LineDetailView::Next(qsizetype at) const {
    if (text_[at].isHighSurrogate() && at + 1 < text_.size() && text_[at + 1].isLowSurrogate())
        return at + 2;
    return at + 1;
}

double LineDetailView::Advance(qsizetype at) const {
    const QChar c = text_[at];
    if (Next(at) == at + 1) {
        float& known = bmpAdvance_[c.unicode()];
        if (known < 0) known = static_cast<float>(QFontMetricsF(font()).horizontalAdvance(c));
        return known;
    }
    const char32_t code = QChar::surrogateToUcs4(c, text_[at + 1]);
    auto [it, fresh] = otherAdvance_.try_emplace(code, 0.0);
    if (fresh) it->second = QFontMetricsF(font()).horizontalAdvance(text_.mid(at, 2));
    return it->second;
}

// Advances are summed per character, not shaped as a whole: exact for the fixed-pitch font of
// the pane, and off by kerning at most elsewhere, which no one can see in a single line.
void LineDetailView::Measure() {
    blockX_.clear();
    double x = 0;
    const qsizetype n = text_.size();
    const QChar* data = text_.constData();
    for (qsizetype i = 0; i < n;) {
        // A pair of surrogates may push a block's start one unit on; the walk finds it.
        blockX_.push_back(x);
        const qsizetype blockEnd = std::min(n, static_cast<qsizetype>(blockX_.size()) * kBlock);
        while (i < blockEnd) {
            const char16_t c = data[i].unicode();
            const float known = QChar::isSurrogate(c) ? -1.0f : bmpAdvance_[c];
            if (known >= 0) {
                x += known;
                ++i;
            } else {
                x += Advance(i);
                i = Next(i);
            }
        }
    }
    blockX_.push_back(x);
    UpdateRange();
}

void LineDetailView::UpdateRange() {
    const int content = static_cast<int>(std::ceil(LineWidth())) + 2 * kMargin;
    horizontalScrollBar()->setRange(0, std::max(0, content - viewport()->width()));
    horizontalScrollBar()->setPageStep(std::max(viewport()->width() - kStep, kStep));
}

std::pair<qsizetype, double> LineDetailView::CharAt(double x) const {
    const auto blocks = blockX_.begin() + static_cast<std::ptrdiff_t>(blockX_.size() - 1);
    const auto after = std::upper_bound(blockX_.begin(), blocks, x);
    const qsizetype block = std::max<qsizetype>(after - blockX_.begin() - 1, 0);
    qsizetype i = std::min(block * kBlock, text_.size());
    if (i > 0 && i < text_.size() && text_[i].isLowSurrogate() && text_[i - 1].isHighSurrogate())
        ++i;
    double at = blockX_.empty() ? 0 : blockX_[static_cast<std::size_t>(block)];
    while (i < text_.size()) {
        const double w = Advance(i);
        if (at + w > x) break;
        at += w;
        i = Next(i);
    }
    return {i, at};
}

int LineDetailView::ScrollX() const {
    return horizontalScrollBar()->value();
}

void LineDetailView::ScrollToX(int x) {
    horizontalScrollBar()->setValue(x);
}

std::pair<qsizetype, qsizetype> LineDetailView::VisibleSpan() const {
    const double left = ScrollX() - kMargin;
    const qsizetype first = CharAt(std::max(left, 0.0)).first;
    qsizetype end = CharAt(left + viewport()->width()).first;
    if (end < text_.size()) end = Next(end);
    return {first, end};
}

void LineDetailView::DrawSpan(QPainter& p, qsizetype from, qsizetype to, double& x,
                              bool red) const {
    if (to <= from) return;
    p.setPen(red ? QColor(255, 0, 0) : QColor(0, 0, 0));
    const QFontMetricsF metrics(font());
    p.drawText(QPointF(x, kMargin + metrics.ascent()), text_.mid(from, to - from));
    for (qsizetype i = from; i < to; i = Next(i))
        x += Advance(i);
}

void LineDetailView::paintEvent(QPaintEvent*) {
    QPainter p(viewport());
    p.fillRect(viewport()->rect(), palette().color(QPalette::Base));
    p.setFont(font());
    const auto [first, end] = VisibleSpan();
    const double left = ScrollX() - kMargin;
    double x = CharAt(std::max(left, 0.0)).second - left;
    auto span = std::upper_bound(spans_.begin(), spans_.end(), first,
                                 [](qsizetype a, const RedSpan& s) { return a < s.To; });
    for (qsizetype at = first; at < end;) {
        if (span != spans_.end() && span->From <= at) {
            const qsizetype to = std::min(span->To, end);
            DrawSpan(p, at, to, x, true);
            at = to;
            ++span;
        } else {
            const qsizetype to = span == spans_.end() ? end : std::min(span->From, end);
            DrawSpan(p, at, to, x, false);
            at = to;
        }
    }
}

void LineDetailView::resizeEvent(QResizeEvent* e) {
    QAbstractScrollArea::resizeEvent(e);
    UpdateRange();
}

void LineDetailView::changeEvent(QEvent* e) {
    QAbstractScrollArea::changeEvent(e);
    if (e->type() == QEvent::FontChange) {
        std::fill(bmpAdvance_.begin(), bmpAdvance_.end(), -1.0f);
        otherAdvance_.clear();
        Measure();
    }
}

void LineDetailView::scrollContentsBy(int, int) {
    viewport()->update();
}

// Either wheel moves along the line: it has no other direction.
void LineDetailView::wheelEvent(QWheelEvent* e) {
    const QPoint d = e->angleDelta();
    const int delta = d.x() != 0 ? d.x() : d.y();
    ScrollToX(ScrollX() - delta * kStep / 120);
    e->accept();
}

void LineDetailView::keyPressEvent(QKeyEvent* e) {
    QScrollBar* bar = horizontalScrollBar();
    if (e->matches(QKeySequence::Copy)) {
        QApplication::clipboard()->setText(text_);
        return;
    }
    switch (e->key()) {
    case Qt::Key_Home:
        bar->setValue(bar->minimum());
        break;
    case Qt::Key_End:
        bar->setValue(bar->maximum());
        break;
    case Qt::Key_Left:
        bar->triggerAction(QAbstractSlider::SliderSingleStepSub);
        break;
    case Qt::Key_Right:
        bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        break;
    case Qt::Key_PageUp:
        bar->triggerAction(QAbstractSlider::SliderPageStepSub);
        break;
    case Qt::Key_PageDown:
        bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
        break;
    default:
        QAbstractScrollArea::keyPressEvent(e);
        return;
    }
    e->accept();
}

// Dragging pulls the line along, the way a hand moves paper.
void LineDetailView::mousePressEvent(QMouseEvent* e) {
    dragX_ = static_cast<int>(e->position().x());
    setFocus(Qt::MouseFocusReason);
}

void LineDetailView::mouseMoveEvent(QMouseEvent* e) {
    const int x = static_cast<int>(e->position().x());
    ScrollToX(ScrollX() - (x - dragX_));
    dragX_ = x;
}

} // namespace orvane
