#include "app/TerminationSignal.h"

#include <QApplication>
#include <QSocketNotifier>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace orvane {
namespace {

int gSignalPipe[2] = {-1, -1};

// Only async-signal-safe work here: the window loop reads the byte and does the rest.
void OnTerminate(int) {
    const char byte = 1;
    [[maybe_unused]] const ssize_t n = write(gSignalPipe[0], &byte, 1);
}

} // namespace

void CloseWindowsOnTerminationSignal() {
    if (gSignalPipe[0] >= 0) return;
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, gSignalPipe) != 0) return;
    auto* notifier = new QSocketNotifier(gSignalPipe[1], QSocketNotifier::Read, qApp);
    QObject::connect(notifier, &QSocketNotifier::activated, qApp, [] {
        char byte;
        [[maybe_unused]] const ssize_t n = read(gSignalPipe[1], &byte, 1);
        QApplication::closeAllWindows();
        QApplication::quit();
    });
    struct sigaction action = {};
    action.sa_handler = OnTerminate;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    sigaction(SIGTERM, &action, nullptr);
}

} // namespace orvane
