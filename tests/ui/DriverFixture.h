#pragma once
// A main window with the real engines from the build's program folder and a recording prompter.
#include "compare/FileDiffEngine.h"
#include "frame/EngineLibraries.h"
#include "frame/ProgramFolder.h"
#include "results/frmFileDiffs.h"
#include "settings/Session.h"
#include "support/RecordingPrompter.h"
#include "support/TempDir.h"

#include <QApplication>
#include <QComboBox>
#include <gtest/gtest.h>
#include <memory>

namespace orvane::test {

// Lets events run as the real program does, so timers and keys reach the window mid-run.
class EventfulPrompter : public RecordingPrompter {
  public:
    void DoEvents() override { QApplication::processEvents(); }
};

class DriverTest : public ::testing::Test {
  protected:
    void SetUp() override {
        gAppPath = ORVANE_BIN_DIR;
        session.ViewOptions.OutputFormat = OutputFormat::SideBySide;
        session.ViewOptions.ComparisonMode = ComparisonMode::Code;
        fileDiff = std::make_unique<FileDiffEngine>();
        // Engines come from the build; settings and error files go to a folder of our own.
        for (Engine e : {Engine::KWCommon, Engine::DetFile, Engine::Detagger, Engine::DocTxt})
            LoadEngine(e, ORVANE_BIN_DIR);
        gAppPath = dir.Path();
        window = std::make_unique<frmFileDiffs>(session, *fileDiff);
        window->ShowModal = [this](QDialog& d) {
            dialogues.push_back(d.objectName().toStdString());
        };
        window->Form_Load("");
        prompter->boxes.clear();
        prompter->helpContexts.clear();
    }
    void TearDown() override {
        window.reset();
        fileDiff.reset();
    }

    void Compare(const std::string& original, const std::string& revised) {
        window->OriginalFileBox()->setEditText(QString::fromStdString(original));
        window->RevisedFileBox()->setEditText(QString::fromStdString(revised));
        window->CompareFiles(true);
    }

    bool Idle() { return window->OriginalGrid().TextMatrix(0, 0) == kIdlePrompt; }

    TempDir dir;
    ScopedRecordingPrompter prompter;
    Session session;
    std::unique_ptr<FileDiffEngine> fileDiff;
    std::unique_ptr<frmFileDiffs> window;
    std::vector<std::string> dialogues; // object names of the dialogues shown
};

} // namespace orvane::test
