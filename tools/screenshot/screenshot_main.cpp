// Renders the main window offscreen after comparing two files and saves it as a PNG, for the
// documentation: orvane_screenshot ORIGINAL REVISED OUT.png [WIDTH HEIGHT [visual]]
// With "visual" the window shows the merged report of the visual aspect instead of the grids.
#include "compare/FileDiffEngine.h"
#include "frame/EngineLibraries.h"
#include "frame/KWCommon.h"
#include "frame/ProgramFolder.h"
#include "results/frmFileDiffs.h"
#include "results/report/WebEngineProcess.h"
#include "settings/ExtractionOptions.h"
#include "settings/Session.h"
#include "settings/ViewOptions.h"

#include <QApplication>
#include <QComboBox>
#include <QPixmap>
#include <QThread>
#include <cstdio>
#include <string>

int main(int argc, char* argv[]) {
    if (argc < 4) {
        std::fprintf(stderr, "usage: %s ORIGINAL REVISED OUT.png [WIDTH HEIGHT]\n", argv[0]);
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    orvane::PrepareWebEngineProcess();
    QApplication app(argc, argv);
    const bool visual = argc >= 7 && std::string(argv[6]) == "visual";
    using namespace orvane;
    gAppPath = AddTrailingBackslash(QApplication::applicationDirPath().toStdString());
    Session session;
    FileDiffEngine fileDiff;
    frmFileDiffs window(session, fileDiff);
    window.Form_Load("");
    window.show();
    session.ViewOptions.OutputFormat = visual ? OutputFormat::OneWindow : OutputFormat::SideBySide;
    if (visual) session.ViewOptions.ComparisonMode = ComparisonMode::Visual;
    if (argc >= 6) window.resize(std::atoi(argv[4]), std::atoi(argv[5]));
    QApplication::processEvents();
    // Drag the splitter to the middle, as a user with a wide window would.
    const Region& handle = window.Regions().Splitter;
    const float middle =
        (window.Regions().grdRevisedFile.Left + window.Regions().grdRevisedFile.Width +
         window.Regions().grdOriginalFile.Left) /
        2;
    window.Splitter_MouseDown(1, 0);
    window.Splitter_MouseUp(middle - handle.Left);
    window.OriginalFileBox()->setEditText(argv[1]);
    window.RevisedFileBox()->setEditText(argv[2]);
    window.CompareFiles(true);
    // The report paints a moment after it has loaded.
    for (int i = 0; i < 40; ++i) {
        QApplication::processEvents();
        QThread::msleep(25);
    }
    const bool saved = window.grab().save(argv[3]);
    window.hide();
    return saved ? 0 : 1;
}
