// The C entry points: a table of converters by handle, and error codes instead of exceptions.
#include "intake/detagger/detagger.h"

#include "intake/detagger/Convert.h"

#include <cstring>
#include <map>
#include <mutex>

#define DETAGGER_EXPORT __attribute__((visibility("default")))

namespace {

using detagger::ErrorCode;

struct Registry {
    std::mutex lock;
    std::map<int, detagger::Policies> converters;
    int next = 1;
};

Registry& registry() {
    static Registry r;
    return r;
}

// Runs `action` on the handle's policies under the lock; the status is 0 only without error.
template <typename Action> int WithConverter(int handle, int* errorCode, Action&& action) {
    ErrorCode code = detagger::kApiCallNotMade;
    try {
        Registry& r = registry();
        std::lock_guard guard(r.lock);
        if (auto it = r.converters.find(handle); it != r.converters.end())
            code = action(it->second);
    } catch (...) {
        code = detagger::kConversionFailed;
    }
    if (errorCode) *errorCode = code;
    return code == detagger::kNoError ? 0 : 1;
}

} // namespace

extern "C" {

DETAGGER_EXPORT int CONVERTER_Allocate(void) {
    try {
        Registry& r = registry();
        std::lock_guard guard(r.lock);
        const int handle = r.next++;
        r.converters.emplace(handle, detagger::Policies{});
        return handle;
    } catch (...) {
        return 0;
    }
}

DETAGGER_EXPORT void CONVERTER_Free(int* handle) {
    if (!handle) return;
    Registry& r = registry();
    std::lock_guard guard(r.lock);
    r.converters.erase(*handle);
    *handle = 0;
}

DETAGGER_EXPORT int CONVERTER_ResetPolicies(int handle, int* errorCode) {
    return WithConverter(handle, errorCode, [](detagger::Policies& p) {
        p = detagger::Policies{};
        return detagger::kNoError;
    });
}

DETAGGER_EXPORT int CONVERTER_SetPolicyValue_Ptr(int handle, const char* name, const char* value,
                                                 int* errorCode) {
    return WithConverter(handle, errorCode, [&](detagger::Policies& p) {
        if (!name || !*name || !value) return detagger::kNullArgument;
        return detagger::SetPolicy(p, name, value);
    });
}

DETAGGER_EXPORT int CONVERTER_GetPolicyValue_Ptr(int handle, const char* name, char* value,
                                                 int valueSize, int* errorCode) {
    return WithConverter(handle, errorCode, [&](detagger::Policies& p) {
        if (!name || !*name || !value) return detagger::kNullArgument;
        std::string text;
        if (!detagger::GetPolicy(p, name, text)) return detagger::kUnknownPolicy;
        if (valueSize <= 0 || text.size() >= static_cast<std::size_t>(valueSize))
            return detagger::kBufferTooSmall;
        std::memcpy(value, text.c_str(), text.size() + 1);
        return detagger::kNoError;
    });
}

DETAGGER_EXPORT int CONVERTER_DoFileConvert_Ptr(int handle, int /*kind*/, const char* inputPath,
                                                const char* outputPath, int* errorCode) {
    // The conversion runs outside the lock: a copy of the policies is all it needs.
    detagger::Policies policies;
    const int status = WithConverter(handle, errorCode, [&](detagger::Policies& p) {
        policies = p;
        return detagger::kNoError;
    });
    if (status != 0) return status;
    const ErrorCode code =
        detagger::ConvertFile(inputPath ? inputPath : "", outputPath ? outputPath : "", policies);
    if (errorCode) *errorCode = code;
    return code == detagger::kNoError ? 0 : 1;
}

} // extern "C"
