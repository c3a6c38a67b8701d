#include "settings/RecentFiles.h"

#include "frame/KWCommon.h"
#include "settings/IniFile.h"
#include "settings/IniFileName.h"

#include <array>

namespace orvane {
namespace {

const char* SectionOf(Side side) {
    return side == Side::Original ? "OriginalFiles" : "RevisedFiles";
}

std::string KeyOf(int place) {
    return "File" + std::to_string(place);
}

std::array<std::string, kRecentFilePlaces + 1> ReadPlaces(Side side) {
    std::array<std::string, kRecentFilePlaces + 1> places; // 1-based
    CIniFile ini;
    ini.Name(ProgramIniFileName());
    ini.Section(SectionOf(side));
    for (int p = 1; p <= kRecentFilePlaces; ++p) {
        ini.Key(KeyOf(p));
        places[static_cast<std::size_t>(p)] = ini.GetStringValue("");
    }
    return places;
}

} // namespace

const char* FileBoxFiller(Side side) {
    return side == Side::Original ? "Enter Original HTML file here"
                                  : "Enter Revised HTML file here";
}

bool SameRecentFile(const std::string& a, const std::string& b) {
    return StringsAreEqualCompare(a, b, 1);
}

std::vector<std::string> ReadRecentFiles(Side side) {
    std::vector<std::string> entries;
    for (const std::string& value : ReadPlaces(side))
        if (!value.empty() && value != FileBoxFiller(side)) entries.push_back(value);
    return entries;
}

void PushRecentFile(Side side, const std::string& input) {
    const auto old = ReadPlaces(side);
    int noted = 0;
    for (int p = 1; p <= kRecentFilePlaces; ++p)
        if (SameRecentFile(old[static_cast<std::size_t>(p)], input)) noted = p;
    CIniFile ini;
    ini.Name(ProgramIniFileName());
    ini.Section(SectionOf(side));
    ini.Key(KeyOf(1));
    ini.SetStringValue(input);
    int n = 1;
    for (int p = 1; p <= kRecentFilePlaces; ++p) {
        if (p == noted) continue;
        if (++n > kRecentFilePlaces) break;
        ini.Key(KeyOf(n));
        ini.SetStringValue(old[static_cast<std::size_t>(p)]);
    }
}

} // namespace orvane
