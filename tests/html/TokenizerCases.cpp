#include "TokenizerCases.h"

#include "Json.h"
#include "intake/html/Tokenizer.h"
#include "intake/html/Utf8.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <sstream>

namespace {

using json::Value;

std::string Narrow(std::u32string_view text) {
    return html::EncodeUtf8(text);
}

void JoinSurrogates(std::u32string& s) {
    if (s.size() < 2) return;
    const char32_t high = s[s.size() - 2];
    const char32_t low = s.back();
    if (high < 0xD800 || high > 0xDBFF || low < 0xDC00 || low > 0xDFFF) return;
    s.pop_back();
    s.back() = 0x10000 + ((high - 0xD800) << 10) + (low - 0xDC00);
}

// doubleEscaped data spells some characters as \uHHHH inside the JSON string itself.
std::u32string Unescape(std::u32string_view s) {
    std::u32string out;
    for (std::size_t i = 0; i < s.size(); ++i) {
        if (s[i] == '\\' && i + 5 < s.size() && s[i + 1] == 'u') {
            out.push_back(
                static_cast<char32_t>(std::stoul(Narrow(s.substr(i + 2, 4)), nullptr, 16)));
            i += 5;
            JoinSurrogates(out);
        } else {
            out.push_back(s[i]);
        }
    }
    return out;
}

std::u32string Str(const Value& v, bool doubleEscaped) {
    return doubleEscaped ? Unescape(v.string) : v.string;
}

std::optional<std::u32string> OptStr(const Value& v, bool doubleEscaped) {
    if (v.IsNull()) return std::nullopt;
    return Str(v, doubleEscaped);
}

html::Token TokenFromJson(const Value& v, bool esc) {
    const std::vector<Value>& a = v.array;
    const std::string kind = Narrow(a.at(0).string);
    html::Token t;
    if (kind == "DOCTYPE") {
        t.kind = html::TokenKind::Doctype;
        t.nameMissing = a.at(1).IsNull();
        t.name = Str(a.at(1), esc);
        t.publicId = OptStr(a.at(2), esc);
        t.systemId = OptStr(a.at(3), esc);
        t.forceQuirks = !a.at(4).boolean;
    } else if (kind == "StartTag" || kind == "EndTag") {
        t.kind = kind == "StartTag" ? html::TokenKind::StartTag : html::TokenKind::EndTag;
        t.name = Str(a.at(1), esc);
        if (a.size() > 2)
            for (const auto& [name, value] : a[2].object)
                t.attributes.push_back({esc ? Unescape(name) : name, Str(value, esc)});
        t.selfClosing = a.size() > 3 && a[3].boolean;
    } else {
        t.kind = kind == "Comment" ? html::TokenKind::Comment : html::TokenKind::Character;
        t.data = Str(a.at(1), esc);
    }
    return t;
}

std::vector<std::string> ErrorsFromJson(const Value* errors) {
    std::vector<std::string> out;
    if (errors == nullptr) return out;
    for (const Value& e : errors->array) {
        const auto line = static_cast<long>(e.Find(U"line")->number);
        const auto col = static_cast<long>(e.Find(U"col")->number);
        out.push_back(std::to_string(line) + ":" + std::to_string(col) + " " +
                      Narrow(e.Find(U"code")->string));
    }
    std::sort(out.begin(), out.end());
    return out;
}

TokenizerCase CaseFromJson(const Value& v, const std::string& file, bool xmlViolation) {
    const Value* escaped = v.Find(U"doubleEscaped");
    const bool esc = escaped != nullptr && escaped->boolean;
    TokenizerCase c;
    c.file = file;
    c.description = Narrow(v.Find(U"description")->string);
    c.input = Str(*v.Find(U"input"), esc);
    for (const Value& t : v.Find(U"output")->array)
        c.output.push_back(TokenFromJson(t, esc));
    JoinCharacterTokens(c.output);
    c.errors = ErrorsFromJson(v.Find(U"errors"));
    if (const Value* states = v.Find(U"initialStates"))
        for (const Value& s : states->array)
            c.stateNames.push_back(Narrow(s.string));
    else
        c.stateNames.push_back("Data state");
    if (const Value* last = v.Find(U"lastStartTag")) c.lastStartTag = last->string;
    c.xmlViolation = xmlViolation;
    return c;
}

std::string Quote(std::u32string_view s) {
    std::string out = "\"";
    for (char32_t c : s) {
        if (c == '"' || c == '\\') {
            out += '\\';
            out += static_cast<char>(c);
        } else if (c >= 0x20 && c < 0x7F) {
            out += static_cast<char>(c);
        } else {
            char buf[16];
            std::snprintf(buf, sizeof buf, "\\u{%X}", static_cast<unsigned>(c));
            out += buf;
        }
    }
    return out + "\"";
}

std::string FormatDoctype(const html::Token& t) {
    const auto opt = [](const std::optional<std::u32string>& s) {
        return s ? Quote(*s) : std::string("null");
    };
    return "DOCTYPE " + (t.nameMissing ? std::string("null") : Quote(t.name)) + " " +
           opt(t.publicId) + " " + opt(t.systemId) + (t.forceQuirks ? " quirks" : "");
}

std::string FormatTag(const html::Token& t) {
    std::vector<html::Attribute> attributes = t.attributes;
    std::sort(attributes.begin(), attributes.end(),
              [](const auto& a, const auto& b) { return a.name < b.name; });
    std::string out = t.kind == html::TokenKind::StartTag ? "StartTag " : "EndTag ";
    out += Quote(t.name);
    if (t.kind == html::TokenKind::StartTag) {
        for (const auto& a : attributes)
            out += " " + Quote(a.name) + "=" + Quote(a.value);
        if (t.selfClosing) out += " /";
    }
    return out;
}

} // namespace

std::vector<TokenizerCase> LoadTokenizerCases(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::stringstream buffer;
    buffer << in.rdbuf();
    const Value root = json::Parse(buffer.str());
    const Value* tests = root.Find(U"tests");
    const bool xmlViolation = tests == nullptr;
    if (xmlViolation) tests = root.Find(U"xmlViolationTests");
    std::vector<TokenizerCase> cases;
    if (tests == nullptr) return cases;
    for (const Value& v : tests->array)
        cases.push_back(CaseFromJson(v, file.filename().string(), xmlViolation));
    return cases;
}

std::optional<html::State> StateFromName(const std::string& name) {
    using html::State;
    if (name == "Data state") return State::Data;
    if (name == "PLAINTEXT state") return State::Plaintext;
    if (name == "RCDATA state") return State::Rcdata;
    if (name == "RAWTEXT state") return State::Rawtext;
    if (name == "Script data state") return State::ScriptData;
    if (name == "CDATA section state") return State::CdataSection;
    return std::nullopt;
}

void JoinCharacterTokens(std::vector<html::Token>& tokens) {
    std::vector<html::Token> joined;
    for (html::Token& t : tokens) {
        const bool extends = !joined.empty() && t.kind == html::TokenKind::Character &&
                             joined.back().kind == html::TokenKind::Character;
        if (extends)
            joined.back().data += t.data;
        else
            joined.push_back(std::move(t));
    }
    tokens = std::move(joined);
}

std::string FormatToken(const html::Token& t) {
    switch (t.kind) {
    case html::TokenKind::Doctype:
        return FormatDoctype(t);
    case html::TokenKind::StartTag:
    case html::TokenKind::EndTag:
        return FormatTag(t);
    case html::TokenKind::Comment:
        return "Comment " + Quote(t.data);
    case html::TokenKind::Character:
        return "Character " + Quote(t.data);
    case html::TokenKind::EndOfFile:
        return "EOF";
    }
    return "?";
}

DrivenRun TokenizeLikeATreeBuilder(std::u32string_view input) {
    using html::State;
    html::Tokenizer tokenizer(input);
    DrivenRun run;
    for (html::Token t; tokenizer.Next(t);) {
        if (t.kind == html::TokenKind::StartTag) {
            const std::u32string& n = t.name;
            if (n == U"title" || n == U"textarea") tokenizer.SetState(State::Rcdata);
            if (n == U"style" || n == U"xmp") tokenizer.SetState(State::Rawtext);
            if (n == U"script") tokenizer.SetState(State::ScriptData);
            if (n == U"plaintext") tokenizer.SetState(State::Plaintext);
            if (n == U"svg" || n == U"math") tokenizer.SetCdataAllowed(true);
        }
        run.tokens.push_back(std::move(t));
    }
    run.steps = tokenizer.Steps();
    run.errors = tokenizer.Errors().size();
    return run;
}

std::string Slug(std::u32string_view text, std::size_t limit) {
    std::string out;
    for (char32_t c : text.substr(0, limit)) {
        const bool plain =
            (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
        char buf[16];
        std::snprintf(buf, sizeof buf, "_%X", static_cast<unsigned>(c));
        out += plain ? std::string(1, static_cast<char>(c)) : std::string(buf);
    }
    return out.empty() ? "empty" : out;
}

std::string Slug(std::string_view bytes, std::size_t limit) {
    std::u32string text;
    for (char b : bytes)
        text.push_back(static_cast<unsigned char>(b));
    return Slug(text, limit);
}
