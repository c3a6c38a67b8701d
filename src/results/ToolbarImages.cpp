#include "results/ToolbarImages.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace orvane {
namespace {

constexpr int S = kToolbarImageSize;
const QColor kInk(50, 60, 80);
const QColor kPage(255, 255, 255);
const QColor kOrphan(247, 209, 161);
const QColor kDiffer(208, 191, 217);
const QColor kMark(32, 160, 192);
const QColor kArrow(40, 110, 200);

void Page(QPainter& p, QRectF r, const QColor& fill) {
    QPainterPath path;
    const qreal fold = r.width() * 0.35;
    path.moveTo(r.topLeft());
    path.lineTo(r.right() - fold, r.top());
    path.lineTo(r.right(), r.top() + fold);
    path.lineTo(r.bottomRight());
    path.lineTo(r.bottomLeft());
    path.closeSubpath();
    p.setBrush(fill);
    p.setPen(QPen(kInk, 1));
    p.drawPath(path);
    for (qreal y = r.top() + 5; y < r.bottom() - 2; y += 3)
        p.drawLine(QPointF(r.left() + 2.5, y), QPointF(r.right() - 3, y));
}

void Letter(QPainter& p, const QString& text, QRectF r, const QColor& c) {
    QFont f = p.font();
    f.setBold(true);
    f.setPixelSize(9);
    p.setFont(f);
    p.setPen(c);
    p.drawText(r, Qt::AlignCenter, text);
}

// A solid triangle pointing up or down, with an optional bar on its far side.
void Triangle(QPainter& p, QRectF r, bool down, bool bar) {
    QPolygonF t;
    if (down)
        t << r.topLeft() << r.topRight() << QPointF(r.center().x(), r.bottom() - (bar ? 3 : 0));
    else
        t << r.bottomLeft() << r.bottomRight() << QPointF(r.center().x(), r.top() + (bar ? 3 : 0));
    p.setPen(Qt::NoPen);
    p.setBrush(kArrow);
    p.drawPolygon(t);
    if (bar) p.fillRect(QRectF(r.left(), down ? r.bottom() - 2 : r.top(), r.width(), 2), kArrow);
}

void Magnifier(QPainter& p, QPointF c) {
    p.setBrush(QColor(220, 235, 250));
    p.setPen(QPen(kInk, 1.6));
    p.drawEllipse(c, 4.5, 4.5);
    p.setPen(QPen(kInk, 2.6, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(c + QPointF(3.4, 3.4), c + QPointF(7, 7));
}

void Ribbon(QPainter& p, QRectF r) {
    QPolygonF shape;
    shape << r.topLeft() << r.topRight() << r.bottomRight()
          << QPointF(r.center().x(), r.bottom() - r.width() * 0.45) << r.bottomLeft();
    p.setPen(QPen(kInk, 1));
    p.setBrush(kMark);
    p.drawPolygon(shape);
}

void SmallArrow(QPainter& p, QPointF at, bool down) {
    Triangle(p, QRectF(at.x() - 3.5, at.y() - 3, 7, 6), down, false);
}

void Draw(QPainter& p, int image) {
    switch (image) {
    case 1:
        Page(p, QRectF(3.5, 1.5, 13, 17), kOrphan);
        Letter(p, "O", QRectF(3, 6, 13, 12), kInk);
        break;
    case 2:
        Page(p, QRectF(3.5, 1.5, 13, 17), kDiffer);
        Letter(p, "R", QRectF(3, 6, 13, 12), kInk);
        break;
    case 3:
        Page(p, QRectF(1.5, 1.5, 10, 14), kOrphan);
        Page(p, QRectF(8.5, 4.5, 10, 14), kDiffer);
        break;
    case 4:
        Triangle(p, QRectF(4, 3, 12, 13), false, true);
        break;
    case 5:
        Triangle(p, QRectF(4, 5, 12, 10), true, false);
        break;
    case 6:
        Triangle(p, QRectF(4, 5, 12, 10), false, false);
        break;
    case 7:
        Triangle(p, QRectF(4, 4, 12, 13), true, true);
        break;
    case 8:
        Magnifier(p, QPointF(8, 8));
        break;
    case 9:
        Magnifier(p, QPointF(7, 7));
        SmallArrow(p, QPointF(15, 15), true);
        break;
    case 10:
        Magnifier(p, QPointF(7, 7));
        SmallArrow(p, QPointF(15, 15), false);
        break;
    case 11:
        Ribbon(p, QRectF(6, 2, 8, 16));
        break;
    case 12:
        Ribbon(p, QRectF(3, 2, 8, 15));
        SmallArrow(p, QPointF(15, 15), true);
        break;
    case 13:
        Ribbon(p, QRectF(3, 2, 8, 15));
        SmallArrow(p, QPointF(15, 15), false);
        break;
    case 14:
        Ribbon(p, QRectF(3, 2, 8, 15));
        p.setPen(QPen(QColor(200, 40, 40), 2.2, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(12, 11), QPointF(17, 16));
        p.drawLine(QPointF(17, 11), QPointF(12, 16));
        break;
    case 15:
        p.setPen(QPen(kInk, 1));
        p.setBrush(kPage);
        p.drawRect(QRectF(5.5, 1.5, 9, 6));
        p.setBrush(QColor(170, 180, 195));
        p.drawRoundedRect(QRectF(1.5, 7.5, 17, 7), 1.5, 1.5);
        p.setBrush(kPage);
        p.drawRect(QRectF(5.5, 12.5, 9, 6));
        break;
    case 16:
        p.setPen(QPen(kInk, 1));
        p.setBrush(QColor(190, 140, 90));
        p.drawRect(QRectF(3.5, 1.5, 9, 17));
        p.setPen(QPen(QColor(200, 40, 40), 2, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(10, 10), QPointF(18, 10));
        p.drawLine(QPointF(15, 7), QPointF(18, 10));
        p.drawLine(QPointF(15, 13), QPointF(18, 10));
        break;
    default:
        break;
    }
}

// Drawn at the size of the device pixels asked for, so that the image is crisp at any device
// pixel ratio instead of a 20-pixel bitmap blown up.
QPixmap Render(int image, QIcon::Mode mode, int pixels) {
    QPixmap pixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(static_cast<qreal>(pixels) / S, static_cast<qreal>(pixels) / S);
    if (mode == QIcon::Active) {
        p.setPen(QPen(QColor(120, 160, 220), 1));
        p.setBrush(QColor(225, 236, 252));
        p.drawRoundedRect(QRectF(0.5, 0.5, S - 1, S - 1), 3, 3);
    }
    Draw(p, image);
    p.end();
    if (mode != QIcon::Disabled) return pixmap;
    QImage grey = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < grey.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(grey.scanLine(y));
        for (int x = 0; x < grey.width(); ++x) {
            const int g = 150 + qGray(line[x]) / 3;
            line[x] = qRgba(g, g, g, qAlpha(line[x]) * 2 / 3);
        }
    }
    return QPixmap::fromImage(grey);
}

class ToolbarIconEngine : public QIconEngine {
  public:
    explicit ToolbarIconEngine(int image) : image_(image) {}
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        const int pixels = std::max(1, std::min(size.width(), size.height()));
        return Render(image_, mode == QIcon::Selected ? QIcon::Normal : mode, pixels);
    }
    // `size` is in device pixels already.
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                         qreal scale) override {
        QPixmap p = pixmap(size, mode, state);
        p.setDevicePixelRatio(scale);
        return p;
    }
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State state) override {
        const qreal scale = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
        painter->drawPixmap(
            rect, scaledPixmap((QSizeF(rect.size()) * scale).toSize(), mode, state, scale));
    }
    QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override { return size; }
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override { return {QSize(S, S)}; }
    QIconEngine* clone() const override { return new ToolbarIconEngine(image_); }

  private:
    int image_;
};

} // namespace

QIcon ToolbarIcon(int image) {
    return QIcon(new ToolbarIconEngine(image));
}

} // namespace orvane
