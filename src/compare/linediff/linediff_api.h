#pragma once
// C interface of the line differ library (liblinediff.so). The program loads it at run time from
// its own folder, so only plain C types cross this boundary.
#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef struct LdEngine LdEngine;

LdEngine* LD_Create(void);
void LD_Destroy(LdEngine* engine);
void LD_SetIgnoreCase(LdEngine* engine, int on);
void LD_SetIgnoreWhiteSpace(LdEngine* engine, int on);
void LD_SetForceText(LdEngine* engine, int on);
// Compares two files and replaces the output lines. Returns the status: 0 identical, 1 the files
// differ (hunks, or one "Binary files A B differ" line), 2 trouble (line 0 holds the message).
int LD_CompareFiles(LdEngine* engine, const char* originalPath, const char* revisedPath);
long LD_OutputLineCount(const LdEngine* engine);
// The bytes of output line `index` (no line end; may hold NUL bytes), valid until the next
// comparison. Out of range: NULL with *length 0.
const char* LD_OutputLine(const LdEngine* engine, long index, size_t* length);

#ifdef __cplusplus
}
#endif
