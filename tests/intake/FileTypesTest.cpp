// The desktop's names and icons for kinds of file, from a MIME database made by the test, and
// what the Test File Format dialogue gathers from them.
#include "intake/detfile/FileTypes.h"
#include "frame/ProgramFolder.h"
#include "intake/detfile/FormatInfo.h"
#include "intake/detfile/MimeDatabase.h"
#include "support/RecordingPrompter.h"
#include "support/TempDir.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

namespace orvane {
namespace {

using namespace modFileTypes;

class FileTypes : public ::testing::Test {
  protected:
    void SetUp() override {
        gAppPath = ORVANE_BIN_DIR;
        Write("sys/mime/globs2", "# generated\n"
                                 "80:text/html:*.html\n"
                                 "50:application/xhtml+xml:*.html\n"
                                 "50:text/plain:*.txt\n"
                                 "50:application/gzip:*.gz\n"
                                 "50:application/x-compressed-tar:*.tar.gz\n"
                                 "50:text/x-readme:README:cs\n"
                                 "50:image/png:*.png\n"
                                 "50:application/x-ms-dos-executable:*.exe\n");
        Write("home/mime/globs2", "50:text/x-mine:*.txt\n");
        Write("sys/mime/text/html.xml",
              "<?xml version=\"1.0\"?>\n<mime-type type=\"text/html\">\n"
              "  <comment>HTML document</comment>\n"
              "  <comment xml:lang=\"de\">HTML-Dokument</comment>\n"
              "  <comment xml:lang=\"pt_BR\">Documento HTML</comment>\n</mime-type>\n");
        Write("sys/mime/text/x-mine.xml", "<comment>Mine &amp; yours</comment>");
        Write("sys/mime/text/x-readme.xml",
              "<comment>" + std::string(70, 'x') +
                  "\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9</comment>");
        Write("sys/mime/generic-icons", "text/html:text-x-generic\n");
        Write("sys/mime/icons", "application/x-ms-dos-executable:my-exe-icon\n");
        Set("XDG_DATA_HOME", dir.Path() + "home");
        Set("XDG_DATA_DIRS", dir.Path() + "sys");
        Set("LC_ALL", "");
        Set("LC_MESSAGES", "");
        Set("LANG", "C.UTF-8");
    }
    void TearDown() override {
        for (const auto& [name, value] : saved_)
            value ? ::setenv(name.c_str(), value->c_str(), 1) : ::unsetenv(name.c_str());
    }
    void Write(const std::string& name, const std::string& text) {
        std::filesystem::create_directories(std::filesystem::path(dir.Path() + name).parent_path());
        dir.Write(name, text);
    }
    void Set(const std::string& name, const std::string& value) {
        if (!saved_.count(name)) {
            const char* old = std::getenv(name.c_str());
            saved_[name] = old ? std::optional<std::string>(old) : std::nullopt;
        }
        ::setenv(name.c_str(), value.c_str(), 1);
    }
    test::TempDir dir;
    std::map<std::string, std::optional<std::string>> saved_;
};

TEST_F(FileTypes, TypeNameByTheNameAlone) {
    EXPECT_EQ(GetFileType("/no/such/folder/Page.HTML"), "HTML document"); // weight beats xhtml
    EXPECT_EQ(GetFileType("notes.txt"), "Mine & yours");                  // the user's own wins
    EXPECT_EQ(GetFileType("a.tar.gz"), ""); // the longer pattern, with no description
    EXPECT_EQ(GetFileType("x.unknownext"), "");
    EXPECT_EQ(GetFileType("readme"), "");            // a case-sensitive glob
    EXPECT_EQ(GetFileType("/d/README").size(), 78u); // 79 bytes would cut a character
}

TEST_F(FileTypes, TypeNameInTheUsersLanguage) {
    Set("LANG", "de_AT.UTF-8");
    EXPECT_EQ(GetFileType("a.html"), "HTML-Dokument");
    Set("LC_MESSAGES", "pt_BR");
    EXPECT_EQ(GetFileType("a.html"), "Documento HTML");
    Set("LC_ALL", "C");
    EXPECT_EQ(GetFileType("a.html"), "HTML document");
}

TEST_F(FileTypes, IconsByKind) {
    const FileIcon html = GetFileIcon("a.html");
    EXPECT_EQ(html.name, "text-html");
    EXPECT_EQ(html.fallback, "text-x-generic");
    EXPECT_EQ(GetFileIcon("a.png").fallback, "image-x-generic");
    EXPECT_EQ(GetFileIcon("setup.EXE").name, "application-x-executable");
    EXPECT_EQ(GetFileIcon("a.unknownext").name, "application-x-generic");
    EXPECT_EQ(MimeTypeIcon(MimeDatabaseFolders(), "application/x-ms-dos-executable"),
              "my-exe-icon");
}

TEST_F(FileTypes, TheDialogueShowsFailureCodesWithoutABox) {
    test::ScopedRecordingPrompter boxes;
    const std::string png = dir.Write("icon.png", "\x89PNG\r\n\x1A\n....");
    FileFormatInfo info = GetFileFormatInfo(png);
    EXPECT_EQ(info.Format, "PNG");
    EXPECT_EQ(info.Description, "Portable Network Graphics (PNG) Image");
    EXPECT_EQ(info.Icon.name, "image-png");
    info = GetFileFormatInfo(dir.Write("junk.html.bin", std::string(50, '\1')));
    EXPECT_EQ(info.Format, "!UNK");
    EXPECT_EQ(info.RegisteredAs, "");
    info = GetFileFormatInfo(dir.Write("a.html", ""));
    EXPECT_EQ(info.Format, "HTML");
    EXPECT_EQ(info.RegisteredAs, "HTML document");
    EXPECT_TRUE(boxes->boxes.empty());
}

// The machine's own database, where it has one, knows HTML.
TEST(SystemMimeDatabase, KnowsHtml) {
    bool found = false;
    for (const std::string& folder : MimeDatabaseFolders())
        found |= std::filesystem::exists(folder + "globs2");
    if (!found) GTEST_SKIP() << "no shared MIME database on this machine";
    EXPECT_EQ(MimeTypeForFileName(MimeDatabaseFolders(), "index.html"), "text/html");
    EXPECT_FALSE(MimeTypeComment(MimeDatabaseFolders(), "text/html", "").empty());
}

} // namespace
} // namespace orvane
