// Path completion typed with real keys into the main window's file boxes and into the location
// dialogue: the rest of the folder's name is proposed and selected.
#include "results/Commands.h"
#include "tests/ui/DriverFixture.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QTest>
#include <filesystem>

namespace orvane::test {
namespace {

struct Typed {
    std::string text;
    std::string selected;
};

Typed Shown(const QLineEdit& edit) {
    return {edit.text().toStdString(), edit.selectedText().toStdString()};
}

class PathCompletion : public DriverTest {
  protected:
    void SetUp() override {
        DriverTest::SetUp();
        std::filesystem::create_directory(dir.Path() + "Projects");
        dir.Write("notes.txt", "");
    }
    // The folder as a program-set text, then keys typed at its end, as a user would go on.
    Typed TypeInto(QWidget& receiver, QLineEdit& edit, const char* keys) {
        edit.setText(QString::fromStdString(dir.Path()));
        edit.end(false);
        QTest::keyClicks(&receiver, keys);
        return Shown(edit);
    }
};

TEST_F(PathCompletion, MainFileBoxesProposeTheRestOfTheFolderName) {
    for (QComboBox* box : {window->OriginalFileBox(), window->RevisedFileBox()}) {
        SCOPED_TRACE(box->objectName().toStdString());
        // Keys go where a user's go: to the combo box, which holds the focus.
        const Typed typed = TypeInto(*box, *box->lineEdit(), "Pro");
        EXPECT_EQ(typed.text, dir.Path() + "Projects/");
        EXPECT_EQ(typed.selected, "jects/");
        // Typing over the proposal proposes again; Backspace never does.
        QTest::keyClick(box, Qt::Key_J);
        EXPECT_EQ(Shown(*box->lineEdit()).text, dir.Path() + "Projects/");
        EXPECT_EQ(Shown(*box->lineEdit()).selected, "ects/");
        QTest::keyClick(box, Qt::Key_Backspace);
        QTest::keyClick(box, Qt::Key_Backspace);
        EXPECT_EQ(Shown(*box->lineEdit()).text, dir.Path() + "Pro");
        // A file that matches proposes nothing.
        EXPECT_EQ(TypeInto(*box, *box->lineEdit(), "no").text, dir.Path() + "no");
    }
}

TEST_F(PathCompletion, TheLocationDialogueProposesTheRestOfTheFolderName) {
    Typed typed;
    window->ShowModal = [&](QDialog& dialogue) {
        auto* path = dialogue.findChild<QLineEdit*>("txtPathURL");
        ASSERT_NE(path, nullptr);
        typed = TypeInto(*path, *path, "Pro");
        dialogue.reject();
    };
    window->CommandSurface().Item("mnuFileSelectOriginalFile")->trigger();
    EXPECT_EQ(typed.text, dir.Path() + "Projects/");
    EXPECT_EQ(typed.selected, "jects/");
}

} // namespace
} // namespace orvane::test
