#include "results/DiffBarView.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>

namespace orvane {
namespace {

constexpr int kMarkWidth = 3;

// A pointer of the bar's own: a small crosshair that says "press to go here".
QCursor BarCursor() {
    QPixmap p(16, 16);
    p.fill(Qt::transparent);
    QPainter g(&p);
    g.setPen(QPen(Qt::black, 1));
    g.drawLine(8, 1, 8, 15);
    g.drawLine(1, 8, 15, 8);
    g.setPen(QPen(Qt::red, 1));
    g.drawEllipse(QPoint(8, 8), 3, 3);
    return QCursor(p, 8, 8);
}

} // namespace

DiffBarView::DiffBarView(QWidget* parent) : QWidget(parent), bar_(new QWidget(this)) {
    setObjectName("pctContainer");
    bar_->setObjectName("pctDiffsBar");
    bar_->setCursor(BarCursor());
    bar_->installEventFilter(this);
}

int DiffBarView::BarHeight() const {
    return bar_->height();
}

void DiffBarView::Clear() {
    bands_.clear();
    drawn_ = false;
    markY_ = -1;
    update();
    bar_->update();
}

void DiffBarView::ShowBands(std::vector<BarBand> bands) {
    bands_ = std::move(bands);
    drawn_ = true;
    bar_->update();
}

void DiffBarView::ShowMark(int y) {
    markY_ = y;
    update();
}

void DiffBarView::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), palette().color(QPalette::Button));
    if (markY_ >= 0)
        p.fillRect(0, bar_->y() + markY_ - kMarkWidth / 2, width(), kMarkWidth, Qt::red);
}

bool DiffBarView::eventFilter(QObject* watched, QEvent* event) {
    if (watched != bar_) return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::Paint) {
        QPainter p(bar_);
        p.fillRect(bar_->rect(), palette().color(drawn_ ? QPalette::Base : QPalette::Button));
        for (const BarBand& b : bands_)
            p.fillRect(0, b.Top, bar_->width(), b.End - b.Top,
                       QColor(b.ColourValue & 0xFF, (b.ColourValue >> 8) & 0xFF,
                              (b.ColourValue >> 16) & 0xFF));
        return true;
    }
    if (event->type() == QEvent::MouseButtonPress) {
        emit Pressed(static_cast<float>(static_cast<QMouseEvent*>(event)->position().y()));
        return true;
    }
    return false;
}

} // namespace orvane
