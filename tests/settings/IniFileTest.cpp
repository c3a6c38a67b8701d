#include "settings/IniFile.h"

#include "SettingsTestSupport.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>

namespace orvane::test {
namespace {

using IniFile = ProgramFolderTest;

TEST_F(IniFile, SecondNameIsRefusedWithBoxNamingFirstFile) {
    CIniFile ini;
    ini.Name("");
    ini.Name("first.ini"); // an empty name left the object unnamed
    ini.Name("second.ini");
    ASSERT_EQ(Prompts->boxes.size(), 1u);
    EXPECT_EQ(Prompts->boxes[0].title, "CIniFile Error");
    EXPECT_EQ(Prompts->boxes[0].icon, MsgIcon::Exclamation);
    EXPECT_EQ(Prompts->boxes[0].text, "This IniFile Object is already in use by " + Folder +
                                          "first.ini\r\nCreate a new object.");
    ini.Section("S");
    ini.Key("k");
    ini.SetStringValue("v");
    EXPECT_EQ(FolderEntries(), std::vector<std::string>{"first.ini"});
}

TEST_F(IniFile, FolderIsTakenAtConstructionAndFailedWriteIsSilent) {
    CIniFile ini;
    gAppPath = Folder + "gone/";
    // A missing program folder sends the settings to the user's folder; make that fail too.
    const char* oldXdg = std::getenv("XDG_CONFIG_HOME");
    const std::string savedXdg = oldXdg ? oldXdg : "";
    std::ofstream(Folder + "plain-file").put('x');
    ::setenv("XDG_CONFIG_HOME", (Folder + "plain-file/config").c_str(), 1);
    CIniFile lost;
    for (CIniFile* f : {&ini, &lost}) {
        f->Name("a.ini");
        f->Section("Text Extraction");
        f->Key("MaxNumCharsPerLine");
        f->SetStringValue("79");
    }
    EXPECT_EQ(lost.GetStringValue("dflt"), "dflt");
    oldXdg ? ::setenv("XDG_CONFIG_HOME", savedXdg.c_str(), 1) : ::unsetenv("XDG_CONFIG_HOME");
    std::filesystem::remove(Folder + "plain-file");
    EXPECT_EQ(ReadFile("a.ini"), "[Text Extraction]\r\nMaxNumCharsPerLine=79\r\n");
    EXPECT_TRUE(Prompts->boxes.empty());
}

TEST_F(IniFile, MissingPropertyShowsBoxAndNeitherDefaultNorWrite) {
    enum Op { GetInteger, GetString, SetString };
    enum Set { NameSet = 1, SectionSet = 2, KeySet = 4 };
    const struct {
        Op Operation;
        int Properties;
        const char* Text;
    } cases[] = {
        {GetInteger, SectionSet | KeySet, "Name property must be set first"},
        {GetInteger, NameSet | KeySet, "Section property must be set first"},
        {GetInteger, NameSet | SectionSet, "Key property must be set first"},
        {GetString, 0, "Name property must be set first"},
        {GetString, NameSet, "Section property must be set first"},
        {GetString, NameSet | SectionSet, "Key property must be set first"},
        {SetString, KeySet, "Name property must be set first"},
        {SetString, NameSet, "Section property must be set first."},
        {SetString, NameSet | SectionSet, "Key property must be set first."},
    };
    WriteFile("a.ini", "[S]\r\nk=5\r\n");
    for (const auto& c : cases) {
        Prompts->boxes.clear();
        CIniFile ini;
        if (c.Properties & NameSet) ini.Name("a.ini");
        if (c.Properties & SectionSet) ini.Section("S");
        if (c.Properties & KeySet) ini.Key("k");
        switch (c.Operation) {
        case GetInteger:
            EXPECT_EQ(ini.GetIntegerValue(7), 0);
            break;
        case GetString:
            EXPECT_EQ(ini.GetStringValue("dflt"), "");
            break;
        case SetString:
            ini.SetStringValue("changed");
            break;
        }
        ASSERT_EQ(Prompts->boxes.size(), 1u) << c.Text;
        EXPECT_EQ(Prompts->boxes[0].text, c.Text);
        EXPECT_EQ(Prompts->boxes[0].icon, MsgIcon::Critical);
        EXPECT_EQ(Prompts->boxes[0].title, "CIniFile Error");
    }
    EXPECT_EQ(ReadFile("a.ini"), "[S]\r\nk=5\r\n");
}

class NamedIniFile : public ProgramFolderTest {
  protected:
    // Created here, not with the fixture: the object copies gAppPath, which SetUp sets.
    CIniFile& Open(const std::string& key) {
        ini_.emplace();
        ini_->Name("a.ini");
        ini_->Section("S");
        ini_->Key(key);
        return *ini_;
    }

  private:
    std::optional<CIniFile> ini_;
};

TEST_F(NamedIniFile, EmptyValueReadsAsDefaultAndQuotesGo) {
    WriteFile("a.ini", "[S]\r\nk=\r\nq=\"\"\r\npath=\"C:\\Program Files\\x.exe\"\r\n");
    auto& ini = Open("k");
    EXPECT_EQ(ini.GetStringValue("dflt"), "dflt");
    ini.Key("q");
    EXPECT_EQ(ini.GetStringValue("dflt"), "dflt");
    ini.Key("path");
    EXPECT_EQ(ini.GetStringValue("dflt"), "C:\\Program Files\\x.exe");
}

TEST_F(NamedIniFile, LongValuesAreCutAt16382) {
    const std::string fits(16382, 'v');
    auto& ini = Open("fits");
    ini.SetStringValue(fits);
    ini.Key("long");
    ini.SetStringValue(fits + "tail");
    EXPECT_EQ(ini.GetStringValue(""), fits);
    ini.Key("fits");
    EXPECT_EQ(ini.GetStringValue(""), fits);
    EXPECT_TRUE(Prompts->boxes.empty());
}

TEST_F(NamedIniFile, IntegerNarrowsTo16BitsOrReportsOverflow) {
    const struct {
        const char* Text;
        std::int16_t Expected;
        bool Reported;
    } cases[] = {{"32767", 32767, false},   {"-32768", -32768, false}, {"", -4, false},
                 {"4294967295", -1, false}, {"32768", 0, true},        {"-32769", 0, true}};
    for (const auto& c : cases) {
        Prompts->boxes.clear();
        WriteFile("a.ini", std::string("[S]\r\nk=") + c.Text + "\r\n");
        EXPECT_EQ(Open("k").GetIntegerValue(-4), c.Expected) << c.Text;
        ASSERT_EQ(Prompts->boxes.size(), c.Reported ? 1u : 0u) << c.Text;
        if (!c.Reported) continue;
        EXPECT_EQ(Prompts->boxes[0].title, "Unexpected Error in cIniFile.GetIntegerValue()");
        EXPECT_NE(Prompts->boxes[0].text.find("No: 6"), std::string::npos);
    }
}

} // namespace
} // namespace orvane::test
