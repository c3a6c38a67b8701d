#include "dialogs/frmTestFileFormat.h"

#include "dialogs/AutoCompletePath.h"
#include "frame/ErrorReporter.h"
#include "frame/KWCommon.h"
#include "frame/Prompter.h"
#include "intake/detfile/FormatInfo.h"

#include <QDropEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace orvane {
namespace {

QLineEdit* Output(const char* name, QWidget* parent) {
    auto* box = new QLineEdit(parent);
    box->setObjectName(name);
    box->setReadOnly(true);
    return box;
}

class LineControl : public PathControl {
  public:
    explicit LineControl(QLineEdit& box) : box_(box) {}
    std::string Text() const override { return box_.text().toStdString(); }
    void SetText(const std::string& t) override { box_.setText(QString::fromStdString(t)); }
    void Select(long s, long l) override {
        box_.setSelection(static_cast<int>(s), static_cast<int>(l));
    }

  private:
    QLineEdit& box_;
};

} // namespace

frmTestFileFormat::frmTestFileFormat(QWidget* parent) : QDialog(parent) {
    setObjectName("frmTestFileFormat");
    setWindowTitle("Test File Format");
    auto* column = new QVBoxLayout(this);
    column->addWidget(new QLabel("Select a file to view the format of the file.", this));
    auto* pathRow = new QHBoxLayout;
    txtFileSpec = new QLineEdit(this);
    txtFileSpec->setObjectName("txtFileSpec");
    txtFileSpec->setMinimumWidth(360);
    txtFileSpec->installEventFilter(this);
    auto* select = new QPushButton("...", this);
    select->setObjectName("cmdSelectFile");
    auto* get = new QPushButton("Get Format", this);
    get->setObjectName("cmdGetFormatInfo");
    pathRow->addWidget(txtFileSpec);
    pathRow->addWidget(select);
    pathRow->addWidget(get);
    column->addLayout(pathRow);
    auto* form = new QFormLayout;
    txtFileFormatShortForm = Output("txtFileFormatShortForm", this);
    txtFileFormatLongForm = Output("txtFileFormatLongForm", this);
    txtRegisteredAs = Output("txtRegisteredAs", this);
    pctIcon = new QLabel(this);
    pctIcon->setObjectName("pctIcon");
    pctIcon->setFixedSize(32, 32);
    form->addRow("Format:", txtFileFormatShortForm);
    form->addRow("Description:", txtFileFormatLongForm);
    form->addRow("Registered as:", txtRegisteredAs);
    form->addRow("", pctIcon);
    column->addLayout(form);
    auto* ok = new QPushButton("OK", this);
    ok->setObjectName("cmdOK");
    ok->setDefault(true);
    column->addWidget(ok, 0, Qt::AlignRight);
    connect(select, &QPushButton::clicked, this, &frmTestFileFormat::cmdSelectFile_Click);
    connect(get, &QPushButton::clicked, this, &frmTestFileFormat::cmdGetFormatInfo_Click);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(txtFileSpec, &QLineEdit::textEdited, this, [this] {
        LineControl control(*txtFileSpec);
        modAutoCompletePath::AutoCompletePath(control);
    });
}

QLineEdit* frmTestFileFormat::Field(const char* name) const {
    return findChild<QLineEdit*>(name);
}

void frmTestFileFormat::cmdGetFormatInfo_Click() {
    const std::string path = Trim(txtFileSpec->text().toStdString());
    if (path.empty())
        prompter().MsgBox("Please select a file.", MsgIcon::Information, "Invalid File");
    else if (!FileExists(path))
        prompter().MsgBox("The file does not exist.", MsgIcon::Information, "Invalid File");
    else
        DisplayFormatInfo(path);
}

void frmTestFileFormat::cmdSelectFile_Click() {
    std::string chosen;
    if (!prompter().OpenFileDialog("Select File", "All Files (*)", chosen)) return;
    txtFileSpec->setText(QString::fromStdString(chosen));
    DisplayFormatInfo(chosen);
}

void frmTestFileFormat::DisplayFormatInfo(const std::string& path) {
    try {
        const FileFormatInfo info = GetFileFormatInfo(path);
        txtFileFormatShortForm->setText(QString::fromStdString(info.Format));
        txtFileFormatLongForm->setText(QString::fromStdString(info.Description));
        txtRegisteredAs->setText(QString::fromStdString(info.RegisteredAs));
        pctIcon->clear();
        const QIcon icon =
            QIcon::fromTheme(QString::fromStdString(info.Icon.name),
                             QIcon::fromTheme(QString::fromStdString(info.Icon.fallback)));
        if (!icon.isNull()) pctIcon->setPixmap(icon.pixmap(32, 32));
    } catch (...) {
        ReportUnexpectedError("frmFileConverters.DisplayFormatInfo");
    }
}

bool frmTestFileFormat::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtFileSpec && event->type() == QEvent::KeyPress) { // for path completion
        const QString text = static_cast<QKeyEvent*>(event)->text();
        modAutoCompletePath::KeyPress(text.size() == 1 ? text[0].unicode() : 0);
    }
    if (watched != txtFileSpec) return QDialog::eventFilter(watched, event);
    if (event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove) {
        static_cast<QDropEvent*>(event)->acceptProposedAction();
        return true;
    }
    if (event->type() == QEvent::Drop) {
        const QMimeData& data = *static_cast<QDropEvent*>(event)->mimeData();
        if (data.hasText() && !data.hasUrls())
            txtFileSpec->setText(data.text());
        else if (!data.urls().isEmpty())
            txtFileSpec->setText(data.urls().first().toLocalFile());
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace orvane
