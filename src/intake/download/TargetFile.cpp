#include "intake/download/TargetFile.h"

#include <cerrno>
#include <cstring>

namespace orvane {

TargetFile::TargetFile(const std::string& path, std::int64_t maxBytes)
    : path_(path), file_(std::fopen(path.c_str(), "wb")), maxBytes_(maxBytes) {
    if (!file_) error_ = path + ": " + std::strerror(errno);
}

TargetFile::~TargetFile() {
    if (kept_) return;
    if (file_) std::fclose(file_);
    Discard(path_);
}

bool TargetFile::Append(const char* data, std::size_t size) {
    if (!file_) return false;
    if (static_cast<std::int64_t>(size) > maxBytes_ - written_) {
        overCap_ = true;
        error_ = "more than " + std::to_string(maxBytes_) + " bytes";
        return false;
    }
    if (std::fwrite(data, 1, size, file_) != size) {
        error_ = path_ + ": " + std::strerror(errno);
        return false;
    }
    written_ += static_cast<std::int64_t>(size);
    return true;
}

bool TargetFile::Keep() {
    if (!file_) return false;
    const bool closed = std::fclose(file_) == 0;
    file_ = nullptr;
    if (!closed) error_ = path_ + ": " + std::strerror(errno);
    kept_ = closed;
    return closed;
}

void TargetFile::Discard(const std::string& path) {
    if (!path.empty()) std::remove(path.c_str());
}

} // namespace orvane
