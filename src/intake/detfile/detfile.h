#pragma once
// C interface of the format recogniser library (libdetfile.so), loaded at run time from the
// program's folder. Strings are 8-bit and zero-terminated; a function that yields one writes it
// into the caller's buffer, cut to fit.

// A file whose text score reaches this counts as plain text.
#define DETFILE_TEXT_SCORE_THRESHOLD 98

// Every format code fits a field of 9 bytes and every description one of 65, terminator included.
#define DETFILE_FORMAT_FIELD 9
#define DETFILE_DESCRIPTION_FIELD 65

#ifdef __cplusplus
extern "C" {
#endif

int DETFILE_EngineVersion(void);

// Looks at the file's content and writes its format code ("HTML", "ASC", "PDF", ...) and a
// description. A code that begins with '!' is a failure: "!EMPTY" (no content), "!FERR" (cannot
// be opened or read) or "!UNK" (not known). Returns 1 for a recognised format, 0 for a failure.
int detfile(const char* path, char* format, int formatSize, char* description, int descriptionSize);

// How much of the file is text, from 0 to 100 (rounded down); -1 when it cannot be read.
// wholeFile 0 looks at the head the recogniser looks at; 1 at the whole file, through samples
// spread over it once it is large.
int GetFileTextScore(const char* path, int wholeFile);

#ifdef __cplusplus
}
#endif
