#include "output/QtPrintSurface.h"

#include "frame/RuntimeError.h"

#include <QFontMetricsF>
#include <QPen>
#include <QPrinter>

namespace orvane {
namespace {

constexpr double kTwipsPerInch = 1440;
// The printer's default size: the face is chosen by name only and its size is never set.
constexpr double kDefaultPointSize = 10;

QFont PrintFont(const QString& family) {
    QFont font(family);
    font.setPointSizeF(kDefaultPointSize);
    // Where the face is missing, any fixed-pitch face keeps the columns.
    font.setStyleHint(QFont::TypeWriter);
    font.setFixedPitch(true);
    return font;
}

} // namespace

QtPrintSurface::QtPrintSurface(QPrinter& printer, Documents documents)
    : printer_(printer), documents_(documents), font_(PrintFont("Courier New")) {}

QtPrintSurface::~QtPrintSurface() {
    Finish();
}

bool QtPrintSurface::Finish() {
    if (painter_.isActive()) failed_ = !painter_.end() || failed_;
    return !failed_;
}

QPainter& QtPrintSurface::Painter() {
    if (!painter_.isActive()) {
        if (!painter_.begin(&printer_)) {
            failed_ = true;
            throw RuntimeError(482, "Printer error");
        }
        page_ = 1;
        pageEnded_ = false;
    } else if (pageEnded_) {
        printer_.newPage();
        pageEnded_ = false;
    }
    return painter_;
}

double QtPrintSurface::ToDevice(double twips) const {
    return twips * printer_.resolution() / kTwipsPerInch;
}

double QtPrintSurface::ToTwips(double pixels) const {
    return pixels * kTwipsPerInch / printer_.resolution();
}

double QtPrintSurface::Width() const {
    return ToTwips(printer_.pageRect(QPrinter::DevicePixel).width());
}

double QtPrintSurface::Height() const {
    return ToTwips(printer_.pageRect(QPrinter::DevicePixel).height());
}

void QtPrintSurface::SetFontName(const std::string& name) {
    QFont font = PrintFont(QString::fromStdString(name));
    font.setBold(font_.bold());
    font.setItalic(font_.italic());
    font.setUnderline(font_.underline());
    font_ = font;
}

void QtPrintSurface::Print(const std::string& text) {
    QPainter& p = Painter();
    p.setFont(font_);
    const QFontMetricsF metrics(font_, &printer_);
    QString line = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    // What lies beyond the page edge is cut off anyway; drawing it would only cost time.
    const double room = ToDevice(Width() - x_);
    const qsizetype fits = static_cast<qsizetype>(room / metrics.averageCharWidth()) * 2 + 8;
    if (line.size() > fits) line.truncate(fits);
    p.drawText(QPointF(ToDevice(x_), ToDevice(y_) + metrics.ascent()), line);
    x_ = 0;
    y_ += ToTwips(metrics.height());
}

void QtPrintSurface::Line(double x1, double y1, double x2, double y2) {
    QPainter& p = Painter();
    QPen pen(Qt::black, drawWidth_, drawStyle_ == 0 ? Qt::SolidLine : Qt::DashLine);
    pen.setCosmetic(true);
    p.setPen(pen);
    p.drawLine(QPointF(ToDevice(x1), ToDevice(y1)), QPointF(ToDevice(x2), ToDevice(y2)));
    x_ = x2;
    y_ = y2;
}

void QtPrintSurface::NewPage() {
    Painter();
    printer_.newPage();
    ++page_;
    x_ = y_ = 0;
}

void QtPrintSurface::EndDoc() {
    x_ = y_ = 0;
    page_ = 1;
    if (!painter_.isActive()) return;
    if (documents_ == Documents::OneJobEach) {
        failed_ = !painter_.end() || failed_;
        return;
    }
    pageEnded_ = true;
}

void QtPrintSurface::SetOrientation(PageOrientation orientation) {
    printer_.setPageOrientation(orientation == PageOrientation::Landscape ? QPageLayout::Landscape
                                                                          : QPageLayout::Portrait);
}

} // namespace orvane
