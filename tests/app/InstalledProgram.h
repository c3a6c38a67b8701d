#pragma once
// A program folder of a test's own (the executable and its engine libraries), so that its
// settings file is the test's too.
#include "support/TempDir.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace orvane::test {

inline std::string InstallProgram(const TempDir& dir) {
    for (const char* name : {"orvane", "libkwcommon.so", "libdetfile.so", "libdetagger.so",
                             "libdoctxt.so", "liblinediff.so"})
        std::filesystem::copy_file(std::string(ORVANE_BIN_DIR) + name, dir.Path() + name);
    return dir.Path() + "orvane";
}

inline std::string ReadAll(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}

} // namespace orvane::test
