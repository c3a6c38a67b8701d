#pragma once
// A prompter that records every box instead of showing it, and answers input boxes from a script.
#include "frame/Prompter.h"

#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace orvane::test {

struct RecordedBox {
    std::string text;
    MsgIcon icon;
    std::string title;
};

class RecordingPrompter : public Prompter {
  public:
    void MsgBox(const std::string& text, MsgIcon icon, const std::string& title) override {
        boxes.push_back({text, icon, title});
    }
    bool InputBox(const std::string&, const std::string&, std::string& value) override {
        if (inputs.empty()) return false;
        value = inputs.front();
        inputs.pop_front();
        return true;
    }
    bool OpenFileDialog(const std::string&, const std::string&, std::string& path) override {
        if (files.empty()) return false;
        path = files.front();
        files.pop_front();
        return true;
    }
    bool SaveFileDialog(const std::string& title, const std::string&, std::string& path) override {
        saveTitles.push_back(title);
        if (saveFiles.empty()) return false;
        path = saveFiles.front();
        saveFiles.pop_front();
        return true;
    }
    void ShowHelp(int context) override { helpContexts.push_back(context); }
    bool FontDialog(const std::string& title, FontChoice& font) override {
        fontTitles.push_back(title);
        if (fonts.empty()) return false;
        font = fonts.front();
        fonts.pop_front();
        return true;
    }

    std::vector<RecordedBox> boxes;
    std::deque<std::string> inputs;
    std::deque<std::string> files;
    std::deque<std::string> saveFiles;
    std::vector<std::string> saveTitles;
    std::vector<int> helpContexts;
    std::deque<FontChoice> fonts;
    std::vector<std::string> fontTitles;
};

// Installs a fresh recording prompter for the lifetime of the object.
class ScopedRecordingPrompter {
  public:
    ScopedRecordingPrompter()
        : prompter_(std::make_shared<RecordingPrompter>()), previous_(SetPrompter(prompter_)) {}
    ~ScopedRecordingPrompter() { SetPrompter(previous_); }
    RecordingPrompter* operator->() { return prompter_.get(); }
    RecordingPrompter& operator*() { return *prompter_; }

  private:
    std::shared_ptr<RecordingPrompter> prompter_;
    std::shared_ptr<Prompter> previous_;
};

} // namespace orvane::test
