#pragma once
#include "frame/Prompter.h"

namespace orvane {

// Message boxes and dialogues of the real window toolkit.
class QtPrompter : public Prompter {
  public:
    void MsgBox(const std::string& text, MsgIcon icon, const std::string& title) override;
    bool InputBox(const std::string& prompt, const std::string& title, std::string& value) override;
    bool OpenFileDialog(const std::string& title, const std::string& filter,
                        std::string& path) override;
    bool SaveFileDialog(const std::string& title, const std::string& filter,
                        std::string& path) override;
    bool FontDialog(const std::string& title, FontChoice& font) override;
    void DoEvents() override;
    void ShowHelp(int context) override;
};

} // namespace orvane
