// Policies by name: which names and values are taken, and the engine's C interface around them.
#include "intake/detagger/Policies.h"
#include "intake/detagger/Convert.h"
#include "intake/detagger/detagger.h"

#include "frame/EngineLibraries.h"
#include "frame/ProgramFolder.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <strings.h>

namespace detagger {
namespace {

struct PolicyValueCase {
    const char* name;
    const char* value;
    ErrorCode code;
};

void PrintTo(const PolicyValueCase& c, std::ostream* os) {
    *os << c.name << "=" << c.value;
}

class PolicyValues : public ::testing::TestWithParam<PolicyValueCase> {};

TEST_P(PolicyValues, AreTakenOrRefusedWithTheirCode) {
    Policies p;
    const Policies before = p;
    const ErrorCode code = SetPolicy(p, GetParam().name, GetParam().value);
    EXPECT_EQ(code, GetParam().code);
    std::string back;
    if (code == kNoError) {
        ASSERT_TRUE(GetPolicy(p, GetParam().name, back));
        EXPECT_TRUE(strcasecmp(back.c_str(), GetParam().value) == 0 ||
                    std::stoi(back) == std::stoi(GetParam().value));
    } else {
        EXPECT_EQ(p.pageWidth, before.pageWidth);
        EXPECT_EQ(p.allow8Bit, before.allow8Bit);
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, PolicyValues,
    ::testing::Values(
        PolicyValueCase{"Add URL references at end of file", "Yes", kNoError},
        PolicyValueCase{"Display link URLs", "no", kNoError},
        PolicyValueCase{"Allow 8-bit ANSI values in output", "No", kNoError},
        PolicyValueCase{"Allow ANSI alternatives (e.g. space for &nbsp;)", "YES", kNoError},
        PolicyValueCase{"Output each paragraph on a single line", "Yes", kNoError},
        PolicyValueCase{"Impose a page width on the output", "Maybe", kInvalidPolicyValue},
        PolicyValueCase{"Target Page width", "79", kNoError},
        PolicyValueCase{"Target Page width", "5", kInvalidPolicyValue},
        PolicyValueCase{"Target Page width", "79x", kInvalidPolicyValue},
        PolicyValueCase{"Target Page width", "", kInvalidPolicyValue},
        PolicyValueCase{"Target page width", "79", kUnknownPolicy},
        PolicyValueCase{"Display link URLs ", "Yes", kUnknownPolicy}));

// The real library, loaded from the program's folder as the program loads it.
class Api : public ::testing::Test {
  protected:
    void SetUp() override {
        orvane::FreeEngines();
        orvane::gAppPath = ORVANE_BIN_DIR;
    }
    void TearDown() override {
        orvane::FreeEngines();
        orvane::gAppPath = saved_;
    }
    template <typename Fn> Fn* Get(const char* name) {
        return reinterpret_cast<Fn*>(orvane::EngineSymbol(orvane::Engine::Detagger, name));
    }
    int Allocate() { return Get<decltype(CONVERTER_Allocate)>("CONVERTER_Allocate")(); }
    int Set(int h, const char* name, const char* value, int& code) {
        return Get<decltype(CONVERTER_SetPolicyValue_Ptr)>("CONVERTER_SetPolicyValue_Ptr")(
            h, name, value, &code);
    }
    int Convert(int h, const char* in, const char* out, int& code) {
        return Get<decltype(CONVERTER_DoFileConvert_Ptr)>("CONVERTER_DoFileConvert_Ptr")(
            h, 7, in, out, &code);
    }
    void Free(int& h) { Get<decltype(CONVERTER_Free)>("CONVERTER_Free")(&h); }

  private:
    std::string saved_ = orvane::gAppPath;
};

TEST_F(Api, ErrorCodesOfTheCalls) {
    orvane::test::TempDir dir;
    const std::string page = dir.Write("p.html", "<p>x");
    const std::string out = dir.Path() + "out.txt";
    int h = Allocate();
    ASSERT_NE(h, 0);
    int code = -1;
    EXPECT_EQ(Set(h, nullptr, "Yes", code), 1);
    EXPECT_EQ(code, kNullArgument);
    EXPECT_EQ(Set(h, "Bogus", "Yes", code), 1);
    EXPECT_EQ(code, kUnknownPolicy);
    EXPECT_EQ(Convert(h, "", out.c_str(), code), 1);
    EXPECT_EQ(code, kNoHtmlFile);
    EXPECT_EQ(Convert(h, page.c_str(), nullptr, code), 1);
    EXPECT_EQ(code, kNoTextFile);
    EXPECT_EQ(Convert(h, (dir.Path() + "gone.html").c_str(), out.c_str(), code), 1);
    EXPECT_EQ(code, kFileNotFound);
    EXPECT_EQ(Convert(h, dir.Path().c_str(), out.c_str(), code), 1);
    EXPECT_EQ(code, kFileNotOpened);
    EXPECT_EQ(Convert(h, page.c_str(), (dir.Path() + "no/such/dir.txt").c_str(), code), 1);
    EXPECT_EQ(code, kFileNotOpened);
    // A page beyond the size cap is refused before it is read (the file is sparse).
    const std::string huge = dir.Write("huge.html", "");
    std::filesystem::resize_file(huge, kMaxInputBytes + 1);
    EXPECT_EQ(Convert(h, huge.c_str(), out.c_str(), code), 1);
    EXPECT_EQ(code, kConversionFailed);
    EXPECT_EQ(Convert(h, page.c_str(), out.c_str(), code), 0);
    EXPECT_EQ(code, kNoError);

    char value[4];
    auto getValue = Get<decltype(CONVERTER_GetPolicyValue_Ptr)>("CONVERTER_GetPolicyValue_Ptr");
    EXPECT_EQ(getValue(h, "Target Page width", value, sizeof value, &code), 0);
    EXPECT_STREQ(value, "79");
    EXPECT_EQ(getValue(h, "Display link URLs", value, 2, &code), 1);
    EXPECT_EQ(code, kBufferTooSmall);

    Free(h);
    EXPECT_EQ(h, 0);
}

TEST_F(Api, FreedOrUnknownHandleGivesCodeOne) {
    int h = Allocate();
    const int stale = h;
    Free(h);
    int code = 0;
    EXPECT_EQ(Set(stale, "Display link URLs", "Yes", code), 1);
    EXPECT_EQ(code, kApiCallNotMade);
    EXPECT_EQ(Convert(-5, "a", "b", code), 1);
    EXPECT_EQ(code, kApiCallNotMade);
}

TEST_F(Api, HandlesKeepTheirOwnPolicies) {
    int a = Allocate(), b = Allocate();
    int code = 0;
    ASSERT_EQ(Set(a, "Target Page width", "40", code), 0);
    char value[8];
    auto getValue = Get<decltype(CONVERTER_GetPolicyValue_Ptr)>("CONVERTER_GetPolicyValue_Ptr");
    getValue(b, "Target Page width", value, sizeof value, &code);
    EXPECT_STREQ(value, "79");
    Get<decltype(CONVERTER_ResetPolicies)>("CONVERTER_ResetPolicies")(a, &code);
    getValue(a, "Target Page width", value, sizeof value, &code);
    EXPECT_STREQ(value, "79");
    Free(a);
    Free(b);
}

} // namespace
} // namespace detagger
