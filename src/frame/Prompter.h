#pragma once
// The one seam through which the program talks to the user. The real implementation uses Qt
// dialogues; tests install a recording fake, so Qt-free code can show a box without a display.
#include <memory>
#include <string>

namespace orvane {

enum class MsgIcon { None, Critical, Question, Exclamation, Information };

struct FontChoice {
    std::string Name;
    int Size = 0; // points
    bool Bold = false;
    bool Italic = false;
};

class Prompter {
  public:
    virtual ~Prompter() = default;
    virtual void MsgBox(const std::string& text, MsgIcon icon, const std::string& title) = 0;
    // Returns false when the user cancels.
    virtual bool InputBox(const std::string& prompt, const std::string& title,
                          std::string& value) = 0;
    // Returns false when the user cancels (the toolkit's error 32755).
    virtual bool OpenFileDialog(const std::string& title, const std::string& filter,
                                std::string& path) = 0;
    // A file name to write; false when the user cancels.
    virtual bool SaveFileDialog(const std::string& title, const std::string& filter,
                                std::string& path) {
        (void)title, (void)filter, (void)path;
        return false;
    }
    // Presets from `font`; false when the user cancels.
    virtual bool FontDialog(const std::string& title, FontChoice& font) {
        (void)title, (void)font;
        return false;
    }
    // "Let pending events run": a no-op where there is no event loop.
    virtual void DoEvents() {}
    // Opens the help pages at a topic (7 is the welcome page).
    virtual void ShowHelp(int context) { (void)context; }
};

// The installed prompter; never null (a silent one stands in until the application sets its own).
Prompter& prompter();
// Installs p and returns the previous one so that tests can restore it.
std::shared_ptr<Prompter> SetPrompter(std::shared_ptr<Prompter> p);

inline void DoEvents() {
    prompter().DoEvents();
}

} // namespace orvane
