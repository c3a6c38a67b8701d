#include "app/frmSplash.h"

#include "frame/ErrorReporter.h"
#include "frame/Prompter.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QTimer>
#include <QVBoxLayout>

namespace orvane {
namespace {

constexpr int kSplashMilliseconds = 2000;

QPixmap Logo() {
    QPixmap pixmap(420, 220);
    pixmap.fill(QColor(250, 250, 252));
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(30, 40, 150, 140, QColor(247, 209, 161));
    p.fillRect(60, 70, 150, 140, QColor(208, 191, 217));
    p.setPen(QColor(40, 40, 60));
    QFont title("Sans Serif", 34, QFont::Bold);
    p.setFont(title);
    p.drawText(QRect(220, 60, 200, 60), Qt::AlignLeft | Qt::AlignVCenter, "Orvane");
    p.setFont(QFont("Sans Serif", 11));
    p.drawText(QRect(222, 120, 200, 40), Qt::AlignLeft | Qt::AlignTop, "HTML differences");
    return pixmap;
}

} // namespace

frmSplash::frmSplash(std::function<void()> loadNextForm, QWidget* parent)
    : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      loadNextForm_(std::move(loadNextForm)), imgLogo_(new QLabel(this)), timer_(new QTimer(this)) {
    setObjectName("frmSplash");
    imgLogo_->setObjectName("imgLogo");
    imgLogo_->setPixmap(Logo());
    imgLogo_->installEventFilter(this);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(imgLogo_);
    timer_->setObjectName("Timer1");
    timer_->setInterval(kSplashMilliseconds);
    timer_->setSingleShot(false);
    connect(timer_, &QTimer::timeout, this, &frmSplash::Timer1_Timer);
}

void frmSplash::Form_Load() {
    show();
    DoEvents();
    raise();
    timer_->start();
}

void frmSplash::Timer1_Timer() {
    if (!timer_->isActive()) return; // a click and the tick must not both load the next form
    timer_->stop();
    hide();
    LoadNextForm();
    close();
    deleteLater();
}

void frmSplash::LoadNextForm() {
    try {
        loadNextForm_();
    } catch (...) {
        ReportUnexpectedError("frmSplash.LoadNextForm");
    }
}

bool frmSplash::eventFilter(QObject* watched, QEvent* event) {
    if (watched == imgLogo_ && event->type() == QEvent::MouseButtonPress) {
        Timer1_Timer();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace orvane
