#pragma once
// Helps the user name one input: a file on the disk or a web address. Talks with its caller
// through the three globals below.
#include "settings/ViewOptions.h"

#include <QDialog>
#include <string>

class QGroupBox;
class QLineEdit;
class QMimeData;
class QPushButton;
class QRadioButton;

namespace orvane {

extern std::string gSelectFileTitle;   // set by the caller: caption and open-file title
extern std::string gSelectedPath;      // cleared by the caller; the trimmed choice after OK
extern SourceType gSelectedSourceType; // kept, read by nobody

class frmSelectFile : public QDialog {
    Q_OBJECT
  public:
    explicit frmSelectFile(QWidget* parent = nullptr);
    void optFileLocation_Click(int Index);
    void cmdSelectFile_Click();
    void OKButton_Click();
    void CancelButton_Click();
    bool txtPathURL_OLEDragDrop(const QMimeData& data);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Form_Load();

    QRadioButton* optFileLocation[2];
    QGroupBox* fraPathURL;
    QLineEdit* txtPathURL;
    QPushButton* cmdSelectFile;
};

} // namespace orvane
