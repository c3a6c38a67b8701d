#pragma once
// How text is taken out of a page: engine order, the internal engine's formatting, and the
// office suite's save format.
#include "settings/ExtractionOptions.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QRadioButton;

namespace orvane {

class frmTextExtractionOptions : public QDialog {
    Q_OBJECT
  public:
    // OK writes the choices into `options`.
    explicit frmTextExtractionOptions(clsExtractionOptions& options, QWidget* parent = nullptr);
    void optFormatting_Click(int index);
    void chkFixedLineWidth_Click();
    void chkFixedLineWidthWord_Click();
    void cmdOK_Click();
    QWidget* Control(const char* name) const { return findChild<QWidget*>(name); }

  private:
    void BuildEngineFrame();
    void BuildFormatFrame();
    void BuildWordFrame();
    void Form_Load();
    // The three-step check of a number box; false after its box, with the focus on it.
    bool CheckNumber(QLineEdit& box, int& value);

    clsExtractionOptions& options_;
    QRadioButton* optExtractionEngines[2];
    QRadioButton* optFormatting[2];
    QCheckBox* chkSingleLineParagraph;
    QCheckBox* chkFixedLineWidth;
    QLineEdit* txtNumChars;
    QComboBox* cboSaveAsFormats;
    QCheckBox* chkFixedLineWidthWord;
    QLineEdit* txtNumCharsWord;
};

} // namespace orvane
