// Toolbar images at the device pixel ratio that QT_SCALE_FACTOR gives this process (CTest runs
// it at 1.5 and at 2): each button, grabbed, must show an image drawn at that ratio, not the
// 20-pixel image blown up.
#include "results/ToolbarImages.h"

#include <QApplication>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace orvane::test {
namespace {

// Smallest mean difference per channel between the opaque pixels of `part` and any place in
// `whole` (the button's own ground shows through the rest).
double BestMatch(const QImage& whole, const QImage& part) {
    double best = std::numeric_limits<double>::max();
    for (int oy = 0; oy + part.height() <= whole.height(); ++oy)
        for (int ox = 0; ox + part.width() <= whole.width(); ++ox) {
            double sum = 0;
            int count = 0;
            for (int y = 0; y < part.height(); ++y)
                for (int x = 0; x < part.width(); ++x) {
                    const QColor p = part.pixelColor(x, y);
                    if (p.alpha() < 250) continue;
                    const QColor w = whole.pixelColor(ox + x, oy + y);
                    sum += std::abs(p.redF() - w.redF()) + std::abs(p.greenF() - w.greenF()) +
                           std::abs(p.blueF() - w.blueF());
                    ++count;
                }
            if (count > 0) best = std::min(best, sum / (count * 3));
        }
    return best;
}

TEST(ToolbarImages, ButtonsShowImagesDrawnAtTheDevicePixelRatio) {
    const qreal ratio = qApp->devicePixelRatio();
    ASSERT_GT(ratio, 1.0) << "run with QT_SCALE_FACTOR set";
    QToolBar bar;
    bar.setIconSize(QSize(kToolbarImageSize, kToolbarImageSize));
    for (int image = 1; image <= 16; ++image)
        bar.addAction(ToolbarIcon(image), QString::number(image));
    bar.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&bar));
    const int device = static_cast<int>(std::lround(kToolbarImageSize * ratio));
    double crispTotal = 0, blownTotal = 0;
    for (int image = 1; image <= 16; ++image) {
        auto* button = qobject_cast<QToolButton*>(bar.widgetForAction(bar.actions()[image - 1]));
        ASSERT_NE(button, nullptr);
        const QPixmap crisp = button->icon().pixmap(bar.iconSize(), ratio);
        EXPECT_EQ(crisp.width(), device) << "image " << image;
        EXPECT_EQ(crisp.deviceIndependentSize().toSize(), bar.iconSize());
        const QImage grabbed = button->grab().toImage();
        ASSERT_EQ(grabbed.devicePixelRatio(), ratio);
        // What a 20-pixel image blown up to the device size would look like.
        const QImage blown =
            button->icon()
                .pixmap(bar.iconSize(), 1.0)
                .toImage()
                .scaled(device, device, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        const double toCrisp = BestMatch(grabbed, crisp.toImage());
        const double toBlown = BestMatch(grabbed, blown);
        EXPECT_LT(toCrisp, 0.03) << "image " << image;
        crispTotal += toCrisp, blownTotal += toBlown;
    }
    // Over all sixteen: a few images are flat enough to look alike either way.
    EXPECT_LT(crispTotal * 2, blownTotal) << "the images look blown up";
}

} // namespace
} // namespace orvane::test

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
