// report_print_bench REPORT.html OUT.pdf: the time the report view takes to lay a report out as
// PDF, as Print and Print to PDF do; pages and the process tree's memory are read by the caller
// (report_print_bench.sh), beside cupsfilter's text-to-PDF of the same words as the peer.
#include "results/report/ReportView.h"
#include "results/report/WebEngineProcess.h"

#include <QApplication>
#include <QElapsedTimer>
#include <cstdio>

int main(int argc, char* argv[]) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s REPORT.html OUT.pdf\n", argv[0]);
        return 2;
    }
    orvane::PrepareWebEngineProcess();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    orvane::ReportView view;
    view.resize(1000, 800);
    view.show();
    QElapsedTimer clock;
    clock.start();
    if (!view.ShowReport(argv[1], false)) return 1;
    const qint64 loaded = clock.elapsed();
    if (!view.PrintToPdf(argv[2])) return 1;
    std::printf("load %.2f s, PDF %.2f s\n", loaded / 1000.0, (clock.elapsed() - loaded) / 1000.0);
    return 0;
}
