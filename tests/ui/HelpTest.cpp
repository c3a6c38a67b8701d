#include "app/AppPrompter.h"
#include "dialogs/frmHelp.h"
#include "settings/IniFileName.h"
#include "tests/ui/DriverFixture.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QTextBrowser>
#include <QToolButton>

namespace orvane::test {
namespace {

const QString kHelpDir = ORVANE_HELP_DIR;

QString PageOf(const frmHelp& w) {
    return QFileInfo(w.CurrentFile()).fileName();
}

QString Read(const QString& file) {
    QFile f(file);
    EXPECT_TRUE(f.open(QIODevice::ReadOnly)) << file.toStdString();
    return QString::fromUtf8(f.readAll());
}

class HelpWindow : public ::testing::Test {
  protected:
    frmHelp* Show(int context) { return frmHelp::ShowTopic(kHelpDir.toStdString(), context); }
    void TearDown() override { delete frmHelp::Instance(); }
};

TEST_F(HelpWindow, ContentsAndWelcomeOpenInOneWindowOfTheProgram) {
    frmHelp* help = Show(1);
    EXPECT_TRUE(help->isVisible());
    EXPECT_EQ(PageOf(*help), "index.html");
    EXPECT_FALSE(help->Browser()->toPlainText().isEmpty());
    EXPECT_EQ(Show(7), help); // the same window comes forward
    EXPECT_EQ(PageOf(*help), "welcome.html");
    EXPECT_TRUE(help->windowTitle().startsWith("Welcome to Orvane"));
    EXPECT_EQ(PageOf(*Show(99)), "index.html"); // an unknown context falls back to the contents
}

TEST_F(HelpWindow, KeyboardFollowsALinkAndBackComesHome) {
    frmHelp* help = Show(1);
    QTextBrowser* browser = help->Browser();
    browser->setFocus();
    QTest::keyClick(browser, Qt::Key_Tab); // first link of the contents: the welcome topic
    QTest::keyClick(browser, Qt::Key_Return);
    EXPECT_EQ(PageOf(*help), "welcome.html");
    auto* back = help->findChild<QToolButton*>("cmdBack");
    ASSERT_TRUE(back->isEnabled());
    QTest::mouseClick(back, Qt::LeftButton);
    EXPECT_EQ(PageOf(*help), "index.html");
}

TEST_F(HelpWindow, OpenInBrowserHandsTheShownPageToTheDesktop) {
    frmHelp* help = Show(7);
    std::vector<QUrl> opened;
    help->OpenExternally = [&](const QUrl& u) { opened.push_back(u); };
    QTest::mouseClick(help->findChild<QToolButton*>("cmdOpenInBrowser"), Qt::LeftButton);
    ASSERT_EQ(opened.size(), 1u);
    EXPECT_EQ(opened[0], QUrl::fromLocalFile(kHelpDir + "welcome.html"));
}

// Every link of every page leads to a page (and anchor) that exists, and every page can be
// reached from the contents.
TEST(HelpPages, LinksResolveAndEveryPageIsReachable) {
    const QStringList pages = QDir(kHelpDir).entryList({"*.html"}, QDir::Files);
    ASSERT_GE(pages.size(), 7);
    const QRegularExpression href(R"re(href="([^"]*)")re");
    QSet<QString> reached{"index.html"};
    QStringList todo{"index.html"};
    while (!todo.isEmpty()) {
        const QString page = todo.takeFirst();
        const QString text = Read(kHelpDir + page);
        EXPECT_TRUE(text.contains("<title>")) << page.toStdString();
        for (const auto& m : href.globalMatch(text)) {
            const QUrl link(m.captured(1));
            if (!link.scheme().isEmpty()) continue; // web links go to the desktop
            const QString target = link.path().isEmpty() ? page : link.path();
            ASSERT_TRUE(pages.contains(target))
                << page.toStdString() << " -> " << target.toStdString();
            if (link.hasFragment()) {
                EXPECT_TRUE(Read(kHelpDir + target).contains("name=\"" + link.fragment() + "\""))
                    << page.toStdString() << " -> " << m.captured(1).toStdString();
            }
            if (!reached.contains(target)) reached.insert(target), todo.append(target);
        }
    }
    for (const QString& p : pages)
        EXPECT_TRUE(reached.contains(p)) << p.toStdString() << " cannot be reached";
}

TEST_F(DriverTest, F1OpensTheContents) {
    window->show();
    QApplication::setActiveWindow(window.get());
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QTest::keyClick(window.get(), Qt::Key_F1);
    EXPECT_EQ(prompter->helpContexts, std::vector<int>{1});
}

// The program's own prompter shows help in its window, not in a browser.
TEST_F(HelpWindow, TheProgramsPrompterOpensTheHelpWindow) {
    const std::string saved = gAppPath;
    gAppPath = QDir(kHelpDir + "..").absolutePath().toStdString() + "/"; // holds help/
    AppPrompter().ShowHelp(7);
    ASSERT_NE(frmHelp::Instance(), nullptr);
    EXPECT_EQ(PageOf(*frmHelp::Instance()), "welcome.html");
    gAppPath = saved;
}

TEST_F(DriverTest, WelcomeShowsOnlyWhenTheSettingsFileIsMissingAndNeverUnattended) {
    {
        frmFileDiffs first(session, *fileDiff); // gAppPath is a fresh folder: no settings file
        first.Form_Load("");
    }
    EXPECT_EQ(prompter->helpContexts, std::vector<int>{7});
    prompter->helpContexts.clear();
    const std::string a = dir.Write("a.html", "1\n"), b = dir.Write("b.html", "2\n");
    {
        frmFileDiffs unattended(session, *fileDiff);
        unattended.ShowModal = [](QDialog& d) { d.accept(); };
        unattended.Form_Load("\"" + a + "\" \"" + b + "\" \"" + dir.Path() + "r.html\"");
    }
    EXPECT_TRUE(prompter->helpContexts.empty());
    dir.Write("orvane.ini", "[Compare]\n");
    SetProgramIniFileName("orvane.ini");
    {
        frmFileDiffs later(session, *fileDiff);
        later.Form_Load("");
    }
    SetProgramIniFileName("");
    EXPECT_TRUE(prompter->helpContexts.empty());
}

} // namespace
} // namespace orvane::test
