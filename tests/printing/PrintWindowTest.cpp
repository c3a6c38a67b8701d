// Print and Print to PDF from the real main window, through the real Print Options dialogue.
#include "dialogs/frmPrintOptions.h"
#include "output/HelpLinks.h"
#include "printing/PdfTools.h"
#include "results/Commands.h"
#include "ui/DriverFixture.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QDesktopServices>
#include <QLabel>
#include <QTest>
#include <QUrl>
#include <cstdlib>

namespace orvane::test {
namespace {

// No print server in reach: the system has no printers. Set before the print support first
// asks, which is why it happens at load time.
[[maybe_unused]] const bool kNoPrintServer = [] {
    ::setenv("CUPS_SERVER", "/nonexistent/orvane-cups.sock", 1);
    return true;
}();

class PrintWindowTest : public DriverTest {
  protected:
    QAction* Item(const char* name) { return window->CommandSurface().Item(name); }
    void CompareTwoPages() {
        std::string a, b;
        for (int i = 1; i <= 40; ++i) {
            a += "<p>same " + std::to_string(i) + "</p>\n";
            b += i % 10 == 0 ? "<p>changed " + std::to_string(i) + "</p>\n"
                             : "<p>same " + std::to_string(i) + "</p>\n";
        }
        Compare(dir.Write("old.html", a), dir.Write("new.html", b));
    }
    // Clicks a control of the dialogue by its object name.
    static void Click(QDialog& d, const char* name) {
        auto* button = d.findChild<QAbstractButton*>(name);
        ASSERT_NE(button, nullptr) << name;
        QTest::mouseClick(button, Qt::LeftButton);
    }
};

TEST_F(PrintWindowTest, PrintCommandsFollowTheResults) {
    EXPECT_FALSE(Item("mnuFilePrint")->isEnabled());
    EXPECT_FALSE(Item("mnuFilePrintToPdf")->isEnabled());
    EXPECT_EQ(Item("mnuFilePrint")->shortcut(), QKeySequence("Ctrl+P"));
    CompareTwoPages();
    ASSERT_FALSE(Idle());
    EXPECT_TRUE(Item("mnuFilePrint")->isEnabled());
    EXPECT_TRUE(Item("mnuFilePrintToPdf")->isEnabled());
    EXPECT_TRUE(window->CommandSurface().Button(19)->isEnabled());
}

TEST_F(PrintWindowTest, WithoutPrintersTheBoxSaysSoAndNoDialogueShows) {
    CompareTwoPages();
    window->CommandSurface().Button(19)->trigger();
    EXPECT_TRUE(dialogues.empty());
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].title, "Print");
    EXPECT_EQ(prompter->boxes[0].icon, MsgIcon::Critical);
    EXPECT_EQ(prompter->boxes[0].text, "There are no printers set up on your computer.\r\n"
                                       "Go to Control Panel --> Printers to add a printer.");
}

TEST_F(PrintWindowTest, PrintToPdfGivesBothFilesAsDocumentsOfTheirOwn) {
    if (!HavePoppler()) GTEST_SKIP() << "poppler-utils not installed";
    CompareTwoPages();
    const std::string pdf = dir.Path() + "both.pdf";
    prompter->saveFiles.push_back(pdf);
    bool landscapeShown = false;
    window->ShowModal = [&](QDialog& d) {
        dialogues.push_back(d.objectName().toStdString());
        auto* printers = d.findChild<QComboBox*>("cboPrinters");
        EXPECT_EQ(printers->currentText().toStdString(), pdf);
        Click(d, "optWhichLines(1)");
        Click(d, "optOrientation(1)");
        landscapeShown = d.findChild<QLabel*>("imgOrientation")->property("landscape").toBool();
        Click(d, "cmdPrint");
    };
    Item("mnuFilePrintToPdf")->trigger();
    EXPECT_EQ(dialogues, std::vector<std::string>{"frmPrintOptions"});
    EXPECT_TRUE(landscapeShown);
    ASSERT_FALSE(prompter->boxes.empty());
    EXPECT_EQ(prompter->boxes.back().text, "Printing is complete.");
    EXPECT_EQ(prompter->boxes.back().title, "Print");

    ASSERT_EQ(PageCount(pdf), 2);
    const auto [width, height] = PageSize(pdf);
    EXPECT_GT(width, height);
    for (int page : {1, 2}) {
        const auto lines = PageLines(pdf, page);
        ASSERT_GE(lines.size(), 3u);
        EXPECT_EQ(lines[0].rfind("Orvane - Page 1 [", 0), 0u) << lines[0];
        EXPECT_EQ(lines[1], dir.Path() + (page == 1 ? "old.html" : "new.html"));
        // Differing lines only: the four changed paragraphs, with their line numbers if shown.
        EXPECT_EQ(lines.size(), 2u + 4u);
        EXPECT_NE(lines[2].find(page == 1 ? "same 10" : "changed 10"), std::string::npos)
            << lines[2];
    }
}

TEST_F(PrintWindowTest, CancelPrintsNothingAndTheDialogueStartsFreshEachTime) {
    CompareTwoPages();
    const std::string pdf = dir.Path() + "never.pdf";
    prompter->saveFiles = {pdf, pdf};
    std::vector<int> sides;
    window->ShowModal = [&](QDialog& d) {
        sides.push_back(static_cast<frmPrintOptions&>(d).Sides()->checkedId());
        Click(d, "optSide(0)");
        Click(d, "CancelButton");
    };
    Item("mnuFilePrintToPdf")->trigger();
    Item("mnuFilePrintToPdf")->trigger();
    EXPECT_EQ(sides, (std::vector<int>{2, 2}));
    EXPECT_FALSE(std::filesystem::exists(pdf));
    EXPECT_TRUE(prompter->boxes.empty());
    prompter->saveFiles.clear(); // a cancelled save dialogue shows no Print Options
    Item("mnuFilePrintToPdf")->trigger();
    EXPECT_EQ(sides.size(), 2u);
}

// Help opens the maker's site and a mail to the maker in the desktop's programs.
class UrlCatcher : public QObject {
    Q_OBJECT
  public:
    std::vector<std::string> opened;
  public slots:
    void Open(const QUrl& url) { opened.push_back(url.toString().toStdString()); }
};

TEST_F(PrintWindowTest, HelpOpensTheSiteAndAMailToTheMaker) {
    UrlCatcher catcher;
    for (const char* scheme : {"http", "https", "mailto"})
        QDesktopServices::setUrlHandler(scheme, &catcher, "Open");
    Item("mnuHelpVisitKestwickWeb")->trigger();
    Item("mnuHelpContactUs")->trigger();
    for (const char* scheme : {"http", "https", "mailto"})
        QDesktopServices::unsetUrlHandler(scheme);
    ASSERT_EQ(catcher.opened.size(), 2u);
    EXPECT_EQ(catcher.opened[0], HomePageAddress());
    EXPECT_EQ(catcher.opened[1], ContactMailAddress());
    EXPECT_EQ(catcher.opened[1].rfind("mailto:", 0), 0u);
    EXPECT_NE(catcher.opened[1].find('@'), std::string::npos);
}

} // namespace
} // namespace orvane::test

#include "PrintWindowTest.moc"
