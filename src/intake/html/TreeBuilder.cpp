#include "intake/html/TreeBuilder.h"

#include "intake/html/TreeRules.h"

namespace html {
namespace {

enum class CharClass { Space, Null, Other };

CharClass ClassOf(char32_t c) {
    if (c == 0) return CharClass::Null;
    return IsHtmlSpace(c) ? CharClass::Space : CharClass::Other;
}

std::size_t RunLength(std::u32string_view text) {
    const CharClass first = ClassOf(text[0]);
    std::size_t n = 1;
    while (n < text.size() && ClassOf(text[n]) == first)
        ++n;
    return n;
}

// Modes whose character rules look only at whether a run holds any non-space: the run need not
// be split, which keeps ordinary text at one insertion per token.
bool TakesWholeRuns(InsertionMode mode) {
    switch (mode) {
    case InsertionMode::InBody:
    case InsertionMode::InCaption:
    case InsertionMode::InCell:
    case InsertionMode::InTemplate:
    case InsertionMode::Text:
    case InsertionMode::InTableText:
        return true;
    default:
        return false;
    }
}

} // namespace

TreeBuilder::TreeBuilder(std::u32string_view text, const TreeOptions& options)
    : tokenizer_(text), options_(options) {}

void TreeBuilder::SetFragmentContext(std::u32string_view name, Namespace ns) {
    context_ = doc_.NewNode(NodeKind::Element);
    context_->ns = ns;
    context_->name = doc_.Intern(name);
    context_->tag = LookupTag(name);
    Node* html = doc_.NewNode(NodeKind::Element);
    html->name = U"html";
    html->tag = Tag::Html;
    AppendChild(doc_.Root(), html);
    Push(html);
    if (context_->Is(Tag::Template)) templateModes_.push_back(Mode::InTemplate);
    ResetInsertionMode();
    if (ns != Namespace::Html) return;
    switch (context_->tag) {
    case Tag::Title:
    case Tag::Textarea:
        tokenizer_.SetState(State::Rcdata);
        break;
    case Tag::Style:
    case Tag::Xmp:
    case Tag::Iframe:
    case Tag::Noembed:
    case Tag::Noframes:
        tokenizer_.SetState(State::Rawtext);
        break;
    case Tag::Script:
        tokenizer_.SetState(State::ScriptData);
        break;
    case Tag::Noscript:
        if (options_.scripting) tokenizer_.SetState(State::Rawtext);
        break;
    case Tag::Plaintext:
        tokenizer_.SetState(State::Plaintext);
        break;
    default:
        break;
    }
}

Document TreeBuilder::Run() {
    Token t;
    tokenizer_.SetCdataAllowed(context_ && context_->ns != Namespace::Html);
    while (!stopped_ && tokenizer_.Next(t)) {
        if (skipNextNewline_) {
            skipNextNewline_ = false;
            if (t.kind == TokenKind::Character && !t.data.empty() && t.data[0] == '\n') {
                t.data.erase(0, 1);
                if (t.data.empty()) continue;
            }
        }
        Dispatch(t);
        tokenizer_.SetCdataAllowed(!stack_.empty() && AdjustedCurrent()->ns != Namespace::Html);
    }
    if (context_) {
        Node* html = doc_.Root()->firstChild;
        while (html && html->firstChild)
            AppendChild(doc_.Root(), html->firstChild);
        if (html) Detach(html);
    }
    return std::move(doc_);
}

void TreeBuilder::Dispatch(Token& t) {
    if (t.kind == TokenKind::Character) {
        if (TakesWholeRuns(mode_) && !UseForeignRules(t)) return ProcessIn(mode_, t);
        DispatchCharacters(t.data);
    } else if (UseForeignRules(t)) {
        ForeignContent(t);
    } else {
        ProcessIn(mode_, t);
    }
}

void TreeBuilder::DispatchCharacters(std::u32string_view text) {
    Token probe;
    probe.kind = TokenKind::Character;
    while (!text.empty() && !stopped_) {
        if (UseForeignRules(probe)) {
            ForeignCharacters(text);
            return;
        }
        const std::size_t n = TakesWholeRuns(mode_) ? text.size() : RunLength(text);
        Token run;
        run.kind = TokenKind::Character;
        run.data = text.substr(0, n);
        ProcessIn(mode_, run);
        text.remove_prefix(n);
    }
}

bool TreeBuilder::UseForeignRules(const Token& t) const {
    if (stack_.empty() || t.kind == TokenKind::EndOfFile) return false;
    const Node* n = AdjustedCurrent();
    if (n->ns == Namespace::Html) return false;
    const bool start = t.kind == TokenKind::StartTag;
    if (IsMathMlTextIntegrationPoint(n)) {
        if (t.kind == TokenKind::Character) return false;
        if (start && t.name != U"mglyph" && t.name != U"malignmark") return false;
    }
    if (n->ns == Namespace::MathMl && n->tag == Tag::AnnotationXml && start && t.name == U"svg")
        return false;
    if (IsHtmlIntegrationPoint(n) && (start || t.kind == TokenKind::Character)) return false;
    return true;
}

void TreeBuilder::ProcessIn(Mode mode, Token& t) {
    switch (mode) {
    case Mode::Initial:
        Initial(t);
        break;
    case Mode::BeforeHtml:
        BeforeHtml(t);
        break;
    case Mode::BeforeHead:
        BeforeHead(t);
        break;
    case Mode::InHead:
        InHead(t);
        break;
    case Mode::InHeadNoscript:
        InHeadNoscript(t);
        break;
    case Mode::AfterHead:
        AfterHead(t);
        break;
    case Mode::InBody:
        InBody(t);
        break;
    case Mode::Text:
        TextMode(t);
        break;
    case Mode::InTable:
        InTable(t);
        break;
    case Mode::InTableText:
        InTableText(t);
        break;
    case Mode::InCaption:
        InCaption(t);
        break;
    case Mode::InColumnGroup:
        InColumnGroup(t);
        break;
    case Mode::InTableBody:
        InTableBody(t);
        break;
    case Mode::InRow:
        InRow(t);
        break;
    case Mode::InCell:
        InCell(t);
        break;
    case Mode::InTemplate:
        InTemplate(t);
        break;
    case Mode::AfterBody:
        AfterBody(t);
        break;
    case Mode::InFrameset:
        InFrameset(t);
        break;
    case Mode::AfterFrameset:
        AfterFrameset(t);
        break;
    case Mode::AfterAfterBody:
        AfterAfterBody(t);
        break;
    case Mode::AfterAfterFrameset:
        AfterAfterFrameset(t);
        break;
    }
}

Document ParseDocument(std::u32string_view text, const TreeOptions& options) {
    return TreeBuilder(text, options).Run();
}

Document ParseFragment(std::u32string_view text, std::u32string_view contextName,
                       Namespace contextNs, const TreeOptions& options) {
    TreeBuilder builder(text, options);
    builder.SetFragmentContext(contextName, contextNs);
    return builder.Run();
}

} // namespace html
