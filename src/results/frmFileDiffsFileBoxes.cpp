// The two file boxes: their lists of recent inputs, drops, and the rule that results never
// stand beside a changed path.
#include "dialogs/AutoCompletePath.h"
#include "dialogs/PathCompletion.h"
#include "dialogs/frmSelectFile.h"
#include "frame/ErrorReporter.h"
#include "results/frmFileDiffs.h"
#include "settings/RecentFiles.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMimeData>
#include <QUrl>

namespace orvane {
namespace {

// A file box as completion sees it.
class FileBoxControl : public PathControl {
  public:
    explicit FileBoxControl(QComboBox& box) : box_(box) {}
    std::string Text() const override { return box_.currentText().toStdString(); }
    void SetText(const std::string& text) override {
        box_.lineEdit()->setText(QString::fromStdString(text));
    }
    void Select(long start, long length) override {
        box_.lineEdit()->setSelection(static_cast<int>(start), static_cast<int>(length));
    }

  private:
    QComboBox& box_;
};

} // namespace

QComboBox* frmFileDiffs::FileBox(Side side) const {
    return side == Side::Original ? cboOriginalFile : cboRevisedFile;
}

void frmFileDiffs::PopulateFileComboBoxesFromIniFile() {
    SuppressFileBoxEvents = true;
    try {
        for (Side side : {Side::Original, Side::Revised}) {
            QComboBox& box = *FileBox(side);
            for (const std::string& entry : ReadRecentFiles(side))
                box.addItem(QString::fromStdString(entry));
            if (box.count() == 0) box.addItem(FileBoxFiller(side));
            box.setCurrentIndex(0);
        }
    } catch (...) {
        ReportUnexpectedError("frmFileDiffs.PopulateFileComboBoxesFromIniFile");
    }
    SuppressFileBoxEvents = false;
}

// The file takes the pair at once; the box gains a new entry but is not reordered.
void frmFileDiffs::AddFilesToIni(const std::string& Original, const std::string& Revised) {
    try {
        for (Side side : {Side::Original, Side::Revised}) {
            const std::string& input = side == Side::Original ? Original : Revised;
            PushRecentFile(side, input);
            QComboBox& box = *FileBox(side);
            bool listed = false;
            for (int i = 0; i < box.count() && !listed; ++i)
                listed = SameRecentFile(box.itemText(i).toStdString(), input);
            SuppressFileBoxEvents = true;
            if (!listed) {
                box.insertItem(0, QString::fromStdString(input));
                box.setCurrentIndex(0);
            }
            const int filler = box.findText(FileBoxFiller(side), Qt::MatchFixedString);
            if (filler >= 0) box.removeItem(filler);
            SuppressFileBoxEvents = false;
        }
    } catch (...) {
        SuppressFileBoxEvents = false;
        ReportUnexpectedError("frmFileDiffs.AddFilesToIni");
    }
}

void frmFileDiffs::SelectFile(Side side) {
    try {
        frmSelectFile dialogue(side == Side::Original ? "Select Original HTML file"
                                                      : "Select Revised HTML file",
                               this);
        // The location box completes paths as the file boxes do.
        if (auto* path = dialogue.findChild<QLineEdit*>("txtPathURL")) AttachPathCompletion(*path);
        ShowModal(dialogue);
        if (dialogue.SelectedPath().empty()) return;
        FileBox(side)->setEditText(QString::fromStdString(dialogue.SelectedPath()));
        // Both commands test the Original grid.
        if (originalGrid_.TextMatrix(0, 0).empty()) ResetResultsDisplay();
    } catch (...) {
        ReportUnexpectedError(side == Side::Original
                                  ? "frmFileDiffs.mnuFileSelectOriginalFile_Click"
                                  : "frmFileDiffs.mnuFileSelectRevisedFile_Click");
    }
}

void frmFileDiffs::FileBox_Change(Side side) {
    if (SuppressFileBoxEvents) return;
    FileBoxControl control(*FileBox(side));
    modAutoCompletePath::AutoCompletePath(control);
    if (GridOf(side).TextMatrix(0, 0).empty()) ResetResultsDisplay();
}

// A file manager offers a dragged file both as a file list and as its address in text; the file
// list is what the user means then. Any other text is taken as it is.
bool frmFileDiffs::DropOnFileBox(QComboBox& box, const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    if (!urls.isEmpty() && urls.first().isLocalFile())
        box.setEditText(urls.first().toLocalFile());
    else if (data.hasText())
        box.setEditText(data.text());
    else
        return false;
    FileBox_Change(&box == cboOriginalFile ? Side::Original : Side::Revised);
    return true;
}

} // namespace orvane
