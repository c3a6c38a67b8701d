#pragma once
// C interface of the text file engine (libdoctxt.so), loaded at run time from the program's
// folder. Paths are 8-bit, as the file system takes them.

#ifdef __cplusplus
#include <cstdint>
extern "C" {
#else
#include <stdint.h>
#endif

int DOCTXT_EngineVersion(void);

// Writes `TargetFile` as `SourceFile` with no line longer than `MaxChars` characters (see
// LineLimiter.h). Non-zero when `TargetFile` has been written. The two must be different files.
int16_t LimitTextFileLineLength(const char* SourceFile, int32_t MaxChars, const char* TargetFile);

#ifdef __cplusplus
}
#endif
