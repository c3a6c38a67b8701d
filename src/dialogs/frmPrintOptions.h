#pragma once
// Print Options: which printer, which file, which lines, the orientation and the header. A fresh
// dialogue each time; no choice outlives it.
#include <QDialog>
#include <string>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;

namespace orvane {

class DiffPrintSource;

class frmPrintOptions : public QDialog {
    Q_OBJECT
  public:
    // With pdfFile empty the choice is among the system's printers; otherwise everything goes
    // into that one PDF file.
    frmPrintOptions(DiffPrintSource& source, QWidget* parent = nullptr,
                    const std::string& pdfFile = {});
    // False when the load refused (no printers): the box has been shown and there is nothing
    // to show.
    bool Loaded() const { return loaded_; }

    void cmdPrint_Click();
    void optOrientation_Click(int index);

    QComboBox* Printers() const { return cboPrinters; }
    QButtonGroup* Sides() const { return optSide; }
    QButtonGroup* Lines() const { return optWhichLines; }
    QButtonGroup* Orientations() const { return optOrientation; }

  private:
    void Form_Load();
    QWidget* MakeChoices(const char* frame, const char* title, const char* group,
                         QButtonGroup*& buttons, const QStringList& captions);
    void PrintChosen();

    DiffPrintSource& source_;
    std::string pdfFile_;
    bool loaded_ = false;
    QComboBox* cboPrinters = nullptr;
    QButtonGroup* optSide = nullptr;
    QButtonGroup* optWhichLines = nullptr;
    QButtonGroup* optOrientation = nullptr;
    QLabel* imgOrientation = nullptr;
    QCheckBox* chkPrintPageNumber = nullptr;
    QCheckBox* chkPrintDateTime = nullptr;
};

// Paper drawn as a small picture, upright or on its side, for the orientation frame.
QPixmap OrientationPicture(bool landscape);

} // namespace orvane
