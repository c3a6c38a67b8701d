#include "settings/AtomicWrite.h"

#include "SettingsTestSupport.h"

#include <sys/stat.h>

namespace orvane::test {
namespace {

namespace fs = std::filesystem;

ino_t InodeOf(const std::string& path) {
    struct stat st {};
    EXPECT_EQ(stat(path.c_str(), &st), 0);
    return st.st_ino;
}

unsigned ModeOf(const std::string& path) {
    struct stat st {};
    EXPECT_EQ(stat(path.c_str(), &st), 0);
    return st.st_mode & 07777;
}

using AtomicWrite = ProgramFolderTest;

TEST_F(AtomicWrite, ReplacesByRenameSoReadersSeeOldOrNew) {
    WriteFile("t.ini", "old");
    std::ifstream openedBefore(PathOf("t.ini"), std::ios::binary);
    const ino_t before = InodeOf(PathOf("t.ini"));
    ASSERT_TRUE(WriteFileAtomically(PathOf("t.ini"), "new"));
    EXPECT_NE(InodeOf(PathOf("t.ini")), before);
    EXPECT_EQ(ReadFile("t.ini"), "new");
    std::string seen;
    openedBefore >> seen;
    EXPECT_EQ(seen, "old"); // the old file was never written into
    EXPECT_EQ(FolderEntries(), std::vector<std::string>{"t.ini"});
}

TEST_F(AtomicWrite, KeepsModeOfExistingFileAndUmaskForNewOne) {
    const mode_t saved = umask(027);
    const bool created = WriteFileAtomically(PathOf("new.ini"), "x");
    umask(saved);
    ASSERT_TRUE(created);
    EXPECT_EQ(ModeOf(PathOf("new.ini")), 0640u);
    WriteFile("t.ini", "x");
    ASSERT_EQ(chmod(PathOf("t.ini").c_str(), 0604), 0);
    ASSERT_TRUE(WriteFileAtomically(PathOf("t.ini"), "y"));
    EXPECT_EQ(ModeOf(PathOf("t.ini")), 0604u);
}

TEST_F(AtomicWrite, WritesThroughSymbolicLink) {
    fs::create_directory(PathOf("real"));
    WriteFile("real/t.ini", "old");
    fs::create_symlink(PathOf("real/t.ini"), PathOf("t.ini"));
    ASSERT_TRUE(WriteFileAtomically(PathOf("t.ini"), "new"));
    EXPECT_TRUE(fs::is_symlink(PathOf("t.ini")));
    EXPECT_EQ(ReadFile("real/t.ini"), "new");
}

TEST_F(AtomicWrite, FailedRenameLeavesTargetAndNoTemporaryFile) {
    fs::create_directories(PathOf("t.ini/inner"));
    EXPECT_FALSE(WriteFileAtomically(PathOf("t.ini"), "x"));
    EXPECT_TRUE(fs::is_directory(PathOf("t.ini/inner")));
    EXPECT_EQ(FolderEntries(), std::vector<std::string>{"t.ini"});
}

} // namespace
} // namespace orvane::test
