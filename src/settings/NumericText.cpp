#include "settings/NumericText.h"

#include "frame/RuntimeError.h"

#include <charconv>
#include <cmath>
#include <string_view>

namespace orvane {
namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// The longest prefix of s that is a number, rewritten for std::from_chars ("+1.5D2" becomes
// "1.5e2"); empty when s does not start with one.
struct Scan {
    std::size_t Length = 0;
    std::string Normalized;
};

std::size_t TakeDigits(std::string_view s, std::size_t i, std::string& out) {
    while (i < s.size() && IsDigit(s[i]))
        out += s[i++];
    return i;
}

Scan ScanNumber(std::string_view s) {
    Scan r;
    std::size_t i = 0;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) {
        if (s[i] == '-') r.Normalized += '-';
        ++i;
    }
    const std::size_t mantissaStart = r.Normalized.size();
    i = TakeDigits(s, i, r.Normalized);
    if (i < s.size() && s[i] == '.') {
        r.Normalized += '.';
        i = TakeDigits(s, i + 1, r.Normalized);
    }
    const std::string_view mantissa = std::string_view(r.Normalized).substr(mantissaStart);
    if (mantissa.find_first_of("0123456789") == std::string_view::npos) return {};
    r.Length = i;
    if (i < s.size() && (s[i] == 'e' || s[i] == 'E' || s[i] == 'd' || s[i] == 'D')) {
        std::string exponent = "e";
        std::size_t j = i + 1;
        if (j < s.size() && (s[j] == '+' || s[j] == '-')) exponent += s[j++];
        const std::size_t end = TakeDigits(s, j, exponent);
        if (end > j) { // an exponent without digits is not part of the number
            r.Normalized += exponent;
            r.Length = end;
        }
    }
    return r;
}

std::string_view TrimBlanks(std::string_view s) {
    const auto first = s.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return s.substr(first, s.find_last_not_of(" \t") - first + 1);
}

double ToDouble(const std::string& normalized) {
    double value = 0;
    const char* end = normalized.data() + normalized.size();
    const auto [ptr, ec] = std::from_chars(normalized.data(), end, value);
    if (ec == std::errc::result_out_of_range) {
        // from_chars also reports underflow; only a too large magnitude is an overflow
        const auto e = normalized.find('e');
        if (e != std::string::npos && normalized[e + 1] == '-') return 0.0;
        throw RuntimeError(err::Overflow);
    }
    if (ec != std::errc() || ptr != end) throw RuntimeError(err::TypeMismatch);
    return value;
}

} // namespace

bool IsNumeric(const std::string& text) {
    const std::string_view t = TrimBlanks(text);
    return !t.empty() && ScanNumber(t).Length == t.size();
}

std::int32_t ToLongRounded(const std::string& text) {
    if (!IsNumeric(text)) throw RuntimeError(err::TypeMismatch);
    const double rounded = std::nearbyint(ToDouble(ScanNumber(TrimBlanks(text)).Normalized));
    if (!(rounded >= -2147483648.0 && rounded <= 2147483647.0)) throw RuntimeError(err::Overflow);
    return static_cast<std::int32_t>(rounded);
}

double LeadingNumber(const std::string& text) {
    std::string compact;
    for (char c : text)
        if (c != ' ' && c != '\t' && c != '\n') compact += c;
    const Scan scan = ScanNumber(compact);
    return scan.Length == 0 ? 0.0 : ToDouble(scan.Normalized);
}

} // namespace orvane
