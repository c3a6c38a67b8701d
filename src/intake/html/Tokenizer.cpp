#include "intake/html/Tokenizer.h"

#include "intake/html/CharClass.h"

#include <algorithm>

namespace html {

Tokenizer::Tokenizer(std::u32string_view input) : input_(input), text_(input_.Text()) {}

bool Tokenizer::Next(Token& token) {
    while (ready_.empty()) {
        if (eofEmitted_) return false;
        Step();
    }
    token = std::move(ready_.front());
    ready_.pop_front();
    return true;
}

void Tokenizer::Step() {
    ++steps_;
    const char32_t c = Consume();
    switch (state_) {
#define HTML_STATE_CASE(id)                                                                        \
    case State::id:                                                                                \
        On##id(c);                                                                                 \
        break;
        HTML_TOKENIZER_STATES(HTML_STATE_CASE)
#undef HTML_STATE_CASE
    }
}

// At the end the position still advances, so reconsuming the end of input is uniform.
char32_t Tokenizer::Consume() {
    const std::size_t at = pos_++;
    return at < text_.size() ? text_[at] : kEof;
}

void Tokenizer::Reconsume(State state) {
    --pos_;
    state_ = state;
}

bool Tokenizer::LookAhead(std::u32string_view word, bool ignoreCase) const {
    if (text_.size() - std::min(pos_, text_.size()) < word.size()) return false;
    for (std::size_t i = 0; i < word.size(); ++i) {
        const char32_t c = text_[pos_ + i];
        if ((ignoreCase ? ToAsciiLower(c) : c) != word[i]) return false;
    }
    return true;
}

void Tokenizer::Error(ParseErrorCode code) {
    ErrorAt(code, pos_ - 1);
}

void Tokenizer::ErrorAt(ParseErrorCode code, std::size_t offset) {
    errors_.push_back({code, offset});
}

std::vector<ParseError> Tokenizer::Errors() const {
    std::vector<ParseError> all(input_.Errors());
    all.insert(all.end(), errors_.begin(), errors_.end());
    // Both lists are nearly in order already; a reconsumed character can step back.
    std::stable_sort(all.begin(), all.end(),
                     [](const ParseError& a, const ParseError& b) { return a.offset < b.offset; });
    return all;
}

void Tokenizer::FlushCharacters() {
    if (pending_.empty()) return;
    Token token;
    token.kind = TokenKind::Character;
    token.data = std::move(pending_);
    pending_.clear();
    ready_.push_back(std::move(token));
}

void Tokenizer::EmitCurrent() {
    FlushCharacters();
    ready_.push_back(std::move(current_));
    current_ = Token{};
}

void Tokenizer::EmitEof() {
    FlushCharacters();
    ready_.push_back(Token{});
    eofEmitted_ = true;
}

void Tokenizer::StartComment(std::u32string_view data) {
    current_ = Token{};
    current_.kind = TokenKind::Comment;
    current_.data = data;
}

void Tokenizer::StartDoctype() {
    current_ = Token{};
    current_.kind = TokenKind::Doctype;
}

} // namespace html
