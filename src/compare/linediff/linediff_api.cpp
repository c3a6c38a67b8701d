// The C face of the differ: the only symbols the shared library exports.
#pragma GCC visibility push(default)
#include "linediff_api.h"
#pragma GCC visibility pop

#include "FileDiff.h"

struct LdEngine {
    linediff::Options options;
    linediff::OutputLines output;
};

extern "C" {

LdEngine* LD_Create(void) {
    try {
        return new LdEngine;
    } catch (...) {
        return nullptr;
    }
}

void LD_Destroy(LdEngine* engine) {
    delete engine;
}

void LD_SetIgnoreCase(LdEngine* engine, int on) {
    if (engine) engine->options.ignoreCase = on != 0;
}

void LD_SetIgnoreWhiteSpace(LdEngine* engine, int on) {
    if (engine) engine->options.ignoreWhiteSpace = on != 0;
}

void LD_SetForceText(LdEngine* engine, int on) {
    if (engine) engine->options.forceText = on != 0;
}

int LD_CompareFiles(LdEngine* engine, const char* originalPath, const char* revisedPath) {
    if (!engine) return linediff::kTrouble;
    try {
        if (!originalPath || !revisedPath) {
            engine->output.Clear();
            engine->output.Add("No file name given for the comparison");
            return linediff::kTrouble;
        }
        return linediff::CompareFiles(originalPath, revisedPath, engine->options, engine->output);
    } catch (...) { // nothing may cross into the caller, not even a failure to report a failure
        engine->output.Clear();
        return linediff::kTrouble;
    }
}

long LD_OutputLineCount(const LdEngine* engine) {
    return engine ? static_cast<long>(engine->output.Count()) : 0;
}

const char* LD_OutputLine(const LdEngine* engine, long index, size_t* length) {
    if (!engine || index < 0 || static_cast<std::size_t>(index) >= engine->output.Count()) {
        if (length) *length = 0;
        return nullptr;
    }
    std::string_view line = engine->output.Line(static_cast<std::size_t>(index));
    if (length) *length = line.size();
    return line.data();
}

} // extern "C"
