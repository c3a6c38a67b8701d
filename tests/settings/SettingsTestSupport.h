#pragma once
// A fresh program folder per test (gAppPath) and the recording prompter.
#include "frame/ProgramFolder.h"
#include "frame/Prompter.h"
#include "support/RecordingPrompter.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace orvane::test {

class ProgramFolderTest : public ::testing::Test {
  protected:
    void SetUp() override {
        Folder = dir_.Path();
        savedAppPath_ = gAppPath;
        gAppPath = Folder;
    }
    void TearDown() override { gAppPath = savedAppPath_; }

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

  private:
    TempDir dir_;

  protected:
    std::string Folder;
    ScopedRecordingPrompter Prompts;

  private:
    std::string savedAppPath_;
};

} // namespace orvane::test
