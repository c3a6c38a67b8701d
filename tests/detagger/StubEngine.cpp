// A stand-in detagger library for the binding's tests: it records every call and fails where a
// test scripts it to, so the error paths can be driven without a broken real engine.
#include <cstring>
#include <string>

#define STUB_EXPORT extern "C" __attribute__((visibility("default")))

namespace {

struct Script {
    int refuseAt = 0; // 1-based policy call that fails; 0: none
    int refuseStatus = 0;
    int refuseCode = 0;
    int convertStatus = 0;
    int convertCode = 0;
};

Script script;
std::string log;
int policyCalls = 0;
constexpr int kHandle = 4711;

} // namespace

STUB_EXPORT int DETAGGER_EngineVersion(void) {
    return 1;
}

STUB_EXPORT void STUB_Script(int refuseAt, int refuseStatus, int refuseCode, int convertStatus,
                             int convertCode) {
    script = {refuseAt, refuseStatus, refuseCode, convertStatus, convertCode};
    log.clear();
    policyCalls = 0;
}

STUB_EXPORT const char* STUB_Log(void) {
    return log.c_str();
}

STUB_EXPORT int CONVERTER_Allocate(void) {
    log += "Allocate\n";
    return kHandle;
}

STUB_EXPORT int CONVERTER_SetPolicyValue_Ptr(int handle, const char* name, const char* value,
                                             int* errorCode) {
    log += "Set " + std::to_string(handle) + " " + name + "=" + value + "\n";
    const bool refuse = ++policyCalls == script.refuseAt;
    *errorCode = refuse ? script.refuseCode : 0;
    return refuse ? script.refuseStatus : 0;
}

STUB_EXPORT int CONVERTER_DoFileConvert_Ptr(int handle, int kind, const char* input,
                                            const char* output, int* errorCode) {
    log += "Convert " + std::to_string(handle) + " " + std::to_string(kind) + " " + input + " " +
           output + "\n";
    *errorCode = script.convertCode;
    return script.convertStatus;
}

STUB_EXPORT void CONVERTER_Free(int* handle) {
    log += "Free " + std::to_string(*handle) + "\n";
    *handle = 0;
}
