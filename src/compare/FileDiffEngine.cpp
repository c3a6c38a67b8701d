#include "compare/FileDiffEngine.h"

#include "compare/linediff/linediff_api.h"
#include "frame/EngineLibraries.h"
#include "frame/RuntimeError.h"

namespace orvane {

struct FileDiffEngine::Api {
    decltype(&LD_Create) create;
    decltype(&LD_Destroy) destroy;
    decltype(&LD_SetIgnoreCase) ignoreCase;
    decltype(&LD_SetIgnoreWhiteSpace) ignoreWhiteSpace;
    decltype(&LD_SetForceText) forceText;
    decltype(&LD_CompareFiles) compare;
    decltype(&LD_OutputLineCount) lineCount;
    decltype(&LD_OutputLine) line;
};

namespace {

template <typename Fn> Fn Bind(const char* name) {
    try {
        return reinterpret_cast<Fn>(EngineSymbol(Engine::LineDiff, name));
    } catch (const RuntimeError& e) {
        throw RuntimeError(err::CannotCreateObject, e.what());
    }
}

} // namespace

// Bound anew for each engine: the library may have been unloaded and loaded again since.
FileDiffEngine::Api FileDiffEngine::LoadApi() {
    return Api{
        Bind<decltype(&LD_Create)>("LD_Create"),
        Bind<decltype(&LD_Destroy)>("LD_Destroy"),
        Bind<decltype(&LD_SetIgnoreCase)>("LD_SetIgnoreCase"),
        Bind<decltype(&LD_SetIgnoreWhiteSpace)>("LD_SetIgnoreWhiteSpace"),
        Bind<decltype(&LD_SetForceText)>("LD_SetForceText"),
        Bind<decltype(&LD_CompareFiles)>("LD_CompareFiles"),
        Bind<decltype(&LD_OutputLineCount)>("LD_OutputLineCount"),
        Bind<decltype(&LD_OutputLine)>("LD_OutputLine"),
    };
}

FileDiffEngine::FileDiffEngine() : api_(std::make_unique<Api>(LoadApi())), engine_(api_->create()) {
    if (!engine_) throw RuntimeError(err::CannotCreateObject);
}

FileDiffEngine::~FileDiffEngine() {
    api_->destroy(engine_);
}

void FileDiffEngine::IgnoreCaseSwitch(bool on) {
    api_->ignoreCase(engine_, on);
}
void FileDiffEngine::IgnoreWhiteSpaceSwitch(bool on) {
    api_->ignoreWhiteSpace(engine_, on);
}
void FileDiffEngine::ForceTextSwitch(bool on) {
    api_->forceText(engine_, on);
}

long FileDiffEngine::OutputLineCount() const {
    return api_->lineCount(engine_);
}

std::string FileDiffEngine::OutputLine(long Index) const {
    std::size_t length = 0;
    const char* text = api_->line(engine_, Index, &length);
    if (!text) throw RuntimeError(err::SubscriptOutOfRange);
    return std::string(text, length);
}

void FileDiffEngine::CompareFiles(const std::string& OriginalPath, const std::string& RevisedPath,
                                  long& Status) {
    Status = api_->compare(engine_, OriginalPath.c_str(), RevisedPath.c_str());
}

} // namespace orvane
