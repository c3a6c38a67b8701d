#include "app/QtPrompter.h"

#include "frame/ProgramFolder.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFontDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QTimer>
#include <QUrl>
#include <cstdio>

namespace orvane {
namespace {

QMessageBox::Icon ToQt(MsgIcon icon) {
    switch (icon) {
    case MsgIcon::Critical:
        return QMessageBox::Critical;
    case MsgIcon::Question:
        return QMessageBox::Question;
    case MsgIcon::Exclamation:
        return QMessageBox::Warning;
    case MsgIcon::Information:
        return QMessageBox::Information;
    case MsgIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QString Q(const std::string& s) {
    return QString::fromStdString(s);
}

} // namespace

void QtPrompter::MsgBox(const std::string& text, MsgIcon icon, const std::string& title) {
    QMessageBox box(ToQt(icon), Q(title), Q(text), QMessageBox::Ok, QApplication::activeWindow());
    // Runs of the real program under test have no one to press OK: the box is shown and answered
    // at once, and its title goes to standard error.
    if (qEnvironmentVariableIsSet("ORVANE_ANSWER_BOXES")) {
        std::fprintf(stderr, "box: %s\n", title.c_str());
        QTimer::singleShot(0, &box, &QMessageBox::accept);
    }
    box.exec();
}

bool QtPrompter::InputBox(const std::string& prompt, const std::string& title, std::string& value) {
    bool ok = false;
    const QString text = QInputDialog::getText(QApplication::activeWindow(), Q(title), Q(prompt),
                                               QLineEdit::Normal, Q(value), &ok);
    if (ok) value = text.toStdString();
    return ok;
}

bool QtPrompter::OpenFileDialog(const std::string& title, const std::string& filter,
                                std::string& path) {
    const QString chosen =
        QFileDialog::getOpenFileName(QApplication::activeWindow(), Q(title), Q(path), Q(filter));
    if (chosen.isEmpty()) return false;
    path = chosen.toStdString();
    return true;
}

bool QtPrompter::SaveFileDialog(const std::string& title, const std::string& filter,
                                std::string& path) {
    const QString chosen =
        QFileDialog::getSaveFileName(QApplication::activeWindow(), Q(title), Q(path), Q(filter));
    if (chosen.isEmpty()) return false;
    path = chosen.toStdString();
    return true;
}

bool QtPrompter::FontDialog(const std::string& title, FontChoice& font) {
    QFont preset(Q(font.Name), font.Size);
    preset.setBold(font.Bold);
    preset.setItalic(font.Italic);
    bool ok = false;
    const QFont chosen = QFontDialog::getFont(&ok, preset, QApplication::activeWindow(), Q(title),
                                              QFontDialog::DontUseNativeDialog);
    if (!ok) return false;
    font = {chosen.family().toStdString(), chosen.pointSize(), chosen.bold(), chosen.italic()};
    return true;
}

void QtPrompter::DoEvents() {
    QCoreApplication::processEvents();
}

void QtPrompter::ShowHelp(int context) {
    const QString page = context == 7 ? "welcome.html" : "index.html";
    QDesktopServices::openUrl(QUrl::fromLocalFile(Q(gAppPath) + "help/" + page));
}

} // namespace orvane
