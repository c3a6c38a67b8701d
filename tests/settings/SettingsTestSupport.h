#pragma once
// A fresh program folder per test (gAppPath) and a prompter that records every box.
#include "frame/Globals.h"
#include "frame/Prompter.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace orvane::test {

struct Box {
    std::string Text;
    MsgIcon Icon;
    std::string Title;
};

class RecordingPrompter : public Prompter {
  public:
    std::vector<Box> Boxes;
    void MsgBox(const std::string& text, MsgIcon icon, const std::string& title) override {
        Boxes.push_back({text, icon, title});
    }
    bool InputBox(const std::string&, const std::string&, std::string&) override { return false; }
    bool OpenFileDialog(const std::string&, const std::string&, std::string&) override {
        return false;
    }
};

class ProgramFolderTest : public ::testing::Test {
  protected:
    void SetUp() override {
        std::string templ = (std::filesystem::temp_directory_path() / "orvane-settings-XXXXXX");
        ASSERT_NE(mkdtemp(templ.data()), nullptr);
        Folder = templ + "/";
        savedAppPath_ = gAppPath;
        gAppPath = Folder;
        Prompts = std::make_shared<RecordingPrompter>();
        savedPrompter_ = SetPrompter(Prompts);
    }
    void TearDown() override {
        SetPrompter(savedPrompter_);
        gAppPath = savedAppPath_;
        std::filesystem::remove_all(Folder);
    }

    std::string PathOf(const std::string& name) const { return Folder + name; }

    void WriteFile(const std::string& name, const std::string& bytes) const {
        std::ofstream(PathOf(name), std::ios::binary) << bytes;
    }

    std::string ReadFile(const std::string& name) const {
        std::ifstream in(PathOf(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }

    std::vector<std::string> FolderEntries() const {
        std::vector<std::string> names;
        for (const auto& e : std::filesystem::directory_iterator(Folder))
            names.push_back(e.path().filename().string());
        return names;
    }

    std::string Folder;
    std::shared_ptr<RecordingPrompter> Prompts;

  private:
    std::string savedAppPath_;
    std::shared_ptr<Prompter> savedPrompter_;
};

} // namespace orvane::test
