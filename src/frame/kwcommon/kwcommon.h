#pragma once
// C interface of the path and string helper library (libkwcommon.so), loaded at run time from the
// program's folder. Strings are 8-bit; a function that yields a string writes it into `out` (at
// most outSize bytes with the terminating NUL) and returns its full length, so a caller with too
// small a buffer can call again with a bigger one.

#ifdef __cplusplus
extern "C" {
#endif

int PBFileExists(const char* path);
int APIFileExists(const char* path);
int ReplaceExtension(const char* path, const char* extension, char* out, int outSize);
int RemainingString(const char* whole, const char* leading, char* out, int outSize);
int ReplaceString(const char* text, const char* search, const char* replacement, char* out,
                  int outSize);
int NormalizePath(const char* path, char* out, int outSize);
int GetLastItemInPath(const char* path, char* out, int outSize);
int StripNull(const char* text, int textLength, char* out, int outSize);
// 1-based position of the next '/' or '\' at or after `start`, 0 when there is none.
short GetNextSlashPos(const char* path, short start);

#ifdef __cplusplus
}
#endif
