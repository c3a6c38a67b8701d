#include "dialogs/frmAbout.h"

#include "output/Launch.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace orvane {
namespace {

// Desktops ship different tools for the same job; the first one present is started.
const std::vector<std::string> kInfoTools = {"gnome-system-monitor", "kinfocenter", "hardinfo",
                                             "xfce4-taskmanager", "lxtask"};

} // namespace

std::string frmAbout::SystemInfoTool(const std::vector<std::string>& candidates) {
    for (const std::string& name : candidates) {
        const QString path = QStandardPaths::findExecutable(QString::fromStdString(name));
        if (!path.isEmpty()) return path.toStdString();
    }
    return {};
}

frmAbout::frmAbout(QWidget* parent) : QDialog(parent) {
    setObjectName("frmAbout");
    setWindowTitle("About Orvane");
    auto* column = new QVBoxLayout(this);
    auto* title = new QLabel("<h2>Orvane</h2>", this);
    title->setObjectName("lblTitle");
    auto* version = new QLabel("Version " ORVANE_VERSION, this);
    version->setObjectName("lblVersion");
    column->addWidget(title);
    column->addWidget(version);
    column->addWidget(new QLabel("Compares two HTML documents by source, text or aspect.", this));
    auto* buttons = new QHBoxLayout;
    auto* info = new QPushButton("&System Info...", this);
    info->setObjectName("cmdSysInfo");
    const std::string tool = SystemInfoTool(kInfoTools);
    info->setEnabled(!tool.empty());
    if (tool.empty()) info->setToolTip("No system information tool is installed.");
    auto* ok = new QPushButton("OK", this);
    ok->setObjectName("cmdOK");
    ok->setDefault(true);
    buttons->addWidget(info);
    buttons->addStretch();
    buttons->addWidget(ok);
    column->addLayout(buttons);
    connect(info, &QPushButton::clicked, this, [tool] { StartProgram({tool}); });
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
}

} // namespace orvane
