// The C entry point: no exception crosses it, the result alone tells.
#include "intake/doctxt/doctxt.h"

#include "intake/doctxt/LineLimiter.h"

#define DOCTXT_EXPORT __attribute__((visibility("default")))

extern "C" DOCTXT_EXPORT int16_t LimitTextFileLineLength(const char* SourceFile, int32_t MaxChars,
                                                         const char* TargetFile) {
    if (SourceFile == nullptr || TargetFile == nullptr || *SourceFile == '\0' ||
        *TargetFile == '\0')
        return 0;
    try {
        return doctxt::LimitFile(SourceFile, MaxChars, TargetFile) ? 1 : 0;
    } catch (...) {
        return 0;
    }
}
