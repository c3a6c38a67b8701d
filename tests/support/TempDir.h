#pragma once
// A fresh folder under the system temporary folder, removed with everything in it at the end.
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <unistd.h>

namespace orvane::test {

class TempDir {
  public:
    TempDir() {
        std::string pattern = (std::filesystem::temp_directory_path() / "orvane-test-XXXXXX");
        path_ = ::mkdtemp(pattern.data());
    }
    ~TempDir() {
        std::error_code ec;
        std::filesystem::remove_all(path_, ec);
    }
    // The folder, ending in '/'.
    std::string Path() const { return path_.string() + "/"; }
    std::string Write(const std::string& name, std::string_view bytes) const {
        const std::string file = Path() + name;
        std::ofstream(file, std::ios::binary).write(bytes.data(), std::streamsize(bytes.size()));
        return file;
    }

  private:
    std::filesystem::path path_;
};

} // namespace orvane::test
