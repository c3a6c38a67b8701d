// The html5lib tokenizer data, run in place from the copy under tests/corpora: every case in every
// initial state it names, tokens and parse errors (code, line and column) both compared.
#include "TokenizerCases.h"
#include "intake/html/Tokenizer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <map>

namespace {

const std::filesystem::path kTokenizerDir =
    std::filesystem::path(ORVANE_CORPORA_DIR) / "html5lib-tests/tokenizer";

// The data's own count; a shortfall means files went missing, not that cases passed.
constexpr std::size_t kExpectedCases = 6810;
constexpr double kRequiredPassRate = 0.99;

// What the XML infoset coercion would do to the tokens, which xmlViolation.test assumes.
void CoerceToInfoset(std::vector<html::Token>& tokens) {
    for (html::Token& t : tokens) {
        for (char32_t& c : t.data) {
            if (c == '\f' && t.kind == html::TokenKind::Character) c = ' ';
            if ((c & 0xFFFE) == 0xFFFE) c = 0xFFFD;
        }
        if (t.kind != html::TokenKind::Comment) continue;
        for (std::size_t at = t.data.find(U"--"); at != std::u32string::npos;
             at = t.data.find(U"--", at + 2))
            t.data.insert(at + 1, U" ");
    }
}

// The data counts columns in UTF-16 code units; ours are characters.
std::size_t Utf16Column(std::u32string_view text, std::size_t offset, html::Location at) {
    std::size_t column = at.column;
    const std::size_t lineStart = offset - (at.column - 1);
    for (std::size_t i = lineStart; i < offset && i < text.size(); ++i)
        column += text[i] > 0xFFFF;
    return column;
}

struct RunResult {
    std::vector<html::Token> tokens;
    std::vector<std::string> errors;
};

RunResult Run(const TokenizerCase& c, html::State state) {
    html::Tokenizer tokenizer(c.input);
    tokenizer.SetState(state);
    if (c.lastStartTag) tokenizer.SetLastStartTag(*c.lastStartTag);
    RunResult r;
    for (html::Token t; tokenizer.Next(t);)
        if (t.kind != html::TokenKind::EndOfFile) r.tokens.push_back(std::move(t));
    JoinCharacterTokens(r.tokens);
    for (const html::ParseError& e : tokenizer.Errors()) {
        const html::Location at = tokenizer.Input().LocationOf(e.offset);
        const std::size_t column = Utf16Column(tokenizer.Input().Text(), e.offset, at);
        r.errors.push_back(std::to_string(at.line) + ":" + std::to_string(column) + " " +
                           std::string(html::ParseErrorName(e.code)));
    }
    std::sort(r.errors.begin(), r.errors.end());
    return r;
}

std::string Join(const std::vector<std::string>& lines) {
    std::string out;
    for (const auto& l : lines)
        out += "\n      " + l;
    return out.empty() ? "\n      (none)" : out;
}

std::vector<std::string> Formatted(const std::vector<html::Token>& tokens) {
    std::vector<std::string> out;
    for (const auto& t : tokens)
        out.push_back(FormatToken(t));
    return out;
}

// Empty when the run matches; otherwise why it does not.
std::string Check(const TokenizerCase& c, const std::string& stateName) {
    const auto state = StateFromName(stateName);
    if (!state) return "unknown initial state";
    RunResult r = Run(c, *state);
    if (c.xmlViolation) CoerceToInfoset(r.tokens);
    const auto expected = Formatted(c.output);
    const auto actual = Formatted(r.tokens);
    if (expected != actual)
        return "tokens differ\n    expected:" + Join(expected) + "\n    actual:" + Join(actual);
    if (!c.xmlViolation && c.errors != r.errors)
        return "errors differ\n    expected:" + Join(c.errors) + "\n    actual:" + Join(r.errors);
    return {};
}

TEST(Html5libTokenizer, AtLeast99PercentOfTheCasesPass) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(kTokenizerDir))
        if (entry.path().extension() == ".test") files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    ASSERT_EQ(files.size(), 14u) << "tokenizer data missing under " << kTokenizerDir;

    std::size_t cases = 0, passed = 0, runs = 0, runsPassed = 0;
    std::map<std::string, std::pair<std::size_t, std::size_t>> perFile; // passed, total
    for (const auto& file : files) {
        for (const TokenizerCase& c : LoadTokenizerCases(file)) {
            bool ok = true;
            for (const std::string& stateName : c.stateNames) {
                const std::string why = Check(c, stateName);
                ++runs;
                if (why.empty()) {
                    ++runsPassed;
                    continue;
                }
                ok = false;
                std::cout << "FAIL " << c.file << ": " << c.description << " [" << stateName
                          << "]: " << why << "\n";
            }
            ++cases;
            passed += ok;
            perFile[c.file].first += ok;
            ++perFile[c.file].second;
        }
    }
    for (const auto& [file, counts] : perFile)
        std::cout << "  " << file << ": " << counts.first << "/" << counts.second << "\n";
    std::cout << "html5lib tokenizer: " << passed << "/" << cases << " cases, " << runsPassed << "/"
              << runs << " runs passed\n";
    EXPECT_EQ(cases, kExpectedCases);
    EXPECT_GE(static_cast<double>(passed), kRequiredPassRate * static_cast<double>(cases));
}

} // namespace
