// GoogleTest main for widget tests: one QApplication for the whole program, offscreen.
#include "results/report/WebEngineProcess.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    orvane::PrepareWebEngineProcess();
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
