// The yardstick: on real pages shipped with Debian packages, the words of our text against the
// words of `w3m -dump`. Their longest common subsequence counts the words both give in the same
// order; it must hold at least 95% of w3m's words, and our extra words (markup or script text
// that leaked) must stay as rare.
#include "support/Process.h"

#include "intake/detagger/Convert.h"
#include "intake/html/Utf8.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <unordered_map>

namespace orvane::test {
namespace {

constexpr double kRequiredShare = 0.95;
constexpr std::size_t kMinimumPages = 5; // fewer present: not a measurement, skip

const char* const kPages[] = {
    "/usr/share/doc/ninja-build/manual.html",
    "/usr/share/doc/python3/python-policy.html",
    "/usr/share/doc/base-passwd/users-and-groups.html",
    "/usr/share/doc/shared-mime-info/shared-mime-info-spec.html/index.html",
    "/usr/share/doc/shared-mime-info/shared-mime-info-spec.html/x34.html",
    "/usr/share/doc/fontconfig/fontconfig-user.html",
    "/usr/share/doc/bzip2/manual.html",
    "/usr/share/doc/gcc-12-base/NEWS.html",
    "/usr/share/doc/time/time.html",
    "/usr/share/doc/nettle-dev/nettle.html",
    "/usr/share/doc/xtrans-dev/xtrans.html",
    "/usr/share/doc/libexpat1-dev/expat.html/reference.html",
    "/usr/share/doc/zlib1g-dev/examples/zlib_how.html",
    "/usr/share/doc/bc/bc.html",
    "/usr/share/doc/libffi8/html/The-Basics.html",
    "/usr/share/doc/libffi8/html/Index.html",
    "/usr/share/doc/libffi8/html/Primitive-Types.html",
    "/usr/share/doc/libffi8/html/The-Closure-API.html",
    "/usr/share/doc/libffi8/html/Structures.html",
    "/usr/share/doc/libffi8/html/Types.html",
};

std::string ReadFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}

bool Capture(const std::vector<std::string>& args, std::string& out) {
    ProgramRun run = RunProgram(args);
    out = std::move(run.out);
    return run.started && run.exitCode == 0;
}

bool HaveW3m() {
    std::string out;
    return Capture({"w3m", "-version"}, out);
}

// Letters and digits, roughly: ASCII ones, and code points above ASCII that are not Latin-1
// punctuation or the symbol blocks w3m draws rules and bullets with.
bool IsWordCharacter(char32_t c) {
    if (c < 0x80) return std::isalnum(static_cast<int>(c)) != 0;
    return !(c <= 0xBF || (c >= 0x2000 && c <= 0x2BFF) || c == 0xD7 || c == 0xF7);
}

std::vector<std::string> Words(const std::string& text) {
    std::vector<std::string> words;
    std::u32string word;
    for (char32_t c : html::DecodeUtf8(text) + U" ") {
        if (IsWordCharacter(c)) {
            word.push_back(c);
        } else if (!word.empty()) {
            words.push_back(html::EncodeUtf8(word));
            word.clear();
        }
    }
    return words;
}

// Length of the longest common subsequence, 64 cells at a time (Hyyro's bit-vector recurrence).
std::size_t CommonWords(const std::vector<std::string>& a, const std::vector<std::string>& b) {
    const std::size_t blocks = (a.size() + 63) / 64;
    std::unordered_map<std::string, std::vector<std::uint64_t>> masks;
    for (std::size_t i = 0; i < a.size(); ++i) {
        auto& m = masks[a[i]];
        if (m.empty()) m.assign(blocks, 0);
        m[i / 64] |= std::uint64_t{1} << (i % 64);
    }
    std::vector<std::uint64_t> v(blocks, ~std::uint64_t{0});
    for (const std::string& w : b) {
        const auto it = masks.find(w);
        if (it == masks.end()) continue;
        std::uint64_t carry = 0;
        for (std::size_t k = 0; k < blocks; ++k) {
            const std::uint64_t u = v[k] & it->second[k];
            const std::uint64_t sum = v[k] + u + carry;
            carry = (sum < v[k] || (carry && sum == v[k])) ? 1 : 0;
            v[k] = sum | (v[k] - u);
        }
    }
    std::size_t zeros = 0;
    for (std::size_t i = 0; i < a.size(); ++i)
        zeros += ((v[i / 64] >> (i % 64)) & 1) == 0;
    return zeros;
}

TEST(W3mYardstick, CommonWordsInOrder) {
    if (!HaveW3m()) GTEST_SKIP() << "w3m is not installed (tools/setup.sh installs it)";
    detagger::Policies policies; // the four the program always sets are these defaults
    std::size_t pages = 0, theirs = 0, ours = 0, common = 0;
    for (const char* page : kPages) {
        if (!std::filesystem::exists(page)) continue;
        std::string dump;
        ASSERT_TRUE(
            Capture({"w3m", "-dump", "-cols", "200", "-T", "text/html", "-O", "UTF-8", page}, dump))
            << page;
        const auto reference = Words(dump);
        const auto mine = Words(detagger::ConvertHtml(ReadFile(page), policies));
        const std::size_t c = CommonWords(reference, mine);
        std::cout << page << ": " << c << " of w3m's " << reference.size() << " words ("
                  << 100.0 * c / reference.size() << "%), " << mine.size() - c << " extra\n";
        EXPECT_GE(c, kRequiredShare * reference.size()) << page;
        EXPECT_LE(mine.size() - c, (1 - kRequiredShare) * mine.size()) << page;
        ++pages;
        theirs += reference.size();
        ours += mine.size();
        common += c;
    }
    if (pages < kMinimumPages) GTEST_SKIP() << "only " << pages << " of the pages are installed";
    std::cout << "yardstick: " << pages << " pages, " << common << " of w3m's " << theirs
              << " words in order (" << 100.0 * common / theirs << "%), " << ours - common
              << " extra of our " << ours << "\n";
    EXPECT_GE(common, kRequiredShare * theirs);
}

} // namespace
} // namespace orvane::test
