#include "app/AppPrompter.h"
#include "app/StartOptions.h"
#include "app/TerminationSignal.h"
#include "app/UnattendedRun.h"
#include "app/modDiff.h"
#include "frame/CommandLine.h"
#include "results/report/WebEngineProcess.h"

#include <QApplication>
#include <iostream>

namespace {

std::vector<std::string> ArgumentsOf(const QStringList& all) {
    std::vector<std::string> arguments;
    for (const QString& a : all.mid(1))
        arguments.push_back(a.toStdString());
    return arguments;
}

} // namespace

int main(int argc, char* argv[]) {
    // --help and --version must work without a display, so they are read before Qt starts.
    const orvane::StartDecision early = orvane::DecideStart({argv + 1, argv + argc});
    if (early.ExitNow) {
        std::cout << early.Out;
        std::cerr << early.Err;
        return early.Status;
    }
    // A report-file run is told apart before any window toolkit starts: it needs no display.
    // The shell has split the tokens already, so the first three are the three files.
    const std::vector<std::string>& tokens = early.Arguments;
    if (tokens.size() >= 3 && !tokens[0].empty() && !tokens[1].empty() && !tokens[2].empty()) {
        std::cerr << early.Err;
        QCoreApplication app(argc, argv);
        return orvane::RunUnattended(QCoreApplication::applicationDirPath().toStdString(),
                                     tokens[0], tokens[1], tokens[2]);
    }
    orvane::PrepareWebEngineProcess();
    QApplication app(argc, argv);
    QApplication::setApplicationName("Orvane");
    QApplication::setDesktopFileName("io.github.orvane.Orvane");
    orvane::SetPrompter(std::make_shared<orvane::AppPrompter>());
    orvane::CloseWindowsOnTerminationSignal();
    // Qt has taken its own options off by now.
    const orvane::StartDecision start = orvane::DecideStart(ArgumentsOf(QApplication::arguments()));
    std::cerr << start.Err;
    const std::string commandLine = orvane::JoinArgumentsAsCommandLine(start.Arguments);
    orvane::Program program;
    if (!program.Main(QApplication::applicationDirPath().toStdString(), commandLine)) return 0;
    const int status = QApplication::exec();
    program.EndProgram();
    return status;
}
