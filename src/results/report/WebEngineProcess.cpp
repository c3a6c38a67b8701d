#include "results/report/WebEngineProcess.h"

#include <QCoreApplication>
#include <QtGlobal>
#include <unistd.h>

namespace orvane {

void PrepareWebEngineProcess() {
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    if (::geteuid() == 0) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    // No GPU is needed to show a report; software paths also work offscreen and under Xvfb.
    if (qEnvironmentVariableIsEmpty("QTWEBENGINE_CHROMIUM_FLAGS"))
        qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--disable-gpu --disable-background-networking");
}

} // namespace orvane
