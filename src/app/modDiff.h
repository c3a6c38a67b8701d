#pragma once
#include <memory>
#include <string>

namespace orvane {

class FileDiffEngine;
struct Session;

// The program's run from start to end. It owns the session: the options and the line differ are
// created by Main and released by EndProgram, before the engine libraries they live in are
// unloaded; its destructor ends the program on every way out that did not.
class Program {
  public:
    Program();
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    // Start-up: proves the engine libraries load, creates the session and shows the splash, which
    // then shows the main window with `commandLine`. False when the program must end at once.
    bool Main(const std::string& appFolder, const std::string& commandLine);

    // The session without a window: the engine libraries probed and the options and the line
    // differ made. False, with the library's name, when a library cannot be loaded.
    bool OpenSession(const std::string& appFolder, std::string& moduleName);

    // The orderly end after the window loop: a main window still open is closed (which saves the
    // options), then the session is released and the engine libraries unloaded. Runs once.
    void EndProgram();

    // Valid from a successful OpenSession until EndProgram.
    Session& CurrentSession() { return *session_; }
    FileDiffEngine& LineDiffer() { return *fileDiff_; }

  private:
    void ShowMainWindow(const std::string& commandLine);

    std::unique_ptr<Session> session_;
    std::unique_ptr<FileDiffEngine> fileDiff_;
    bool ended_ = false;
};

} // namespace orvane
