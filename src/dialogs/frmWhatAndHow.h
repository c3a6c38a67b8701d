#pragma once
// Before a comparison: what to compare and how to show it. No Cancel: closing by the frame
// leaves the options as they were.
#include "settings/ViewOptions.h"

#include <QDialog>

class QCheckBox;
class QRadioButton;

namespace orvane {

class frmWhatAndHow : public QDialog {
    Q_OBJECT
  public:
    // OK writes the choices into `options`.
    explicit frmWhatAndHow(cViewFileDiffsOptions& options, QWidget* parent = nullptr);
    void OKButton_Click();
    void optComparisonModes_Click(int index);
    void optOutputFormats_Click(int index);
    QRadioButton* ComparisonModeOption(int i) const { return optComparisonModes[i]; }
    QRadioButton* OutputFormatOption(int i) const { return optOutputFormats[i]; }
    QCheckBox* ShowDialogueBox() const { return chkShowDialogue; }

  private:
    void Form_Load();
    cViewFileDiffsOptions& options_;
    QRadioButton* optComparisonModes[3];
    QRadioButton* optOutputFormats[2];
    QCheckBox* chkShowDialogue;
    bool LoadingOptions = false;
};

} // namespace orvane
