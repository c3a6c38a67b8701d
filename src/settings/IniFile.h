#pragma once
// The program's only door to its settings file. One object per job: set Name once, then Section,
// then Key for each value read or written. Missing properties are told to the user in a box, and
// run-time failures go to the error reporter; nothing is thrown to the caller.
#include <cstdint>
#include <string>

namespace orvane {

class CIniFile {
  public:
    CIniFile(); // takes SettingsFolder(), so gAppPath must be set by then

    const std::string& Name() const { return m_Name; }
    void Name(const std::string& NewName);
    const std::string& Section() const { return m_Section; }
    void Section(const std::string& NewSection) { m_Section = NewSection; }
    const std::string& Key() const { return m_Key; }
    void Key(const std::string& NewKey) { m_Key = NewKey; }

    std::int16_t GetIntegerValue(const std::int16_t& Default);
    // A key whose value is empty gives Default as well: the two cannot be told apart.
    std::string GetStringValue(const std::string& Default);
    // A failed write (read-only folder, full disk) is silent.
    void SetStringValue(const std::string& Value);

  private:
    // Shows the box for the first missing property; the write texts end in a point.
    bool PropertiesSet(bool forWrite) const;

    std::string m_Name;
    std::string m_Section;
    std::string m_Key;
    std::string AppPath;
    std::string FileSpec;
};

} // namespace orvane
