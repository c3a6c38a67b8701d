#include "dialogs/frmHTMLEditor.h"

#include "frame/ErrorReporter.h"
#include "frame/KWCommon.h"
#include "frame/Prompter.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>

namespace orvane {
namespace {

constexpr const char* kNotepad = "Notepad.exe"; // stands for the desktop's text editor

} // namespace

frmHTMLEditor::frmHTMLEditor(std::string& fileSpec, QWidget* parent)
    : QDialog(parent), fileSpec_(fileSpec) {
    setObjectName("frmHTMLEditor");
    setWindowTitle("HTML Editor");
    auto* layout = new QGridLayout(this);
    auto* instructions = new QLabel("Enter the file specification for your HTML Editor "
                                    "executable.  If this is blank, Notepad will be used.",
                                    this);
    instructions->setObjectName("lblInstructions");
    instructions->setWordWrap(true);
    txtHTMLEditorFileSpec = new QLineEdit(QString::fromStdString(fileSpec_), this);
    txtHTMLEditorFileSpec->setObjectName("txtHTMLEditorFileSpec");
    txtHTMLEditorFileSpec->setToolTip("HTML Editor Specification");
    txtHTMLEditorFileSpec->setMinimumWidth(300);
    auto* select = new QPushButton(style()->standardIcon(QStyle::SP_DirOpenIcon), "", this);
    select->setObjectName("cmdSelectHTMLEditor");
    select->setToolTip("Select HTML Editor");
    auto* ok = new QPushButton("OK", this);
    ok->setObjectName("OKButton");
    ok->setDefault(true);
    auto* cancel = new QPushButton("Cancel", this);
    cancel->setObjectName("CancelButton");
    layout->addWidget(instructions, 0, 0, 1, 3);
    layout->addWidget(txtHTMLEditorFileSpec, 1, 0, 1, 2);
    layout->addWidget(select, 1, 2);
    layout->addWidget(ok, 2, 0, Qt::AlignRight);
    layout->addWidget(cancel, 2, 1, Qt::AlignLeft);
    connect(select, &QPushButton::clicked, this, &frmHTMLEditor::cmdSelectHTMLEditor_Click);
    connect(ok, &QPushButton::clicked, this, &frmHTMLEditor::OKButton_Click);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmHTMLEditor::cmdSelectHTMLEditor_Click() {
    std::string chosen;
    if (prompter().OpenFileDialog("Select HTML Editor executable", "Programs (*)", chosen))
        txtHTMLEditorFileSpec->setText(QString::fromStdString(chosen));
}

// A name that does not exist leaves the editor that was set, whatever the box says.
void frmHTMLEditor::OKButton_Click() {
    try {
        const std::string text = Trim(txtHTMLEditorFileSpec->text().toStdString());
        if (text.empty() || text == kNotepad)
            fileSpec_ = kNotepad;
        else if (FileExists(text))
            fileSpec_ = text;
        else
            prompter().MsgBox("The file does not exist. Notepad will be used.",
                              MsgIcon::Exclamation, "HTML Editor");
    } catch (...) {
        fileSpec_ = kNotepad;
    }
    accept();
}

} // namespace orvane
