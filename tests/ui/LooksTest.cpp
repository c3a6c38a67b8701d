#include "results/FlexGridView.h"
#include "results/LineDetailView.h"
#include "tests/ui/DriverFixture.h"

#include <QApplication>
#include <QImage>
#include <QPalette>
#include <QScreen>
#include <QTest>
#include <QTextEdit>

namespace orvane::test {
namespace {

const QColor kDiffer(208, 191, 217), kOrphan(247, 209, 161);

// A dark desktop theme: light text on dark ground.
QPalette DarkPalette() {
    QPalette p;
    for (auto role : {QPalette::Window, QPalette::Base, QPalette::Button, QPalette::AlternateBase})
        p.setColor(role, QColor(30, 30, 34));
    for (auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(role, QColor(235, 235, 235));
    return p;
}

bool Dark(QRgb c) {
    return qRed(c) < 90 && qGreen(c) < 90 && qBlue(c) < 90;
}
bool Light(QRgb c) {
    return qRed(c) > 200 && qGreen(c) > 200 && qBlue(c) > 200;
}

struct Band {
    int rowsOfColour = 0; // image lines that hold the colour
    int darkInk = 0;      // dark pixels on those lines
    int lightInk = 0;     // light pixels that are not the colour itself nor white ground
};

// Reads the image lines whose pixels are mostly `colour`: a coloured row of the grid.
Band ReadRows(const QImage& image, const QColor& colour) {
    Band band;
    for (int y = 0; y < image.height(); ++y) {
        int count = 0;
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == colour;
        if (count < image.width() / 3) continue;
        ++band.rowsOfColour;
        for (int x = 0; x < image.width(); ++x) {
            const QRgb c = image.pixel(x, y);
            band.darkInk += Dark(c);
            band.lightInk += Light(c) && QColor(c) != colour && c != qRgb(255, 255, 255);
        }
    }
    return band;
}

class LooksTest : public DriverTest {
  protected:
    void SetUp() override {
        saved_ = QApplication::palette();
        QApplication::setPalette(DarkPalette()); // before the window, as a theme would be
        DriverTest::SetUp();
        window->resize(900, 600);
        window->show();
        // a changed line (lilac), a line in the Revised file only (orange)
        Compare(dir.Write("a.html", "same\nold words here\nsame\n"),
                dir.Write("b.html", "same\nnew words here\nsame\nextra line\n"));
    }
    void TearDown() override {
        DriverTest::TearDown();
        QApplication::setPalette(saved_);
    }
    QPalette saved_;
};

TEST_F(LooksTest, GridsKeepBlackTextOnTheirRowColoursUnderADarkTheme) {
    for (Side side : {Side::Original, Side::Revised}) {
        const QImage image = window->GridView(side)->viewport()->grab().toImage();
        const Band differ = ReadRows(image, kDiffer);
        EXPECT_GT(differ.rowsOfColour, 4);
        EXPECT_GT(differ.darkInk, 20) << "no black text on the lilac row";
        EXPECT_EQ(differ.lightInk, 0) << "light theme text on the lilac row";
        // the ground outside the rows is the grid's white, not the theme's dark base
        const QRgb corner = image.pixel(image.width() - 20, image.height() - 5);
        EXPECT_TRUE(Light(corner)) << std::hex << corner;
    }
    const Band orphan =
        ReadRows(window->GridView(Side::Revised)->viewport()->grab().toImage(), kOrphan);
    EXPECT_GT(orphan.rowsOfColour, 4);
    EXPECT_GT(orphan.darkInk, 20);
    EXPECT_EQ(orphan.lightInk, 0);
}

TEST_F(LooksTest, DetailPaneShowsBlackAndPureRedOnWhiteUnderADarkTheme) {
    window->FollowRow(2); // the changed line
    for (int box : {0, 1}) {
        const QImage image = window->DetailBox(box)->viewport()->grab().toImage();
        int pure = 0, red = 0, dark = 0, white = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) {
                const QColor c = image.pixelColor(x, y);
                pure += c == QColor(255, 0, 0);
                red += c.red() > 200 && c.green() < 90 && c.blue() < 90; // with its edges
                dark += Dark(c.rgb());
                white += c == Qt::white;
            }
        EXPECT_GT(pure, 0) << "box " << box;
        EXPECT_GT(red, 5) << "box " << box;
        EXPECT_GT(dark, 5) << "box " << box << ": the words that are the same are black";
        EXPECT_GT(white, image.width() * image.height() / 2) << "box " << box;
    }
}

TEST_F(LooksTest, TheDetailPromptIsBlackUnderADarkTheme) {
    window->OriginalFileBox()->setEditText("elsewhere.html"); // back to idle, prompt shown
    const QImage image = window->DetailBox(0)->viewport()->grab().toImage();
    int dark = 0, white = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            dark += Dark(c.rgb());
            white += c == Qt::white;
        }
    EXPECT_GT(dark, 20);
    EXPECT_GT(white, image.width() * image.height() / 2);
}

// The design size of 10290 by 6630 twips follows the screen's resolution, centred.
TEST_F(DriverTest, WindowOpensAtItsDesignSizeCentred) {
    frmFileDiffs fresh(session, *fileDiff);
    const double perTwip = fresh.logicalDpiX() / 1440.0;
    EXPECT_NEAR(fresh.width(), 10290 * perTwip, 1);
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_NEAR(fresh.geometry().center().x(), screen.center().x(), 2);
}

} // namespace
} // namespace orvane::test
