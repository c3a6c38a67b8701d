#include "results/RunGate.h"

#include "intake/download/Download.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <QWidget>
#include <QWindow>

namespace orvane {
namespace {

bool IsUserInput(QEvent::Type type) {
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::InputMethod:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::NativeGesture:
        return true;
    default:
        return false;
    }
}

bool IsEscape(const QEvent* event) {
    return (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride) &&
           static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Escape;
}

} // namespace

RunGate::RunGate(QWidget& window) : QObject(&window), window_(window) {
    // On the application, not the window: input reaches the focused child first, and Esc must
    // work wherever the focus is.
    QApplication::instance()->installEventFilter(this);
}

bool RunGate::CloseWhenIdle() {
    if (!Busy()) return false;
    closePending_ = true;
    return true;
}

RunGate::Hold::Hold(RunGate& gate) : gate_(gate) {
    ++gate_.depth_;
}

RunGate::Hold::~Hold() {
    if (--gate_.depth_ > 0 || !gate_.closePending_) return;
    gate_.closePending_ = false;
    // Posted, so that the run's callers have unwound before the window goes.
    QTimer::singleShot(0, &gate_.window_, [window = &gate_.window_] { window->close(); });
}

// The window itself and popups opened from it (menus, a file box's list); never a dialogue, which
// may be the run asking the user something.
bool RunGate::InWindow(QObject* target) const {
    QWidget* top = nullptr;
    if (auto* widget = qobject_cast<QWidget*>(target))
        top = widget->window();
    else if (auto* window = qobject_cast<QWindow*>(target))
        return window == window_.windowHandle();
    while (top && top != &window_ && top->windowType() == Qt::Popup && top->parentWidget())
        top = top->parentWidget()->window();
    return top == &window_;
}

bool RunGate::eventFilter(QObject* watched, QEvent* event) {
    if (IsEscape(event) && DownloadInProgress()) {
        if (event->type() == QEvent::KeyPress) CancelDownload();
        event->accept(); // an override taken: no shortcut fires on this key
        return true;
    }
    if (!Busy() || !IsUserInput(event->type()) || !InWindow(watched)) return false;
    if (event->type() == QEvent::ShortcutOverride) event->accept();
    return true;
}

} // namespace orvane
