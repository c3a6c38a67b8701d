#pragma once
// The file a fetch writes into. Bytes beyond the cap are refused, and unless the fetch ends with
// Keep() the file is removed, so a cut-off page never stays behind looking like a whole one.
#include <cstdint>
#include <cstdio>
#include <string>

namespace orvane {

class TargetFile {
  public:
    TargetFile(const std::string& path, std::int64_t maxBytes);
    ~TargetFile();
    TargetFile(const TargetFile&) = delete;
    TargetFile& operator=(const TargetFile&) = delete;

    bool IsOpen() const { return file_ != nullptr; }
    // False when the bytes would pass the cap or cannot be written.
    bool Append(const char* data, std::size_t size);
    // Closes the file and keeps it; false (and the file removed) when the close fails.
    bool Keep();
    bool OverCap() const { return overCap_; }
    const std::string& Error() const { return error_; }
    static void Discard(const std::string& path);

  private:
    std::string path_;
    std::FILE* file_;
    std::int64_t maxBytes_;
    std::int64_t written_ = 0;
    bool overCap_ = false;
    bool kept_ = false;
    std::string error_;
};

} // namespace orvane
