#include "intake/detagger/Policies.h"

#include <array>
#include <cctype>
#include <charconv>

namespace detagger {
namespace {

// Widths below this leave no room for a word and an indent; above the upper one a "page" is
// no longer one.
constexpr int kMinPageWidth = 10;
constexpr int kMaxPageWidth = 10000;

struct Switch {
    std::string_view name;
    bool Policies::*field;
};

constexpr std::array<Switch, 6> kSwitches = {{
    {"Add URL references at end of file", &Policies::addUrlReferences},
    {"Display link URLs", &Policies::displayLinkUrls},
    {"Allow 8-bit ANSI values in output", &Policies::allow8Bit},
    {"Allow ANSI alternatives (e.g. space for &nbsp;)", &Policies::allowAlternatives},
    {"Output each paragraph on a single line", &Policies::singleLineParagraphs},
    {"Impose a page width on the output", &Policies::imposePageWidth},
}};

constexpr std::string_view kPageWidth = "Target Page width";

bool EqualsNoCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (std::tolower(static_cast<unsigned char>(a[i])) !=
            std::tolower(static_cast<unsigned char>(b[i])))
            return false;
    return true;
}

} // namespace

ErrorCode SetPolicy(Policies& policies, std::string_view name, std::string_view value) {
    for (const Switch& s : kSwitches) {
        if (name != s.name) continue;
        if (EqualsNoCase(value, "Yes"))
            policies.*s.field = true;
        else if (EqualsNoCase(value, "No"))
            policies.*s.field = false;
        else
            return kInvalidPolicyValue;
        return kNoError;
    }
    if (name != kPageWidth) return kUnknownPolicy;
    int width = 0;
    const auto [end, ec] = std::from_chars(value.data(), value.data() + value.size(), width);
    if (ec != std::errc() || end != value.data() + value.size() || width < kMinPageWidth ||
        width > kMaxPageWidth)
        return kInvalidPolicyValue;
    policies.pageWidth = width;
    return kNoError;
}

bool GetPolicy(const Policies& policies, std::string_view name, std::string& value) {
    for (const Switch& s : kSwitches) {
        if (name != s.name) continue;
        value = policies.*s.field ? "Yes" : "No";
        return true;
    }
    if (name != kPageWidth) return false;
    value = std::to_string(policies.pageWidth);
    return true;
}

} // namespace detagger
