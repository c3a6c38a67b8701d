#include "results/RowMarkers.h"

#include <QImage>

namespace orvane {
namespace {

constexpr int kWidth = 10;
constexpr int kHeight = 8;

// Red columns of each pixel row of the arrow: [first, last], or none.
constexpr int kArrowSpan[kHeight][2] = {{6, 6}, {6, 7}, {6, 8}, {0, 9},
                                        {0, 9}, {6, 8}, {6, 7}, {6, 6}};

QPixmap Make(QRgb background, bool arrow) {
    QImage image(kWidth, kHeight, QImage::Format_RGB32);
    image.fill(background);
    if (arrow)
        for (int y = 0; y < kHeight; ++y)
            for (int x = kArrowSpan[y][0]; x <= kArrowSpan[y][1]; ++x)
                image.setPixel(x, y, qRgb(255, 0, 0));
    return QPixmap::fromImage(image);
}

} // namespace

QPixmap RowMarker(CellPictureId picture) {
    switch (picture) {
    case CellPictureId::Arrow:
        return Make(qRgb(255, 255, 255), true);
    case CellPictureId::OrphanArrow:
        return Make(qRgb(247, 209, 161), true);
    case CellPictureId::DifferArrow:
        return Make(qRgb(208, 191, 217), true);
    case CellPictureId::BookmarkArrow:
        return Make(qRgb(32, 160, 192), true);
    case CellPictureId::Bookmark:
        return Make(qRgb(32, 160, 192), false);
    case CellPictureId::None:
        break;
    }
    return {};
}

} // namespace orvane
