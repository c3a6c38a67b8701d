#include "dialogs/frmSelectFile.h"

#include "frame/ErrorReporter.h"
#include "frame/KWCommon.h"
#include "frame/Prompter.h"

#include <QDropEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QUrl>
#include <QVBoxLayout>

namespace orvane {

namespace {

constexpr int kLocalFile = 0;
constexpr const char* kAddressStart = "http://";
constexpr const char* kWebPagesFilter = "Web Pages (*.html *.htm)";

QString Q(const std::string& s) {
    return QString::fromStdString(s);
}

QPushButton* Button(const char* name, const char* text, QWidget* parent) {
    auto* button = new QPushButton(text, parent);
    button->setObjectName(name);
    return button;
}

// A refused text is told in a box. Whether a local file exists is the driver's question, and any
// scheme passes, whatever the frame's caption asks for.
bool AcceptableText(const std::string& text, bool local) {
    const char* problem = nullptr;
    if (local) {
        if (text.empty()) problem = "Please enter the path to the HTML file.";
    } else if (text.empty() || StringsAreEqualCompare(text, kAddressStart, 1)) {
        problem = "Please enter a Web Address.";
    } else if (!IsWebAddress(text)) {
        problem = "The Web Address is not in a valid format.";
    }
    if (problem)
        prompter().MsgBox(problem, MsgIcon::Exclamation, local ? "Invalid Path" : "Invalid URL");
    return problem == nullptr;
}

} // namespace

frmSelectFile::frmSelectFile(const std::string& title, QWidget* parent)
    : QDialog(parent), title_(title) {
    setObjectName("frmSelectFile");
    auto* where = new QGroupBox("Where is the file located?", this);
    where->setObjectName("fraFileLocation");
    auto* whereLayout = new QVBoxLayout(where);
    const char* const kLocations[] = {"HTML file is on my hard drive",
                                      "Web Page is on the Internet"};
    for (int i = 0; i < 2; ++i) {
        optFileLocation[i] = new QRadioButton(kLocations[i], where);
        optFileLocation[i]->setObjectName(QString("optFileLocation(%1)").arg(i));
        whereLayout->addWidget(optFileLocation[i]);
    }
    fraPathURL = new QGroupBox("File Path", this);
    fraPathURL->setObjectName("fraPathURL");
    auto* pathLayout = new QHBoxLayout(fraPathURL);
    txtPathURL = new QLineEdit(fraPathURL);
    txtPathURL->setObjectName("txtPathURL");
    txtPathURL->setMinimumWidth(360);
    txtPathURL->installEventFilter(this);
    cmdSelectFile = Button("cmdSelectFile", "...", fraPathURL);
    cmdSelectFile->setToolTip("Press button to select HTML file.");
    pathLayout->addWidget(txtPathURL);
    pathLayout->addWidget(cmdSelectFile);
    QPushButton* ok = Button("OKButton", "OK", this);
    QPushButton* cancel = Button("CancelButton", "Cancel", this);
    ok->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(where);
    layout->addWidget(fraPathURL);
    layout->addLayout(buttons);
    for (int i = 0; i < 2; ++i)
        connect(optFileLocation[i], &QRadioButton::toggled, this, [this, i](bool on) {
            if (on) optFileLocation_Click(i);
        });
    connect(cmdSelectFile, &QPushButton::clicked, this, &frmSelectFile::cmdSelectFile_Click);
    connect(ok, &QPushButton::clicked, this, &frmSelectFile::OKButton_Click);
    connect(cancel, &QPushButton::clicked, this, &frmSelectFile::CancelButton_Click);
    Form_Load();
}

void frmSelectFile::Form_Load() {
    setWindowTitle(Q(title_));
    optFileLocation[kLocalFile]->setChecked(true);
}

void frmSelectFile::optFileLocation_Click(int Index) {
    if (Index == kLocalFile) {
        fraPathURL->setTitle("File Path");
        cmdSelectFile->setEnabled(true);
        txtPathURL->clear();
        return;
    }
    fraPathURL->setTitle("Address - (Must begin with HTTP://)");
    cmdSelectFile->setEnabled(false);
    txtPathURL->setText(kAddressStart);
    txtPathURL->setCursorPosition(static_cast<int>(txtPathURL->text().size()));
    txtPathURL->setFocus();
}

void frmSelectFile::cmdSelectFile_Click() {
    try {
        std::string chosen; // no name: the dialogue opens in the current folder
        if (prompter().OpenFileDialog(title_, kWebPagesFilter, chosen))
            txtPathURL->setText(Q(chosen));
    } catch (...) {
        if (CurrentErrorInfo().Number != err::CancelSelected)
            ReportUnexpectedError("frmSelectFile.cmdSelectFile_Click");
    }
}

void frmSelectFile::OKButton_Click() {
    const std::string text = Trim(txtPathURL->text().toStdString());
    const bool local = optFileLocation[kLocalFile]->isChecked();
    if (!AcceptableText(text, local)) return;
    selectedSourceType_ = local ? SourceType::LocalFile : SourceType::WebAddress;
    selectedPath_ = text;
    accept();
}

void frmSelectFile::CancelButton_Click() {
    reject();
}

// A file manager offers a dragged file both as a file list and as its address in text; the file
// is what the user means then, as on the main window's file boxes. Any other text is taken as
// it is.
bool frmSelectFile::txtPathURL_OLEDragDrop(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    if (!urls.isEmpty() && urls.first().isLocalFile())
        txtPathURL->setText(urls.first().toLocalFile());
    else if (data.hasText())
        txtPathURL->setText(data.text());
    else
        return false;
    return true;
}

bool frmSelectFile::eventFilter(QObject* watched, QEvent* event) {
    if (watched != txtPathURL) return QDialog::eventFilter(watched, event);
    const QEvent::Type type = event->type();
    if (type == QEvent::DragEnter || type == QEvent::DragMove) {
        auto* e = static_cast<QDropEvent*>(event);
        if (e->mimeData()->hasText() || e->mimeData()->hasUrls()) e->acceptProposedAction();
        return true;
    }
    if (type == QEvent::Drop) {
        auto* e = static_cast<QDropEvent*>(event);
        if (txtPathURL_OLEDragDrop(*e->mimeData())) e->acceptProposedAction();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace orvane
