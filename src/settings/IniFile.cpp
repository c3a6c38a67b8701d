#include "settings/IniFile.h"

#include "frame/ErrorReporter.h"
#include "frame/ProgramFolder.h"
#include "frame/Prompter.h"
#include "frame/RuntimeError.h"
#include "frame/SettingsFolder.h"
#include "settings/ProfileFile.h"

#include <limits>

namespace orvane {
namespace {

constexpr const char* kErrorTitle = "CIniFile Error";
// The platform buffer held 16384 characters, of which 16383 were offered to the read: a value
// comes back with at most 16382 characters and its terminator.
constexpr std::size_t kBufferSize = 16384;
constexpr std::size_t kReadSize = kBufferSize - 1;

} // namespace

CIniFile::CIniFile() : AppPath(SettingsFolder()) {}

void CIniFile::Name(const std::string& NewName) {
    if (!m_Name.empty()) {
        prompter().MsgBox("This IniFile Object is already in use by " + FileSpec + "\r\n" +
                              "Create a new object.",
                          MsgIcon::Exclamation, kErrorTitle);
        return;
    }
    m_Name = NewName;
    FileSpec = AppPath + NewName;
}

bool CIniFile::PropertiesSet(bool forWrite) const {
    std::string missing;
    if (m_Name.empty())
        missing = "Name property must be set first";
    else if (m_Section.empty())
        missing = "Section property must be set first";
    else if (m_Key.empty())
        missing = "Key property must be set first";
    if (missing.empty()) return true;
    if (forWrite && !m_Name.empty()) missing += '.'; // the write's Section and Key texts only
    prompter().MsgBox(missing, MsgIcon::Critical, kErrorTitle);
    return false;
}

std::int16_t CIniFile::GetIntegerValue(const std::int16_t& Default) {
    try {
        if (!PropertiesSet(false)) return 0;
        const std::int32_t value =
            profile::GetPrivateProfileInt(m_Section, m_Key, Default, FileSpec);
        if (value < std::numeric_limits<std::int16_t>::min() ||
            value > std::numeric_limits<std::int16_t>::max())
            throw RuntimeError(err::Overflow);
        return static_cast<std::int16_t>(value);
    } catch (...) {
        ReportUnexpectedError("cIniFile.GetIntegerValue()", "");
        return 0;
    }
}

std::string CIniFile::GetStringValue(const std::string& Default) {
    try {
        if (!PropertiesSet(false)) return {};
        std::string buffer;
        buffer.reserve(kBufferSize);
        const std::size_t count = profile::GetPrivateProfileString(m_Section, m_Key, Default,
                                                                   buffer, kReadSize, FileSpec);
        if (count < 1) return Default;
        return buffer.substr(0, count);
    } catch (...) {
        ReportUnexpectedError("cIniFile.GetStringValue()", "");
        return {};
    }
}

void CIniFile::SetStringValue(const std::string& Value) {
    try {
        if (!PropertiesSet(true)) return;
        MakeSettingsFolder(AppPath); // the user's configuration folder comes with the first save
        profile::WritePrivateProfileString(m_Section, m_Key, Value, FileSpec);
    } catch (...) {
        ReportUnexpectedError("cIniFile.SetStringValue()", "");
    }
}

} // namespace orvane
