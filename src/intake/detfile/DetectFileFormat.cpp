#include "intake/detfile/DetectFileFormat.h"

#include "frame/EngineLibraries.h"
#include "frame/KWCommon.h"
#include "intake/detfile/detfile.h"

namespace orvane::modDetFile {
namespace {

template <typename Fn> Fn* Entry(const char* name) {
    return reinterpret_cast<Fn*>(EngineSymbol(Engine::DetFile, name));
}

std::string ReasonFor(const std::string& code) {
    if (code == "!EMPTY") return "File is empty.";
    if (code == "!FERR") return "Error opening the file.";
    if (code == "!UNK") return "Unrecognized file format.";
    return {};
}

} // namespace

bool DetectFileFormat(const std::string& Path, std::string& Format, std::string& Description,
                      short& Known, std::string& FailureReason) {
    std::string code(DETFILE_FORMAT_FIELD, '\0');
    std::string description(DETFILE_DESCRIPTION_FIELD, '\0');
    Entry<decltype(::detfile)>("detfile")(Path.c_str(), code.data(), DETFILE_FORMAT_FIELD,
                                          description.data(), DETFILE_DESCRIPTION_FIELD);
    Format = StripNulls(code);
    Description = StripNulls(description);
    if (Format.empty() || Format[0] != '!') return true;
    Known = 0;
    FailureReason = ReasonFor(Format);
    return false;
}

int GetFileTextScore(const std::string& Path, int WholeFile) {
    return Entry<decltype(::GetFileTextScore)>("GetFileTextScore")(Path.c_str(), WholeFile);
}

} // namespace orvane::modDetFile
