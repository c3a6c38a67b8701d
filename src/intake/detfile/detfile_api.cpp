#include "intake/detfile/detfile.h"

#include "intake/detfile/Recognise.h"

#include <algorithm>
#include <cstring>

#define DETFILE_EXPORT __attribute__((visibility("default")))

namespace {

void Emit(std::string_view s, char* out, int outSize) {
    if (!out || outSize <= 0) return;
    const std::size_t n = std::min(s.size(), static_cast<std::size_t>(outSize - 1));
    std::memcpy(out, s.data(), n);
    out[n] = '\0';
}

} // namespace

extern "C" {

DETFILE_EXPORT int detfile(const char* path, char* format, int formatSize, char* description,
                           int descriptionSize) {
    using namespace orvane::detfile;
    FormatName found = names::OpenError;
    try {
        if (path) found = RecogniseFile(path).format;
    } catch (...) { // out of memory: no exception may cross into a C caller
        found = names::OpenError;
    }
    Emit(found.code, format, formatSize);
    Emit(found.description, description, descriptionSize);
    return found.code.starts_with('!') ? 0 : 1;
}

DETFILE_EXPORT int GetFileTextScore(const char* path, int wholeFile) {
    try {
        return path ? orvane::detfile::FileTextScore(path, wholeFile != 0) : -1;
    } catch (...) {
        return -1;
    }
}

} // extern "C"
