// The two faces of the differ that other programs use: the shared library, loaded from the
// program's folder with dlopen as the program loads it, and the command line.
#include "TestSupport.h"
#include "linediff_api.h"
#include "support/Process.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <dlfcn.h>

namespace {

using orvane::test::RunProgram;
using orvane::test::TempDir;

class LineDiffLibrary : public testing::Test {
  protected:
    void SetUp() override {
        lib = dlopen(ORVANE_BIN_DIR "liblinediff.so", RTLD_NOW | RTLD_LOCAL);
        ASSERT_NE(lib, nullptr) << dlerror();
        Bind(create, "LD_Create"), Bind(destroy, "LD_Destroy"),
            Bind(ignoreCase, "LD_SetIgnoreCase");
        Bind(ignoreBlank, "LD_SetIgnoreWhiteSpace"), Bind(forceText, "LD_SetForceText");
        Bind(compare, "LD_CompareFiles"), Bind(count, "LD_OutputLineCount"),
            Bind(line, "LD_OutputLine");
        engine = create();
        ASSERT_NE(engine, nullptr);
    }
    void TearDown() override {
        if (engine) destroy(engine);
        if (lib) dlclose(lib);
    }
    template <class F> void Bind(F& f, const char* name) {
        f = reinterpret_cast<F>(dlsym(lib, name));
        ASSERT_NE(f, nullptr) << name;
    }
    std::string Line(long i) {
        std::size_t n = 99;
        const char* p = line(engine, i, &n);
        return p ? std::string(p, n) : "<null:" + std::to_string(n) + ">";
    }

    void* lib = nullptr;
    LdEngine* engine = nullptr;
    decltype(&LD_Create) create;
    decltype(&LD_Destroy) destroy;
    decltype(&LD_SetIgnoreCase) ignoreCase;
    decltype(&LD_SetIgnoreWhiteSpace) ignoreBlank;
    decltype(&LD_SetForceText) forceText;
    decltype(&LD_CompareFiles) compare;
    decltype(&LD_OutputLineCount) count;
    decltype(&LD_OutputLine) line;
    TempDir dir;
};

TEST_F(LineDiffLibrary, ComparesWithEachSwitchAndReplacesTheOutput) {
    std::string a = dir.Write("a", "Keep\nold\n"), b = dir.Write("b", "keep\nnew\n");
    ASSERT_EQ(compare(engine, a.c_str(), b.c_str()), 1);
    EXPECT_EQ(count(engine), 6);
    EXPECT_EQ(Line(0), "1,2c1,2");
    EXPECT_EQ(Line(5), "> new");
    EXPECT_EQ(Line(6), "<null:0>");
    EXPECT_EQ(Line(-1), "<null:0>");
    ignoreCase(engine, 1);
    ASSERT_EQ(compare(engine, a.c_str(), b.c_str()), 1);
    EXPECT_EQ(Line(0), "2c2");
    ASSERT_EQ(compare(engine, a.c_str(), a.c_str()), 0);
    EXPECT_EQ(count(engine), 0);
    ignoreCase(engine, 0);
    std::string c = dir.Write("c", "Keep \r\nold\n");
    EXPECT_EQ(compare(engine, a.c_str(), c.c_str()), 1);
    ignoreBlank(engine, 1);
    EXPECT_EQ(compare(engine, a.c_str(), c.c_str()), 0);
}

TEST_F(LineDiffLibrary, BinaryNoticeOrBytesWithNulWhenForcedToText) {
    std::string a = dir.Write("a", "x\n"), b = dir.Write("b", std::string("x\0y\n", 4));
    ASSERT_EQ(compare(engine, a.c_str(), b.c_str()), 1);
    ASSERT_EQ(count(engine), 1);
    EXPECT_EQ(Line(0), "Binary files " + a + " " + b + " differ");
    forceText(engine, 1);
    ASSERT_EQ(compare(engine, a.c_str(), b.c_str()), 1);
    EXPECT_EQ(Line(3), std::string("> x\0y", 5));
}

TEST_F(LineDiffLibrary, TroubleAndNullArgumentsNeverCrash) {
    std::string a = dir.Write("a", "x\n"), missing = dir.Path() + "gone";
    ASSERT_EQ(compare(engine, a.c_str(), missing.c_str()), 2);
    ASSERT_EQ(count(engine), 1);
    EXPECT_NE(Line(0).find(missing), std::string::npos);
    EXPECT_EQ(compare(engine, nullptr, a.c_str()), 2);
    EXPECT_EQ(count(engine), 1);
    EXPECT_EQ(compare(nullptr, a.c_str(), a.c_str()), 2);
    EXPECT_EQ(count(nullptr), 0);
    EXPECT_EQ(line(nullptr, 0, nullptr), nullptr);
    ignoreCase(nullptr, 1);
}

TEST_F(LineDiffLibrary, ExportsOnlyTheCInterface) {
    EXPECT_EQ(dlsym(lib, "_ZN8linediff12CompareFilesERKNSt7__cxx1112basic_stringIcSt11char_"
                         "traitsIcESaIcEEES8_RKNS_7OptionsERNS_11OutputLinesE"),
              nullptr);
    EXPECT_EQ(dlsym(lib, "_ZN8linediff11AllocateBigEm"), nullptr);
}

class LineDiffCommandLine : public testing::Test {
  protected:
    orvane::test::ProgramRun Run(std::vector<std::string> args) {
        args.insert(args.begin(), ORVANE_BIN_DIR "linediff");
        return RunProgram(args);
    }
    TempDir dir;
};

TEST_F(LineDiffCommandLine, ExitStatusAndOutputFollowTheEngine) {
    std::string a = dir.Write("a", "A\nb\n"), b = dir.Write("b", "a\nb\nc"),
                c = dir.Write("c", "a b\n");
    auto differ = Run({a, b});
    EXPECT_EQ(differ.exitCode, 1);
    EXPECT_EQ(differ.out, "1c1\n< A\n---\n> a\n2a3\n> c\n\\ No newline at end of file\n");
    EXPECT_EQ(Run({a, b, "-i"}).out, "2a3\n> c\n\\ No newline at end of file\n");
    std::string d = dir.Write("d", "ab\n");
    for (const auto& [args, status] : std::vector<std::pair<std::vector<std::string>, int>>{
             {{"-w", c, d}, 0}, {{"-iwa", a, a}, 0}, {{"--", a, b}, 1}, {{c, "-a", d}, 1}}) {
        auto r = Run(args);
        EXPECT_EQ(r.exitCode, status) << r.err;
    }
    auto trouble = Run({a, dir.Path() + "none"});
    EXPECT_EQ(trouble.exitCode, 2);
    EXPECT_NE(trouble.err.find(dir.Path() + "none"), std::string::npos);
}

TEST_F(LineDiffCommandLine, WrongUsageExplainsOnStandardError) {
    std::string a = dir.Write("a", "x\n");
    for (const auto& args :
         std::vector<std::vector<std::string>>{{}, {a}, {a, a, a}, {a, a, "-x"}}) {
        auto r = Run(args);
        EXPECT_EQ(r.exitCode, 2);
        EXPECT_EQ(r.out, "");
        EXPECT_NE(r.err.find("usage: linediff ORIGINAL REVISED"), std::string::npos);
    }
}

} // namespace
