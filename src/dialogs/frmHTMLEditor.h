#pragma once
// The program that opens a page for editing; empty means the desktop's plain-text editor.
#include <QDialog>
#include <string>

class QLineEdit;

namespace orvane {

class frmHTMLEditor : public QDialog {
    Q_OBJECT
  public:
    // OK writes the choice into `fileSpec`.
    explicit frmHTMLEditor(std::string& fileSpec, QWidget* parent = nullptr);
    void cmdSelectHTMLEditor_Click();
    void OKButton_Click();
    QLineEdit* FileSpecBox() const { return txtHTMLEditorFileSpec; }

  private:
    std::string& fileSpec_;
    QLineEdit* txtHTMLEditorFileSpec;
};

} // namespace orvane
