#include "intake/html/EncodingPrescan.h"

#include "intake/html/EncodingLabels.h"

#include <optional>
#include <string>
#include <unordered_set>

namespace html {
namespace {

constexpr std::string_view kSpaces = "\t\n\f\r ";

bool IsSpace(char c) {
    return kSpaces.find(c) != std::string_view::npos;
}
bool IsAlpha(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
char Lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool StartsWithNoCase(std::string_view s, std::size_t at, std::string_view word) {
    if (s.size() - at < word.size()) return false;
    for (std::size_t i = 0; i < word.size(); ++i)
        if (Lower(s[at + i]) != word[i]) return false;
    return true;
}

struct ByteAttribute {
    std::string name;
    std::string value;
};

enum class Got { Attribute, NoMore, EndOfInput };

// Running off the end anywhere gives no answer; `endOfInput` says so.
struct MetaOutcome {
    bool endOfInput = false;
    std::string_view encoding;
};

class Prescanner {
  public:
    explicit Prescanner(std::string_view bytes) : b_(bytes) {}
    std::string_view Run();

  private:
    bool AtEnd() const { return pos_ >= b_.size(); }
    char Byte() const { return b_[pos_]; }
    bool SkipPast(std::string_view marker, std::size_t from);
    bool StartsTag() const;
    bool SkipTag();
    MetaOutcome Meta();
    Got GetAttribute(ByteAttribute& a);
    Got ReadValue(ByteAttribute& a);

    std::string_view b_;
    std::size_t pos_ = 0;
};

std::string_view Prescanner::Run() {
    if (b_.starts_with(std::string_view("<\0?\0x\0", 6))) return "utf-16le";
    if (b_.starts_with(std::string_view("\0<\0?\0x", 6))) return "utf-16be";
    for (; !AtEnd(); ++pos_) {
        if (b_.compare(pos_, 4, "<!--") == 0) {
            // The dashes of "<!--" may close it too: "<!-->" is a whole comment.
            if (!SkipPast("-->", pos_ + 2)) return {};
        } else if (StartsWithNoCase(b_, pos_, "<meta") && pos_ + 5 < b_.size() &&
                   (IsSpace(b_[pos_ + 5]) || b_[pos_ + 5] == '/')) {
            pos_ += 5;
            const MetaOutcome outcome = Meta();
            if (outcome.endOfInput) return {};
            if (!outcome.encoding.empty()) return outcome.encoding;
        } else if (StartsTag()) {
            if (!SkipTag()) return {};
        } else if (Byte() == '<' && pos_ + 1 < b_.size() &&
                   std::string_view("!/?").find(b_[pos_ + 1]) != std::string_view::npos) {
            if (!SkipPast(">", pos_ + 2)) return {};
        }
    }
    return {};
}

// Leaves pos_ on the last byte of the marker.
bool Prescanner::SkipPast(std::string_view marker, std::size_t from) {
    const std::size_t at = b_.find(marker, from);
    if (at == std::string_view::npos) return false;
    pos_ = at + marker.size() - 1;
    return true;
}

bool Prescanner::StartsTag() const {
    if (Byte() != '<') return false;
    const std::size_t letter = pos_ + (pos_ + 1 < b_.size() && b_[pos_ + 1] == '/' ? 2 : 1);
    return letter < b_.size() && IsAlpha(b_[letter]);
}

// Any other tag: its attributes are read only so that a ">" inside a quoted value is skipped.
bool Prescanner::SkipTag() {
    pos_ = b_.find_first_of("\t\n\f\r >", pos_);
    if (pos_ == std::string_view::npos) return false;
    for (;;) {
        ByteAttribute ignored;
        const Got got = GetAttribute(ignored);
        if (got == Got::EndOfInput) return false;
        if (got == Got::NoMore) return true;
    }
}

MetaOutcome Prescanner::Meta() {
    std::unordered_set<std::string> seen;
    bool gotPragma = false;
    std::optional<bool> needPragma;
    std::optional<std::string_view> charset; // set but empty: a label that names nothing
    for (;;) {
        ByteAttribute a;
        const Got got = GetAttribute(a);
        if (got == Got::EndOfInput) return {true, {}};
        if (got == Got::NoMore) break;
        if (!seen.insert(a.name).second) continue;
        if (a.name == "http-equiv") {
            gotPragma = gotPragma || a.value == "content-type";
        } else if (a.name == "content" && !charset) {
            const std::string_view found = ExtractEncodingFromMetaContent(a.value);
            if (!found.empty()) {
                charset = found;
                needPragma = true;
            }
        } else if (a.name == "charset") {
            charset = GetEncoding(a.value);
            needPragma = false;
        }
    }
    if (!needPragma || (*needPragma && !gotPragma) || !charset || charset->empty()) return {};
    if (*charset == "utf-16be" || *charset == "utf-16le") return {false, "utf-8"};
    if (*charset == "x-user-defined") return {false, "windows-1252"};
    return {false, *charset};
}

Got Prescanner::GetAttribute(ByteAttribute& a) {
    while (!AtEnd() && (IsSpace(Byte()) || Byte() == '/'))
        ++pos_;
    if (AtEnd()) return Got::EndOfInput;
    if (Byte() == '>') return Got::NoMore;
    for (;; ++pos_) {
        if (AtEnd()) return Got::EndOfInput;
        const char c = Byte();
        if (c == '=' && !a.name.empty()) {
            ++pos_;
            return ReadValue(a);
        }
        if (IsSpace(c)) break;
        if (c == '/' || c == '>') return Got::Attribute;
        a.name.push_back(Lower(c));
    }
    while (!AtEnd() && IsSpace(Byte()))
        ++pos_;
    if (AtEnd()) return Got::EndOfInput;
    if (Byte() != '=') return Got::Attribute;
    ++pos_;
    return ReadValue(a);
}

Got Prescanner::ReadValue(ByteAttribute& a) {
    while (!AtEnd() && IsSpace(Byte()))
        ++pos_;
    if (AtEnd()) return Got::EndOfInput;
    const char quote = Byte();
    if (quote == '"' || quote == '\'') {
        for (++pos_; !AtEnd(); ++pos_) {
            if (Byte() == quote) {
                ++pos_;
                return Got::Attribute;
            }
            a.value.push_back(Lower(Byte()));
        }
        return Got::EndOfInput;
    }
    if (quote == '>') return Got::Attribute;
    for (; !AtEnd(); ++pos_) {
        if (IsSpace(Byte()) || Byte() == '>') return Got::Attribute;
        a.value.push_back(Lower(Byte()));
    }
    return Got::EndOfInput;
}

std::size_t FindNoCase(std::string_view s, std::string_view word, std::size_t from) {
    for (std::size_t at = from; at + word.size() <= s.size(); ++at)
        if (StartsWithNoCase(s, at, word)) return at;
    return std::string_view::npos;
}

} // namespace

std::string_view PrescanForEncoding(std::string_view bytes) {
    return Prescanner(bytes).Run();
}

std::string_view ExtractEncodingFromMetaContent(std::string_view s) {
    constexpr std::string_view kWord = "charset";
    for (std::size_t pos = 0;;) {
        const std::size_t at = FindNoCase(s, kWord, pos);
        if (at == std::string_view::npos) return {};
        pos = s.find_first_not_of(kSpaces, at + kWord.size());
        if (pos == std::string_view::npos) return {};
        if (s[pos] != '=') continue;
        pos = s.find_first_not_of(kSpaces, pos + 1);
        if (pos == std::string_view::npos) return {};
        const char c = s[pos];
        if (c == '"' || c == '\'') {
            const std::size_t close = s.find(c, pos + 1);
            if (close == std::string_view::npos) return {};
            return GetEncoding(s.substr(pos + 1, close - pos - 1));
        }
        const std::size_t end = s.find_first_of(";\t\n\f\r ", pos);
        return GetEncoding(s.substr(pos, end == std::string_view::npos ? end : end - pos));
    }
}

} // namespace html
