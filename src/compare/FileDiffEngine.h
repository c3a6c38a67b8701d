#pragma once
// The line differ as the program sees it: the engine library's C interface behind the six
// operations the comparison uses.
#include "compare/DiffRows.h"

#include <memory>
#include <string>

struct LdEngine;

namespace orvane {

// The session's one line differ lives in the engine library: the application object creates it
// after the library is loaded and releases it before the library is unloaded.
class FileDiffEngine : public DiffOutput {
  public:
    // Binds to the line differ library (loaded from gAppPath). Throws RuntimeError 429 when the
    // library or its entry points cannot be found.
    FileDiffEngine();
    ~FileDiffEngine() override;
    FileDiffEngine(const FileDiffEngine&) = delete;
    FileDiffEngine& operator=(const FileDiffEngine&) = delete;

    void IgnoreCaseSwitch(bool on);
    void IgnoreWhiteSpaceSwitch(bool on);
    void ForceTextSwitch(bool on);
    long OutputLineCount() const override;
    std::string OutputLine(long Index) const override;
    void CompareFiles(const std::string& OriginalPath, const std::string& RevisedPath,
                      long& Status);

  private:
    struct Api;
    static Api LoadApi();
    std::unique_ptr<Api> api_;
    LdEngine* engine_;
};

} // namespace orvane
