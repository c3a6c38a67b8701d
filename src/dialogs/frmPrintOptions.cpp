#include "dialogs/frmPrintOptions.h"

#include "frame/ErrorReporter.h"
#include "frame/Prompter.h"
#include "frame/RuntimeError.h"
#include "output/DiffPrint.h"
#include "output/QtPrintSurface.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace orvane {
namespace {

constexpr long kNoPrinters = static_cast<long>(0x80040001);
constexpr const char* kNoPrintersText = "There are no printers set up on your computer.\r\n"
                                        "Go to Control Panel --> Printers to add a printer.";

// The printer in use for the process: the system's default at each opening of the dialogue,
// then the one chosen at Print.
QString& CurrentPrinter() {
    static QString name;
    return name;
}

} // namespace

QPixmap OrientationPicture(bool landscape) {
    QPixmap picture(32, 32);
    picture.fill(Qt::transparent);
    QPainter p(&picture);
    const QRect paper = landscape ? QRect(2, 7, 28, 19) : QRect(7, 2, 19, 28);
    p.setPen(Qt::black);
    p.setBrush(Qt::white);
    p.drawRect(paper);
    for (int y = paper.top() + 4; y < paper.bottom() - 2; y += 4)
        p.drawLine(paper.left() + 3, y, paper.right() - 3, y);
    return picture;
}

frmPrintOptions::frmPrintOptions(DiffPrintSource& source, QWidget* parent,
                                 const std::string& pdfFile)
    : QDialog(parent), source_(source), pdfFile_(pdfFile) {
    setObjectName("frmPrintOptions");
    setWindowTitle("Print Options");
    auto* layout = new QGridLayout(this);
    auto* label = new QLabel("Printer:", this);
    label->setObjectName("lblPrinterName");
    cboPrinters = new QComboBox(this);
    cboPrinters->setObjectName("cboPrinters");
    cboPrinters->setMinimumWidth(240);
    layout->addWidget(label, 0, 0);
    layout->addWidget(cboPrinters, 0, 1, 1, 2);
    layout->addWidget(MakeChoices("Frame1", "Which File?", "optSide", optSide,
                                  {"&Original File", "&Revised File", "&Both Files"}),
                      1, 0, 1, 2);
    layout->addWidget(MakeChoices("Frame4", "Which Lines?", "optWhichLines", optWhichLines,
                                  {"All &Lines", "&Differing Lines", "&Identical Lines"}),
                      1, 2);

    auto* frame2 = MakeChoices("Frame2", "Orientation", "optOrientation", optOrientation,
                               {"P&ortrait", "L&andscape"});
    imgOrientation = new QLabel(frame2);
    imgOrientation->setObjectName("imgOrientation");
    static_cast<QVBoxLayout*>(frame2->layout())->insertWidget(0, imgOrientation);
    layout->addWidget(frame2, 2, 0, 1, 2);

    auto* frame3 = new QGroupBox("Header", this);
    frame3->setObjectName("Frame3");
    auto* headerLayout = new QVBoxLayout(frame3);
    chkPrintPageNumber = new QCheckBox("Pa&ge Numbers", frame3);
    chkPrintPageNumber->setObjectName("chkPrintPageNumber");
    chkPrintPageNumber->setChecked(true);
    chkPrintDateTime = new QCheckBox("Date/&Time", frame3);
    chkPrintDateTime->setObjectName("chkPrintDateTime");
    chkPrintDateTime->setChecked(true);
    headerLayout->addWidget(chkPrintPageNumber);
    headerLayout->addWidget(chkPrintDateTime);
    layout->addWidget(frame3, 2, 2);

    auto* print = new QPushButton("&Print", this);
    print->setObjectName("cmdPrint");
    print->setDefault(true);
    auto* cancel = new QPushButton("Cancel", this);
    cancel->setObjectName("CancelButton");
    layout->addWidget(print, 3, 1, Qt::AlignRight);
    layout->addWidget(cancel, 3, 2, Qt::AlignLeft);
    connect(print, &QPushButton::clicked, this, &frmPrintOptions::cmdPrint_Click);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(optOrientation, &QButtonGroup::idClicked, this, &frmPrintOptions::optOrientation_Click);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    Form_Load();
}

QWidget* frmPrintOptions::MakeChoices(const char* frame, const char* title, const char* group,
                                      QButtonGroup*& buttons, const QStringList& captions) {
    auto* box = new QGroupBox(title, this);
    box->setObjectName(frame);
    auto* layout = new QVBoxLayout(box);
    buttons = new QButtonGroup(box);
    for (int i = 0; i < captions.size(); ++i) {
        auto* option = new QRadioButton(captions[i], box);
        option->setObjectName(QString("%1(%2)").arg(group).arg(i));
        buttons->addButton(option, i);
        layout->addWidget(option);
    }
    return box;
}

void frmPrintOptions::Form_Load() {
    try {
        if (pdfFile_.empty()) {
            CurrentPrinter() = QPrinterInfo::defaultPrinterName();
            int defaultIndex = -1;
            for (const QString& name : QPrinterInfo::availablePrinterNames()) {
                cboPrinters->addItem(name);
                if (name == CurrentPrinter()) defaultIndex = cboPrinters->count() - 1;
            }
            if (cboPrinters->count() == 0) throw RuntimeError(kNoPrinters, kNoPrintersText);
            cboPrinters->setCurrentIndex(defaultIndex < 0 ? 0 : defaultIndex);
        } else {
            // A file, not a queue: the box names it and there is nothing to choose.
            cboPrinters->addItem(QString::fromStdString(pdfFile_));
            cboPrinters->setEnabled(false);
        }
        optOrientation->button(0)->setChecked(true);
        optOrientation_Click(0);
        optWhichLines->button(0)->setChecked(true);
        optSide->button(2)->setChecked(true);
        loaded_ = true;
    } catch (...) {
        const ErrorInfo error = CurrentErrorInfo();
        if (error.Number == kNoPrinters)
            prompter().MsgBox(error.Description, MsgIcon::Critical, "Print");
        else
            ReportUnexpectedError("frmPrintOptions.Form_Load");
    }
}

void frmPrintOptions::optOrientation_Click(int index) {
    imgOrientation->setPixmap(OrientationPicture(index == 1));
    imgOrientation->setProperty("landscape", index == 1);
}

void frmPrintOptions::PrintChosen() {
    if (pdfFile_.empty() &&
        QPrinterInfo::availablePrinterNames().contains(cboPrinters->currentText()))
        CurrentPrinter() = cboPrinters->currentText();
    QPrinter printer(QPrinter::HighResolution);
    if (pdfFile_.empty()) {
        printer.setPrinterName(CurrentPrinter());
    } else {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(QString::fromStdString(pdfFile_));
    }
    QtPrintSurface surface(printer, pdfFile_.empty() ? QtPrintSurface::Documents::OneJobEach
                                                     : QtPrintSurface::Documents::OneFile);
    const bool pageNumbers = chkPrintPageNumber->isChecked();
    const bool dateTime = chkPrintDateTime->isChecked();
    const auto lines = static_cast<WhichLines>(optWhichLines->checkedId());
    const PageOrientation orientation =
        optOrientation->checkedId() == 0 ? PageOrientation::Portrait : PageOrientation::Landscape;
    surface.SetOrientation(orientation);
    const int side = optSide->checkedId();
    modDiffPrint::PrintFileDiffs(source_, surface, side != 1, side == 1, pageNumbers, dateTime,
                                 lines);
    if (side == 2) {
        // Each file is a document of its own, and the orientation is set anew for the second.
        surface.SetOrientation(orientation);
        modDiffPrint::PrintFileDiffs(source_, surface, false, true, pageNumbers, dateTime, lines);
    }
    if (!surface.Finish()) throw RuntimeError(482, "Printer error");
}

void frmPrintOptions::cmdPrint_Click() {
    bool failed = false;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    try {
        PrintChosen();
    } catch (...) {
        failed = true;
        ReportUnexpectedError("frmPrintOptions.cmdPrint_Click");
    }
    QGuiApplication::restoreOverrideCursor();
    if (failed) return;
    accept();
    prompter().MsgBox("Printing is complete.", MsgIcon::Information, "Print");
}

} // namespace orvane
