#include "app/modDiff.h"

#include "app/frmSplash.h"
#include "compare/FileDiffEngine.h"
#include "frame/EngineLibraries.h"
#include "frame/ErrorReporter.h"
#include "frame/KWCommon.h"
#include "frame/ProgramFolder.h"
#include "frame/Prompter.h"
#include "results/frmFileDiffs.h"
#include "settings/Session.h"

#include <QApplication>
#include <QPointer>
#include <filesystem>

namespace orvane {
namespace {

void ShowMissingLibraryBox(const std::string& moduleName) {
    prompter().MsgBox("Module Name: " + moduleName +
                          "\r\n\r\nOne of the DLLs or OCXs required by Orvane is not properly "
                          "installed.\r\nPlease uninstall Orvane from Control Panel --> "
                          "Add/Remove Programs then\r\nreinstall Orvane.\r\n",
                      MsgIcon::Critical, "Problem with a required DLL/OCX");
}

QPointer<frmFileDiffs>& MainWindow() {
    static QPointer<frmFileDiffs> window;
    return window;
}

} // namespace

void Program::ShowMainWindow(const std::string& commandLine) {
    auto* window = new frmFileDiffs(*session_, *fileDiff_);
    window->setAttribute(Qt::WA_DeleteOnClose);
    MainWindow() = window;
    window->Form_Load(commandLine);
}

Program::Program() = default;

Program::~Program() {
    EndProgram();
}

bool Program::Main(const std::string& appFolder, const std::string& commandLine) {
    std::string moduleName;
    try {
        if (!OpenSession(appFolder, moduleName)) throw RuntimeError(err::CannotCreateObject);
        auto* splash = new frmSplash([this, commandLine] { ShowMainWindow(commandLine); });
        splash->Form_Load();
        return true;
    } catch (...) {
        const ErrorInfo error = CurrentErrorInfo();
        if (error.Number == err::CannotCreateObject)
            ShowMissingLibraryBox(moduleName);
        else if (error.Number != err::ObjectUnloaded)
            ReportUnexpectedError("modDiff.Main", {}, error);
        return false;
    }
}

bool Program::OpenSession(const std::string& appFolder, std::string& moduleName) {
    gAppPath = AddTrailingBackslash(appFolder);
    if (!ProbeRequiredEngines(gAppPath, moduleName)) return false;
    session_ = std::make_unique<Session>();
    RouteErrorsToReportRun(session_->ViewOptions);
    moduleName = EngineFileName(Engine::LineDiff);
    fileDiff_ = std::make_unique<FileDiffEngine>();
    gStartDir = AddTrailingBackslash(std::filesystem::current_path().string());
    return true;
}

void Program::EndProgram() {
    if (ended_) return;
    ended_ = true;
    // The window loop can end without the window's own close (the last window was hidden, or the
    // loop was quit): close it here so that the options are saved on every orderly way out.
    if (QPointer<frmFileDiffs>& window = MainWindow()) {
        window->close();
        delete window.data();
    }
    SetErrorTextSink({});
    fileDiff_.reset(); // lives in the line differ library
    session_.reset();
    FreeEngines();
}

} // namespace orvane
