// The dialogue that names one input: its controls, its two modes and what OK lets through.
#include "dialogs/frmSelectFile.h"
#include "frame/RuntimeError.h"
#include "support/RecordingPrompter.h"

#include <QApplication>
#include <QDropEvent>
#include <QGroupBox>
#include <QImage>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QUrl>
#include <gtest/gtest.h>
#include <optional>

namespace orvane::test {
namespace {

class SelectFileTest : public ::testing::Test {
  protected:
    void SetUp() override { form = std::make_unique<frmSelectFile>("Select Original HTML file"); }
    template <class T> T* Control(const char* name) {
        T* control = form->findChild<T*>(name);
        EXPECT_NE(control, nullptr) << name;
        return control;
    }
    QRadioButton* Location(int i) {
        return Control<QRadioButton>(i == 0 ? "optFileLocation(0)" : "optFileLocation(1)");
    }
    QLineEdit* Text() { return Control<QLineEdit>("txtPathURL"); }
    QGroupBox* PathFrame() { return Control<QGroupBox>("fraPathURL"); }
    QPushButton* Browse() { return Control<QPushButton>("cmdSelectFile"); }
    void PressOK() { Control<QPushButton>("OKButton")->click(); }

    ScopedRecordingPrompter prompter;
    std::unique_ptr<frmSelectFile> form;
};

TEST_F(SelectFileTest, OpensOnTheHardDriveChoice) {
    EXPECT_EQ(form->windowTitle(), "Select Original HTML file");
    EXPECT_EQ(Control<QGroupBox>("fraFileLocation")->title(), "Where is the file located?");
    EXPECT_EQ(Location(0)->text(), "HTML file is on my hard drive");
    EXPECT_EQ(Location(1)->text(), "Web Page is on the Internet");
    EXPECT_TRUE(Location(0)->isChecked());
    EXPECT_EQ(PathFrame()->title(), "File Path");
    EXPECT_TRUE(Browse()->isEnabled());
    EXPECT_EQ(Browse()->toolTip(), "Press button to select HTML file.");
    EXPECT_NE(Control<QPushButton>("CancelButton"), nullptr);
}

TEST_F(SelectFileTest, InternetChoiceStartsAnAddressAndHardDriveChoiceEmptiesIt) {
    form->show();
    QApplication::setActiveWindow(form.get());
    Location(1)->click();
    EXPECT_EQ(PathFrame()->title(), "Address - (Must begin with HTTP://)");
    EXPECT_FALSE(Browse()->isEnabled());
    EXPECT_EQ(Text()->text(), "http://");
    EXPECT_EQ(Text()->cursorPosition(), 7);
    EXPECT_TRUE(Text()->hasFocus());
    Text()->setText("http://example.com/");
    Location(0)->click();
    EXPECT_EQ(PathFrame()->title(), "File Path");
    EXPECT_TRUE(Browse()->isEnabled());
    EXPECT_EQ(Text()->text(), "");
}

struct OkCase {
    int location;
    const char* text;
    const char* title; // of the refusal; nullptr when OK closes the dialogue
    const char* message;
    const char* selected;
    std::optional<SourceType> sourceType; // of an accepted text
};

TEST_F(SelectFileTest, OkRefusesOrHandsBackTheTrimmedText) {
    const OkCase cases[] = {
        {0, "", "Invalid Path", "Please enter the path to the HTML file.", "", {}},
        {0, "   ", "Invalid Path", "Please enter the path to the HTML file.", "", {}},
        // Existence is the driver's question.
        {0, "  /no/such/file.html ", nullptr, nullptr, "/no/such/file.html", SourceType::LocalFile},
        {1, "http://", "Invalid URL", "Please enter a Web Address.", "", {}},
        {1, " HTTP:// ", "Invalid URL", "Please enter a Web Address.", "", {}},
        {1, "", "Invalid URL", "Please enter a Web Address.", "", {}},
        {1, "www.example.com", "Invalid URL", "The Web Address is not in a valid format.", "", {}},
        {1, " https://example.com/a.html ", nullptr, nullptr, "https://example.com/a.html",
         SourceType::WebAddress},
        {1, "ftp://example.com/a.html", nullptr, nullptr, "ftp://example.com/a.html",
         SourceType::WebAddress},
    };
    for (const OkCase& c : cases) {
        SCOPED_TRACE(testing::Message() << c.location << " '" << c.text << "'");
        SetUp();
        prompter->boxes.clear();
        Location(c.location)->click();
        Text()->setText(c.text);
        PressOK();
        EXPECT_EQ(form->SelectedPath(), c.selected);
        if (c.sourceType) {
            EXPECT_EQ(form->SelectedSourceType(), *c.sourceType);
        }
        if (c.title) {
            ASSERT_EQ(prompter->boxes.size(), 1u);
            EXPECT_EQ(prompter->boxes[0].title, c.title);
            EXPECT_EQ(prompter->boxes[0].text, c.message);
            EXPECT_EQ(prompter->boxes[0].icon, MsgIcon::Exclamation);
            EXPECT_EQ(form->result(), QDialog::Rejected); // still open
        } else {
            EXPECT_TRUE(prompter->boxes.empty());
            EXPECT_EQ(form->result(), QDialog::Accepted);
        }
    }
}

TEST_F(SelectFileTest, CancelLeavesTheSelectionEmpty) {
    Text()->setText("/some/file.html");
    Control<QPushButton>("CancelButton")->click();
    EXPECT_EQ(form->result(), QDialog::Rejected);
    EXPECT_EQ(form->SelectedPath(), "");
}

TEST_F(SelectFileTest, BrowsedFileFillsTheBoxAndCancelKeepsIt) {
    Text()->setText("typed.html");
    Browse()->click();
    EXPECT_EQ(Text()->text(), "typed.html");
    prompter->files.push_back("/home/user/page one.html");
    Browse()->click();
    EXPECT_EQ(Text()->text(), "/home/user/page one.html");
}

class FailingOpenDialog : public RecordingPrompter {
  public:
    bool OpenFileDialog(const std::string&, const std::string&, std::string&) override {
        throw RuntimeError(number);
    }
    long number = err::PathNotFound;
};

TEST_F(SelectFileTest, FailingOpenDialogueIsReportedUnlessCancelled) {
    auto failing = std::make_shared<FailingOpenDialog>();
    const auto previous = SetPrompter(failing);
    Text()->setText("kept.html");
    Browse()->click();
    failing->number = err::CancelSelected;
    Browse()->click();
    SetPrompter(previous);
    ASSERT_EQ(failing->boxes.size(), 1u);
    EXPECT_EQ(failing->boxes[0].title, "Unexpected Error in frmSelectFile.cmdSelectFile_Click");
    EXPECT_EQ(Text()->text(), "kept.html");
}

// Without a drag in progress the application does not deliver a drop, so the event goes straight
// to the form's filter on the text box.
bool Drop(frmSelectFile& form, QWidget* on, QMimeData& data) {
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    drop.ignore();
    static_cast<QObject&>(form).eventFilter(on, &drop);
    return drop.isAccepted();
}

TEST_F(SelectFileTest, DropReplacesTheTextWithTheFileOrTheDroppedText) {
    Text()->setText("before");
    QMimeData address;
    address.setText("http://example.com/dropped.html");
    address.setUrls({QUrl("http://example.com/dropped.html")});
    EXPECT_TRUE(Drop(*form, Text(), address));
    EXPECT_EQ(Text()->text(), "http://example.com/dropped.html");
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile("/tmp/first.html"), QUrl::fromLocalFile("/tmp/b.html")});
    files.setText("file:///tmp/first.html\nfile:///tmp/b.html");
    EXPECT_TRUE(Drop(*form, Text(), files));
    EXPECT_EQ(Text()->text(), "/tmp/first.html");
    QMimeData image;
    image.setImageData(QImage(2, 2, QImage::Format_RGB32));
    EXPECT_FALSE(Drop(*form, Text(), image));
    EXPECT_EQ(Text()->text(), "/tmp/first.html");
}

} // namespace
} // namespace orvane::test
