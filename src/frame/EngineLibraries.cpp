#include "frame/EngineLibraries.h"

#include "frame/ProgramFolder.h"
#include "frame/RuntimeError.h"

#include <array>
#include <dlfcn.h>

namespace orvane {
namespace {

constexpr std::size_t kEngineCount = 5;
constexpr long kEntryPointMissing = 453;

std::array<void*, kEngineCount>& handles() {
    static std::array<void*, kEngineCount> h{};
    return h;
}

void*& HandleOf(Engine e) {
    return handles()[static_cast<std::size_t>(e)];
}

} // namespace

std::string EngineFileName(Engine engine) {
    switch (engine) {
    case Engine::KWCommon:
        return "libkwcommon.so";
    case Engine::DetFile:
        return "libdetfile.so";
    case Engine::Detagger:
        return "libdetagger.so";
    case Engine::DocTxt:
        return "libdoctxt.so";
    case Engine::LineDiff:
        return "liblinediff.so";
    }
    return {};
}

bool LoadEngine(Engine engine, const std::string& folder) {
    void*& h = HandleOf(engine);
    if (!h) h = ::dlopen((folder + EngineFileName(engine)).c_str(), RTLD_NOW | RTLD_LOCAL);
    return h != nullptr;
}

void* EngineSymbol(Engine engine, const char* name) {
    if (!LoadEngine(engine, gAppPath))
        throw RuntimeError(err::CannotCreateObject,
                           "ActiveX component can't create object: " + EngineFileName(engine));
    void* fn = ::dlsym(HandleOf(engine), name);
    if (!fn)
        throw RuntimeError(kEntryPointMissing, std::string("Can't find DLL entry point ") + name +
                                                   " in " + EngineFileName(engine));
    return fn;
}

void FreeEngines() {
    for (void*& h : handles()) {
        if (h) ::dlclose(h);
        h = nullptr;
    }
}

bool ProbeRequiredEngines(const std::string& folder, std::string& moduleName) {
    const Engine order[] = {Engine::KWCommon, Engine::DetFile, Engine::Detagger, Engine::DocTxt};
    for (Engine e : order) {
        if (e != Engine::DocTxt) moduleName = EngineFileName(e);
        if (!LoadEngine(e, folder)) return false;
    }
    return true;
}

} // namespace orvane
