// Renders the help window offscreen at a topic and saves it as a PNG, for the documentation:
// orvane_help_screenshot HELP_FOLDER CONTEXT OUT.png
#include "dialogs/frmHelp.h"

#include <QApplication>
#include <QPixmap>
#include <cstdio>
#include <cstdlib>

int main(int argc, char* argv[]) {
    if (argc < 4) {
        std::fprintf(stderr, "usage: %s HELP_FOLDER CONTEXT OUT.png\n", argv[0]);
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    std::string folder = argv[1];
    if (!folder.ends_with('/')) folder += '/';
    orvane::frmHelp* help = orvane::frmHelp::ShowTopic(folder, std::atoi(argv[2]));
    help->resize(760, 640);
    QApplication::processEvents();
    const bool saved = help->grab().save(argv[3]);
    delete help;
    return saved ? 0 : 1;
}
