// A run lets events in so that the window keeps painting. What the user does meanwhile must not
// reach the state the run is using; a close waits for the run, and nothing is left behind.
#include "results/Commands.h"
#include "results/FlexGridView.h"
#include "tests/ui/DriverFixture.h"

#include <QAction>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <chrono>
#include <cstdlib>
#include <filesystem>

namespace orvane::test {
namespace {

// Pages of `lines` paragraphs, every tenth one changed in the revised page: text mode extracts
// them into temporary files and fills a long grid, with events let in all along.
std::string Page(int lines, bool revised) {
    std::string page = "<html><body>\n";
    for (int i = 0; i < lines; ++i)
        page += "<p>paragraph " + std::to_string(i) + (revised && i % 10 == 0 ? " changed" : "") +
                "</p>\n";
    return page + "</body></html>\n";
}

class BusyRun : public DriverTest {
  protected:
    void SetUp() override {
        DriverTest::SetUp();
        saved_ = SetPrompter(events_);
        const char* tmp = std::getenv("TMPDIR");
        savedTmp_ = tmp ? tmp : "";
        ::setenv("TMPDIR", temp_.Path().c_str(), 1);
        session.ViewOptions.ComparisonMode = ComparisonMode::Text;
        window->resize(900, 600);
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        original_ = dir.Write("a.html", Page(40000, false));
        revised_ = dir.Write("b.html", Page(40000, true));
    }
    void TearDown() override {
        if (savedTmp_.empty())
            ::unsetenv("TMPDIR");
        else
            ::setenv("TMPDIR", savedTmp_.c_str(), 1);
        SetPrompter(saved_);
        DriverTest::TearDown();
    }

    // Runs `during` once, from inside the comparison, as soon as events reach the window there.
    bool CompareWhile(std::function<void()> during) {
        bool acted = false;
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, [&] {
            if (acted || !window->Busy()) return;
            acted = true;
            during();
        });
        poll.start(10);
        Compare(original_, revised_);
        return acted;
    }

    QAction* Item(const char* name, int index = -1) {
        return window->CommandSurface().Item(name, index);
    }

    bool WaitUntilHidden() {
        for (int i = 0; i < 200 && window->isVisible(); ++i)
            QTest::qWait(10);
        return !window->isVisible();
    }

    // The run's own files. The empty name reservations that naming a text file leaves behind
    // are not the run's to remove.
    std::size_t TemporaryFilesLeft() const {
        std::size_t left = 0;
        for (const auto& entry : std::filesystem::directory_iterator(temp_.Path()))
            if (entry.path().extension() != ".tmp" || entry.file_size() != 0) ++left;
        return left;
    }

    std::shared_ptr<EventfulPrompter> events_ = std::make_shared<EventfulPrompter>();
    std::shared_ptr<Prompter> saved_;
    TempDir temp_;
    std::string savedTmp_, original_, revised_;
};

TEST_F(BusyRun, ClicksKeysAndCommandsDuringARunAreTurnedAway) {
    QAction* compare = Item("mnuFileCompare");
    QAction* next = Item("mnuFileShowNextDiff");
    QSignalSpy compares(compare, &QAction::triggered), nexts(next, &QAction::triggered);
    QToolBar* toolbar = window->CommandSurface().Toolbar();
    QWidget* compareButton = nullptr;
    for (QAction* button : toolbar->actions())
        if (button->toolTip() == "Compare the Files")
            compareButton = toolbar->widgetForAction(button);
    ASSERT_NE(compareButton, nullptr);

    bool modeChecks[3];
    for (int i = 0; i < 3; ++i)
        modeChecks[i] = Item("mnuOptionsComparisonModeOption", i)->isChecked();
    const bool acted = CompareWhile([&] {
        QTest::keyClicks(window->RevisedFileBox()->lineEdit(), "zz");
        QTest::mouseClick(compareButton, Qt::LeftButton);
        QTest::keyClick(window->GridView(Side::Original), Qt::Key_F7);
        QTest::keyClick(window->GridView(Side::Original), Qt::Key_M, Qt::ControlModifier);
        Item("mnuHelpAbout")->trigger();
        Item("mnuOptionsIgnoreCase")->trigger();
        for (int i = 0; i < 3; ++i)
            Item("mnuOptionsComparisonModeOption", i)->trigger();
    });
    ASSERT_TRUE(acted) << "the comparison never let events in";

    EXPECT_EQ(window->RevisedFileBox()->currentText().toStdString(), revised_);
    EXPECT_EQ(compares.count(), 0) << "the toolbar click or Ctrl+M got through";
    EXPECT_EQ(nexts.count(), 0) << "F7 got through";
    EXPECT_TRUE(dialogues.empty()) << dialogues.front();
    EXPECT_FALSE(session.ViewOptions.IgnoreCase);
    EXPECT_FALSE(Item("mnuOptionsIgnoreCase")->isChecked()) << "a check for a choice not taken";
    EXPECT_EQ(session.ViewOptions.ComparisonMode, ComparisonMode::Text);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(Item("mnuOptionsComparisonModeOption", i)->isChecked(), modeChecks[i]) << i;
    EXPECT_TRUE(events_->boxes.empty()) << events_->boxes.front().title;
    ASSERT_EQ(window->Diffs().size(), 4000u) << "the run was disturbed";
    EXPECT_EQ(TemporaryFilesLeft(), 0u);

    // Once it is over, the window answers again.
    next->trigger();
    EXPECT_EQ(nexts.count(), 1);
    EXPECT_GT(window->OriginalGrid().Row(), 1);
}

TEST_F(BusyRun, AClosePostedDuringARunWaitsForItsEndAndLeavesNothingBehind) {
    bool visibleAfterClose = false;
    const bool acted = CompareWhile([&] {
        QTest::mouseClick(window->RevisedFileBox(), Qt::LeftButton);
        window->close();
        visibleAfterClose = window->isVisible();
        Item("mnuFileCompare")->trigger();
    });
    ASSERT_TRUE(acted);
    EXPECT_TRUE(visibleAfterClose) << "closed under the run";
    EXPECT_EQ(window->Diffs().size(), 4000u) << "the run finished its work first";
    EXPECT_TRUE(WaitUntilHidden()) << "the close that waited never came";
    EXPECT_EQ(TemporaryFilesLeft(), 0u);
    EXPECT_TRUE(events_->boxes.empty()) << events_->boxes.front().title;
}

// Esc is the one key that still counts: it cancels a download. Elsewhere in a run it is dropped,
// and the menu's Exit closes the window once the run is over.
TEST_F(BusyRun, ExitFromTheMenuDuringARunClosesAfterIt) {
    const bool acted = CompareWhile([&] {
        QTest::keyClick(window->GridView(Side::Revised), Qt::Key_Escape);
        Item("mnuFileExit")->trigger();
    });
    ASSERT_TRUE(acted);
    EXPECT_EQ(window->Diffs().size(), 4000u);
    EXPECT_TRUE(WaitUntilHidden());
    EXPECT_EQ(TemporaryFilesLeft(), 0u);
}

} // namespace
} // namespace orvane::test
