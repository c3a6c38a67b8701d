#pragma once
// C interface of the HTML detagger (libdetagger.so), loaded at run time from the program's
// folder. A converter is an opaque 32-bit handle. Every call but Allocate and Free returns a
// status, 0 for success, and puts an error code (see Policies.h, 0 for none) in *errorCode.
// Text is 8-bit: policy names and values in ASCII, paths as the file system takes them.

#ifdef __cplusplus
extern "C" {
#endif

int DETAGGER_EngineVersion(void);

int CONVERTER_Allocate(void);
void CONVERTER_Free(int* handle); // sets *handle to 0
int CONVERTER_ResetPolicies(int handle, int* errorCode);
int CONVERTER_SetPolicyValue_Ptr(int handle, const char* name, const char* value, int* errorCode);
// Writes the value with its NUL into `value`; code 3 when valueSize is too small.
int CONVERTER_GetPolicyValue_Ptr(int handle, const char* name, char* value, int valueSize,
                                 int* errorCode);
// `kind` names the conversion; callers pass 7, HTML file to text file, the only one there is,
// and other values convert the same way.
int CONVERTER_DoFileConvert_Ptr(int handle, int kind, const char* inputPath, const char* outputPath,
                                int* errorCode);

#ifdef __cplusplus
}
#endif
