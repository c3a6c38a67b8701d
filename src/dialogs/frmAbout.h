#pragma once
#include <QDialog>
#include <string>
#include <vector>

namespace orvane {

// The program's name and version, and a button that starts the system's information tool.
class frmAbout : public QDialog {
    Q_OBJECT
  public:
    explicit frmAbout(QWidget* parent = nullptr);
    // The first information tool found on PATH, or empty.
    static std::string SystemInfoTool(const std::vector<std::string>& candidates);
};

} // namespace orvane
