#pragma once
// The program that opens a page for editing; empty means the desktop's plain-text editor.
#include <QDialog>

class QLineEdit;

namespace orvane {

class frmHTMLEditor : public QDialog {
    Q_OBJECT
  public:
    explicit frmHTMLEditor(QWidget* parent = nullptr);
    void cmdSelectHTMLEditor_Click();
    void OKButton_Click();
    QLineEdit* FileSpecBox() const { return txtHTMLEditorFileSpec; }

  private:
    QLineEdit* txtHTMLEditorFileSpec;
};

} // namespace orvane
