#include "results/GridPrinting.h"

#include "dialogs/frmPrintOptions.h"
#include "frame/Prompter.h"
#include "output/DiffPrint.h"
#include "results/FlexGridView.h"
#include "results/frmFileDiffs.h"

#include <QComboBox>
#include <QDateTime>
#include <QGuiApplication>
#include <QLocale>

namespace orvane {
namespace {

class PrintableFlexGrid : public PrintableGrid {
  public:
    explicit PrintableFlexGrid(FlexGrid& grid) : grid_(grid) {}
    long Rows() const override { return grid_.Rows(); }
    long Row() const override { return grid_.Row(); }
    int Col() const override { return 0; } // one column: nothing to remember
    void SetRow(long row) override { grid_.SetRow(row); }
    void SetCol(int) override {}
    void SetRowSel(long row) override { grid_.SetRowSel(row); }
    std::string Text() const override {
        return DecodeCellText(grid_.Text(), grid_.Encoding()).toStdString();
    }
    unsigned long CellBackColor() const override { return grid_.CellBackColor(); }

  private:
    FlexGrid& grid_;
};

class WindowPrintSource : public DiffPrintSource {
  public:
    explicit WindowPrintSource(frmFileDiffs& window)
        : window_(window), original_(window.GridView(Side::Original)->Grid()),
          revised_(window.GridView(Side::Revised)->Grid()) {}
    PrintableGrid& Grid(bool original) override { return original ? original_ : revised_; }
    std::string FileBoxText(bool original) const override {
        return (original ? window_.OriginalFileBox() : window_.RevisedFileBox())
            ->currentText()
            .toStdString();
    }
    std::string GeneralDateNow() const override {
        return QLocale::system()
            .toString(QDateTime::currentDateTime(), QLocale::ShortFormat)
            .toStdString();
    }
    void SetHourglass(bool busy) override {
        if (busy)
            QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        else
            QGuiApplication::restoreOverrideCursor();
    }

  private:
    frmFileDiffs& window_;
    PrintableFlexGrid original_, revised_;
};

} // namespace

void PrintGrids(frmFileDiffs& window, const std::string& pdfFile) {
    WindowPrintSource source(window);
    frmPrintOptions dialogue(source, &window, pdfFile);
    if (dialogue.Loaded()) window.ShowModal(dialogue);
}

void PrintGridsToPdf(frmFileDiffs& window) {
    std::string file;
    if (!prompter().SaveFileDialog("Print to PDF", "PDF files (*.pdf)", file)) return;
    PrintGrids(window, file);
}

} // namespace orvane
