#include "app/QtPrompter.h"
#include "app/modDiff.h"
#include "frame/CommandLine.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QApplication::setApplicationName("Orvane");
    orvane::SetPrompter(std::make_shared<orvane::QtPrompter>());
    std::vector<std::string> arguments;
    for (const QString& a : QApplication::arguments().mid(1))
        arguments.push_back(a.toStdString());
    const std::string commandLine = orvane::JoinArgumentsAsCommandLine(arguments);
    orvane::Program program;
    if (!program.Main(QApplication::applicationDirPath().toStdString(), commandLine)) return 0;
    const int status = QApplication::exec();
    program.EndProgram();
    return status;
}
