#pragma once
// Reads a whole file into one buffer: one open, then reads until end of file, so a file that
// changes size or vanishes meanwhile still gives either its bytes or a clear reason.
#include <cstddef>
#include <string>
#include <string_view>

namespace linediff {

class FileBuffer {
  public:
    FileBuffer() = default;
    ~FileBuffer() { Reset(); }
    FileBuffer(const FileBuffer&) = delete;
    FileBuffer& operator=(const FileBuffer&) = delete;

    std::string_view View() const { return {data_, size_}; }
    void Reset();

  private:
    char* data_ = nullptr;
    std::size_t size_ = 0, capacity_ = 0;
    friend class FileReading;
};

// False with `error` naming the path and the reason.
bool ReadWholeFile(const std::string& path, FileBuffer& out, std::string& error);

} // namespace linediff
