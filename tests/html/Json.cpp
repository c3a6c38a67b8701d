#include "Json.h"

#include "intake/html/Utf8.h"

#include <cstdlib>

namespace json {
namespace {

class Parser {
  public:
    explicit Parser(std::string_view text) : text_(text) {}

    Value ParseDocument() {
        Value value = ParseValue();
        SkipSpace();
        if (pos_ != text_.size()) Fail("trailing characters");
        return value;
    }

  private:
    [[noreturn]] void Fail(const std::string& what) const {
        throw SyntaxError(what + " at byte " + std::to_string(pos_));
    }

    void SkipSpace() {
        while (pos_ < text_.size() && (text_[pos_] == ' ' || text_[pos_] == '\n' ||
                                       text_[pos_] == '\r' || text_[pos_] == '\t'))
            ++pos_;
    }

    char Peek() {
        SkipSpace();
        if (pos_ == text_.size()) Fail("unexpected end");
        return text_[pos_];
    }

    void Expect(char c) {
        if (Peek() != c) Fail(std::string("expected '") + c + "'");
        ++pos_;
    }

    bool TakeWord(std::string_view word) {
        if (text_.substr(pos_, word.size()) != word) return false;
        pos_ += word.size();
        return true;
    }

    Value ParseValue() {
        Value v;
        const char c = Peek();
        if (c == '{') {
            ParseObject(v);
        } else if (c == '[') {
            ParseArray(v);
        } else if (c == '"') {
            v.kind = Value::Kind::String;
            v.string = ParseString();
        } else if (TakeWord("true") || TakeWord("false")) {
            v.kind = Value::Kind::Bool;
            v.boolean = c == 't';
        } else if (!TakeWord("null")) {
            ParseNumber(v);
        }
        return v;
    }

    void ParseObject(Value& v) {
        v.kind = Value::Kind::Object;
        Expect('{');
        if (Peek() == '}') return void(++pos_);
        do {
            Peek();
            std::u32string key = ParseString();
            Expect(':');
            v.object.emplace_back(std::move(key), ParseValue());
        } while (TakeComma());
        Expect('}');
    }

    void ParseArray(Value& v) {
        v.kind = Value::Kind::Array;
        Expect('[');
        if (Peek() == ']') return void(++pos_);
        do
            v.array.push_back(ParseValue());
        while (TakeComma());
        Expect(']');
    }

    bool TakeComma() {
        if (Peek() != ',') return false;
        ++pos_;
        return true;
    }

    void ParseNumber(Value& v) {
        const std::string rest(text_.substr(pos_, 64));
        char* end = nullptr;
        v.number = std::strtod(rest.c_str(), &end);
        if (end == rest.c_str()) Fail("unexpected character");
        v.kind = Value::Kind::Number;
        pos_ += static_cast<std::size_t>(end - rest.c_str());
    }

    std::u32string ParseString() {
        Expect('"');
        std::u32string out;
        std::size_t runStart = pos_;
        for (;;) {
            if (pos_ >= text_.size()) Fail("unterminated string");
            const char c = text_[pos_];
            if (c != '"' && c != '\\') {
                ++pos_;
                continue;
            }
            out += html::DecodeUtf8(text_.substr(runStart, pos_ - runStart));
            ++pos_;
            if (c == '"') return out;
            out.push_back(ParseEscape());
            JoinSurrogatePair(out);
            runStart = pos_;
        }
    }

    // A high and a low surrogate escape make one character; a lone one stays as it is, since
    // the data means it.
    void JoinSurrogatePair(std::u32string& out) {
        const char32_t high = out.back();
        if (high < 0xD800 || high > 0xDBFF || text_.substr(pos_, 2) != "\\u") return;
        const std::size_t save = pos_;
        pos_ += 2;
        const char32_t low = ParseHex4();
        if (low < 0xDC00 || low > 0xDFFF) {
            pos_ = save;
            return;
        }
        out.back() = 0x10000 + ((high - 0xD800) << 10) + (low - 0xDC00);
    }

    char32_t ParseEscape() {
        if (pos_ >= text_.size()) Fail("unterminated escape");
        const char c = text_[pos_++];
        switch (c) {
        case 'b':
            return '\b';
        case 'f':
            return '\f';
        case 'n':
            return '\n';
        case 'r':
            return '\r';
        case 't':
            return '\t';
        case 'u':
            return ParseHex4();
        case '"':
        case '\\':
        case '/':
            return static_cast<char32_t>(c);
        default:
            Fail("bad escape");
        }
    }

    char32_t ParseHex4() {
        if (pos_ + 4 > text_.size()) Fail("short \\u escape");
        const std::string digits(text_.substr(pos_, 4));
        char* end = nullptr;
        const unsigned long value = std::strtoul(digits.c_str(), &end, 16);
        if (end != digits.c_str() + 4) Fail("bad \\u escape");
        pos_ += 4;
        return static_cast<char32_t>(value);
    }

    std::string_view text_;
    std::size_t pos_ = 0;
};

} // namespace

const Value* Value::Find(std::u32string_view key) const {
    for (const auto& [name, value] : object)
        if (name == key) return &value;
    return nullptr;
}

Value Parse(std::string_view utf8) {
    return Parser(utf8).ParseDocument();
}

} // namespace json
