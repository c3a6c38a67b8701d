#pragma once

#include "intake/html/Token.h"
#include "intake/html/TokenizerState.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

// One case of the html5lib tokenizer data, decoded into the tokenizer's own terms.
struct TokenizerCase {
    std::string file;
    std::string description;
    std::u32string input;
    std::vector<html::Token> output;     // adjacent characters already joined
    std::vector<std::string> errors;     // "line:col code", sorted
    std::vector<std::string> stateNames; // as the data names them
    std::optional<std::u32string> lastStartTag;
    bool xmlViolation = false; // expects the XML infoset coercions and gives no error codes
};

std::vector<TokenizerCase> LoadTokenizerCases(const std::filesystem::path& file);

// "Data state", "RCDATA state", ...; nullopt for a name the data should not use.
std::optional<html::State> StateFromName(const std::string& name);

void JoinCharacterTokens(std::vector<html::Token>& tokens);

// Tokenizes the way a tree builder drives the tokenizer: the text states after <title>,
// <textarea>, <style>, <script>, <plaintext>, and CDATA sections inside <svg> and <math>.
struct DrivenRun {
    std::vector<html::Token> tokens; // ends with the end-of-file token
    std::size_t steps = 0;
    std::size_t errors = 0;
};
DrivenRun TokenizeLikeATreeBuilder(std::u32string_view input);

// Letters and digits as they are, anything else as _XX: a parameter's printed form that
// test names can carry.
std::string Slug(std::u32string_view text, std::size_t limit = 32);
std::string Slug(std::string_view bytes, std::size_t limit = 32);

// A token as one line of text, attributes sorted, unusual characters escaped.
std::string FormatToken(const html::Token& token);
