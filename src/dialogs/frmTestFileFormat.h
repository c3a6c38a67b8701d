#pragma once
// A support tool: what format the program finds a file to be, as a comparison would.
#include <QDialog>

class QLabel;
class QLineEdit;

namespace orvane {

class frmTestFileFormat : public QDialog {
    Q_OBJECT
  public:
    explicit frmTestFileFormat(QWidget* parent = nullptr);
    void cmdGetFormatInfo_Click();
    void cmdSelectFile_Click();
    void DisplayFormatInfo(const std::string& path);
    QLineEdit* Field(const char* name) const;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QLineEdit* txtFileSpec;
    QLineEdit* txtFileFormatShortForm;
    QLineEdit* txtFileFormatLongForm;
    QLineEdit* txtRegisteredAs;
    QLabel* pctIcon;
};

} // namespace orvane
