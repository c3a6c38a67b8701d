#pragma once
// Helps the user name one input: a file on the disk or a web address.
#include "settings/ViewOptions.h"

#include <QDialog>
#include <string>

class QGroupBox;
class QLineEdit;
class QMimeData;
class QPushButton;
class QRadioButton;

namespace orvane {

class frmSelectFile : public QDialog {
    Q_OBJECT
  public:
    // `title` is the caption and the open-file dialogue's title.
    explicit frmSelectFile(const std::string& title, QWidget* parent = nullptr);
    // The trimmed choice after OK; empty otherwise.
    const std::string& SelectedPath() const { return selectedPath_; }
    // Where the choice after OK is.
    SourceType SelectedSourceType() const { return selectedSourceType_; }
    void optFileLocation_Click(int Index);
    void cmdSelectFile_Click();
    void OKButton_Click();
    void CancelButton_Click();
    bool txtPathURL_OLEDragDrop(const QMimeData& data);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Form_Load();

    std::string title_;
    std::string selectedPath_;
    SourceType selectedSourceType_ = SourceType::LocalFile;

    QRadioButton* optFileLocation[2];
    QGroupBox* fraPathURL;
    QLineEdit* txtPathURL;
    QPushButton* cmdSelectFile;
};

} // namespace orvane
