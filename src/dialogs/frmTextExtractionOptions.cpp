#include "dialogs/frmTextExtractionOptions.h"

#include "frame/KWCommon.h"
#include "frame/Prompter.h"
#include "settings/ExtractionOptions.h"
#include "settings/NumericText.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace orvane {
namespace {

struct SaveFormat {
    const char* text;
    int number;
};
constexpr SaveFormat kSaveFormats[] = {{"Text Only", 2},
                                       {"Text Only with Line Breaks", 3},
                                       {"MS-DOS Text Only", 4},
                                       {"MS-DOS Text Only with Line Breaks", 5},
                                       {"Encoded Text (Unicode)", 7}};

template <typename W> W* Named(W* w, const char* name) {
    w->setObjectName(name);
    return w;
}

QLineEdit* NumberBox(const char* name, QWidget* parent) {
    auto* box = Named(new QLineEdit("79", parent), name);
    box->setMaximumWidth(60);
    return box;
}

// A number box in use takes the stored width; out of use it keeps its text, greyed and locked.
void SetNumberBox(QLineEdit& box, bool inUse, int stored) {
    box.setEnabled(inUse);
    box.setReadOnly(!inUse);
    if (inUse) box.setText(QString::number(stored));
}

} // namespace

frmTextExtractionOptions::frmTextExtractionOptions(clsExtractionOptions& options, QWidget* parent)
    : QDialog(parent), options_(options) {
    setObjectName("frmTextExtractionOptions");
    setWindowTitle("Text Extraction Options");
    new QVBoxLayout(this);
    BuildEngineFrame();
    BuildFormatFrame();
    BuildWordFrame();
    auto* buttons = new QHBoxLayout;
    auto* ok = Named(new QPushButton("OK", this), "cmdOK");
    auto* cancel = Named(new QPushButton("Cancel", this), "cmdCancel");
    ok->setDefault(true);
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    static_cast<QVBoxLayout*>(layout())->addLayout(buttons);
    connect(ok, &QPushButton::clicked, this, &frmTextExtractionOptions::cmdOK_Click);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    Form_Load();
}

void frmTextExtractionOptions::BuildEngineFrame() {
    auto* frame = Named(new QGroupBox("Text Extraction Engine", this), "Frame1");
    auto* column = new QVBoxLayout(frame);
    auto* group = new QButtonGroup(frame);
    const char* texts[] = {"Use Internal engine first.  Use MS Word only when Internal fails.",
                           "Use MS Word first.  Use Internal engine only when MS Word fails."};
    for (int i = 0; i < 2; ++i) {
        optExtractionEngines[i] = new QRadioButton(texts[i], frame);
        optExtractionEngines[i]->setObjectName(QString("optExtractionEngines(%1)").arg(i));
        group->addButton(optExtractionEngines[i]);
        column->addWidget(optExtractionEngines[i]);
    }
    layout()->addWidget(frame);
}

void frmTextExtractionOptions::BuildFormatFrame() {
    auto* frame = Named(new QGroupBox("Internal Engine Preferences", this), "frmFormat");
    auto* grid = new QGridLayout(frame);
    auto* group = new QButtonGroup(frame);
    const char* texts[] = {"Retain Original Formatting", "Custom Formatting"};
    for (int i = 0; i < 2; ++i) {
        optFormatting[i] = new QRadioButton(texts[i], frame);
        optFormatting[i]->setObjectName(QString("optFormatting(%1)").arg(i));
        group->addButton(optFormatting[i]);
        grid->addWidget(optFormatting[i], i, 0, 1, 3);
        connect(optFormatting[i], &QRadioButton::clicked, this,
                [this, i] { optFormatting_Click(i); });
    }
    chkSingleLineParagraph =
        Named(new QCheckBox("Output Paragraph on a Single Line", frame), "chkSingleLineParagraph");
    chkFixedLineWidth = Named(new QCheckBox("Fixed Line Width", frame), "chkFixedLineWidth");
    txtNumChars = NumberBox("txtNumChars", frame);
    grid->setColumnMinimumWidth(0, 20);
    grid->addWidget(chkSingleLineParagraph, 2, 1, 1, 2);
    grid->addWidget(chkFixedLineWidth, 3, 1);
    grid->addWidget(Named(new QLabel("Number of Chars:", frame), "lblNumChars"), 3, 2,
                    Qt::AlignRight);
    grid->addWidget(txtNumChars, 3, 3);
    connect(chkFixedLineWidth, &QCheckBox::clicked, this,
            &frmTextExtractionOptions::chkFixedLineWidth_Click);
    layout()->addWidget(frame);
}

void frmTextExtractionOptions::BuildWordFrame() {
    auto* frame = Named(new QGroupBox("MS Word Preferences", this), "Frame2");
    auto* grid = new QGridLayout(frame);
    grid->addWidget(Named(new QLabel("'Save As' Text Format:", frame), "Label2"), 0, 0, 1, 3);
    cboSaveAsFormats = Named(new QComboBox(frame), "cboSaveAsFormats");
    grid->addWidget(cboSaveAsFormats, 1, 0, 1, 2);
    chkFixedLineWidthWord =
        Named(new QCheckBox("Fixed Line Width", frame), "chkFixedLineWidthWord");
    txtNumCharsWord = NumberBox("txtNumCharsWord", frame);
    grid->addWidget(chkFixedLineWidthWord, 2, 0);
    grid->addWidget(Named(new QLabel("Number of Chars:", frame), "Label1"), 2, 1, Qt::AlignRight);
    grid->addWidget(txtNumCharsWord, 2, 2);
    connect(chkFixedLineWidthWord, &QCheckBox::clicked, this,
            &frmTextExtractionOptions::chkFixedLineWidthWord_Click);
    layout()->addWidget(frame);
}

void frmTextExtractionOptions::Form_Load() {
    const clsExtractionOptions& o = options_;
    for (const SaveFormat& f : kSaveFormats)
        cboSaveAsFormats->addItem(f.text, f.number);
    cboSaveAsFormats->setCurrentIndex(cboSaveAsFormats->findData(o.MSWordSaveAsFormat));
    optExtractionEngines[o.EnginePreference == 0 ? 0 : 1]->setChecked(true);
    const int formatting = o.OriginalFormat ? 0 : 1;
    optFormatting[formatting]->setChecked(true);
    optFormatting_Click(formatting);
    chkSingleLineParagraph->setChecked(o.SingleLineParagraph);
    chkFixedLineWidth->setChecked(o.LimitLineLength);
    SetNumberBox(*txtNumChars, o.LimitLineLength, o.MaxNumCharsPerLine);
    if (!o.LimitLineLength) txtNumChars->clear();
    chkFixedLineWidthWord->setChecked(o.MSWordLimitLineLength);
    SetNumberBox(*txtNumCharsWord, o.MSWordLimitLineLength, o.MSWordMaxNumCharsPerLine);
    if (!o.MSWordLimitLineLength) txtNumCharsWord->clear();
}

// Custom Formatting starts from two empty check boxes, whatever was stored.
void frmTextExtractionOptions::optFormatting_Click(int index) {
    for (QCheckBox* box : {chkSingleLineParagraph, chkFixedLineWidth}) {
        box->setEnabled(index == 1);
        box->setChecked(false);
    }
}

void frmTextExtractionOptions::chkFixedLineWidth_Click() {
    SetNumberBox(*txtNumChars, chkFixedLineWidth->isChecked(), options_.MaxNumCharsPerLine);
}

void frmTextExtractionOptions::chkFixedLineWidthWord_Click() {
    SetNumberBox(*txtNumCharsWord, chkFixedLineWidthWord->isChecked(),
                 options_.MSWordMaxNumCharsPerLine);
}

bool frmTextExtractionOptions::CheckNumber(QLineEdit& box, int& value) {
    const std::string text = Trim(box.text().toStdString());
    const char* problem = nullptr;
    if (text.empty())
        problem = "Please enter a number of characters.";
    else if (!IsNumeric(text))
        problem = "Please enter a numeric value.";
    else if ((value = ToLongRounded(text)) < 1)
        problem = "You must have at least one character per line.";
    if (!problem) return true;
    prompter().MsgBox(problem, MsgIcon::Information, "Invalid Number of Chars");
    box.setFocus();
    return false;
}

void frmTextExtractionOptions::cmdOK_Click() {
    int width = 0, wordWidth = 0;
    try {
        if (chkFixedLineWidth->isChecked() && !CheckNumber(*txtNumChars, width)) return;
        if (chkFixedLineWidthWord->isChecked() && !CheckNumber(*txtNumCharsWord, wordWidth)) return;
    } catch (...) { // a number beyond 32 bits
        prompter().MsgBox("You must have at least one character per line.", MsgIcon::Information,
                          "Invalid Number of Chars");
        return;
    }
    clsExtractionOptions& o = options_;
    o.EnginePreference = optExtractionEngines[0]->isChecked() ? 0 : 1;
    o.OriginalFormat = optFormatting[0]->isChecked();
    if (o.OriginalFormat) {
        o.SingleLineParagraph = false;
        o.LimitLineLength = false;
    } else {
        o.SingleLineParagraph = chkSingleLineParagraph->isChecked();
        o.LimitLineLength = chkFixedLineWidth->isChecked();
        if (o.LimitLineLength) o.MaxNumCharsPerLine = width;
    }
    o.MSWordLimitLineLength = chkFixedLineWidthWord->isChecked();
    if (o.MSWordLimitLineLength) o.MSWordMaxNumCharsPerLine = wordWidth;
    if (cboSaveAsFormats->currentIndex() >= 0)
        o.MSWordSaveAsFormat = cboSaveAsFormats->currentData().toInt();
    accept();
}

} // namespace orvane
