#pragma once
// Folder completion while a path is typed: the rest of the first folder whose name begins with
// the unfinished last item is appended and selected. The folder scan lets events run, and a
// keystroke that arrives meanwhile cancels it; the newest text wins.
#include <string>

namespace orvane {

// What completion needs of a text control.
class PathControl {
  public:
    virtual ~PathControl() = default;
    virtual std::string Text() const = 0;
    virtual void SetText(const std::string& text) = 0; // raises the control's Change
    virtual void Select(long start, long length) = 0;
};

namespace modAutoCompletePath {

// The control's KeyPress: codes 32 to 122 may propose, any other key never does.
void KeyPress(int keyCode);
// The control's Change.
void AutoCompletePath(PathControl& control);
std::string GetCompletedPath(const std::string& Path);
// A folder that can be listed.
bool PathExists(const std::string& Path);
bool CompletionRunning();

} // namespace modAutoCompletePath
} // namespace orvane
