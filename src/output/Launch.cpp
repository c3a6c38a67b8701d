#include "output/Launch.h"

#include "frame/ErrorReporter.h"
#include "frame/Prompter.h"
#include "output/DesktopApps.h"

#include <QDesktopServices>
#include <QProcess>
#include <QStringList>
#include <QUrl>

namespace orvane {

bool StartProgram(const std::vector<std::string>& command) {
    if (command.empty()) return false;
    QStringList args;
    for (std::size_t i = 1; i < command.size(); ++i)
        args << QString::fromStdString(command[i]);
    return QProcess::startDetached(QString::fromStdString(command[0]), args);
}

bool LoadFileInNotepad(const std::string& Path) {
    try {
        const std::string app = desktop::DefaultApplication("text/plain");
        return !app.empty() && StartProgram(desktop::CommandFor(app, Path));
    } catch (...) {
        ReportUnexpectedError("modKWCommon.LoadFileInNotepad");
        return false;
    }
}

void ShowOpenWithDialog(const std::string& Path) {
    std::string program;
    if (prompter().OpenFileDialog("Open With", "Programs (*)", program))
        StartProgram({program, Path});
}

void ShowHTMLFileInBrowser(const std::string& Target, SourceType Source) {
    try {
        if (Source == SourceType::WebAddress) {
            if (!QDesktopServices::openUrl(QUrl(QString::fromStdString(Target))))
                prompter().MsgBox("Web Page not opened", MsgIcon::None, "");
            return;
        }
        const std::string app = desktop::DefaultApplication(desktop::MimeTypeOfPath(Target));
        if (app.empty()) {
            ShowOpenWithDialog(Target);
            return;
        }
        if (!StartProgram(desktop::CommandFor(app, Target)))
            prompter().MsgBox("HTML File not opened", MsgIcon::None, "");
    } catch (...) {
        ReportUnexpectedError("modKWCommon.ShowHTMLFileInBrowser");
    }
}

} // namespace orvane
