// The insertion modes around the body: before it, in the head, text content, and after it.
#include "intake/html/TreeBuilder.h"
#include "intake/html/TreeRules.h"

#include <array>

namespace html {
namespace {

constexpr std::array<std::u32string_view, 55> kQuirkyPublicPrefixes = {
    U"+//silmaril//dtd html pro v0r11 19970101//",
    U"-//as//dtd html 3.0 aswedit + extensions//",
    U"-//advasoft ltd//dtd html 3.0 aswedit + extensions//",
    U"-//ietf//dtd html 2.0 level 1//",
    U"-//ietf//dtd html 2.0 level 2//",
    U"-//ietf//dtd html 2.0 strict level 1//",
    U"-//ietf//dtd html 2.0 strict level 2//",
    U"-//ietf//dtd html 2.0 strict//",
    U"-//ietf//dtd html 2.0//",
    U"-//ietf//dtd html 2.1e//",
    U"-//ietf//dtd html 3.0//",
    U"-//ietf//dtd html 3.2 final//",
    U"-//ietf//dtd html 3.2//",
    U"-//ietf//dtd html 3//",
    U"-//ietf//dtd html level 0//",
    U"-//ietf//dtd html level 1//",
    U"-//ietf//dtd html level 2//",
    U"-//ietf//dtd html level 3//",
    U"-//ietf//dtd html strict level 0//",
    U"-//ietf//dtd html strict level 1//",
    U"-//ietf//dtd html strict level 2//",
    U"-//ietf//dtd html strict level 3//",
    U"-//ietf//dtd html strict//",
    U"-//ietf//dtd html//",
    U"-//metrius//dtd metrius presentational//",
    U"-//microsoft//dtd internet explorer 2.0 html strict//",
    U"-//microsoft//dtd internet explorer 2.0 html//",
    U"-//microsoft//dtd internet explorer 2.0 tables//",
    U"-//microsoft//dtd internet explorer 3.0 html strict//",
    U"-//microsoft//dtd internet explorer 3.0 html//",
    U"-//microsoft//dtd internet explorer 3.0 tables//",
    U"-//netscape comm. corp.//dtd html//",
    U"-//netscape comm. corp.//dtd strict html//",
    U"-//o'reilly and associates//dtd html 2.0//",
    U"-//o'reilly and associates//dtd html extended 1.0//",
    U"-//o'reilly and associates//dtd html extended relaxed 1.0//",
    U"-//sq//dtd html 2.0 hotmetal + extensions//",
    U"-//softquad software//dtd hotmetal pro 6.0::19990601::extensions to html 4.0//",
    U"-//softquad//dtd hotmetal pro 4.0::19971010::extensions to html 4.0//",
    U"-//spyglass//dtd html 2.0 extended//",
    U"-//sun microsystems corp.//dtd hotjava html//",
    U"-//sun microsystems corp.//dtd hotjava strict html//",
    U"-//w3c//dtd html 3 1995-03-24//",
    U"-//w3c//dtd html 3.2 draft//",
    U"-//w3c//dtd html 3.2 final//",
    U"-//w3c//dtd html 3.2//",
    U"-//w3c//dtd html 3.2s draft//",
    U"-//w3c//dtd html 4.0 frameset//",
    U"-//w3c//dtd html 4.0 transitional//",
    U"-//w3c//dtd html experimental 19960712//",
    U"-//w3c//dtd html experimental 970421//",
    U"-//w3c//dtd w3 html//",
    U"-//w3o//dtd w3 html 3.0//",
    U"-//webtechs//dtd mozilla html 2.0//",
    U"-//webtechs//dtd mozilla html//"};

std::u32string Lower(std::u32string_view s) {
    std::u32string out(s);
    for (char32_t& c : out)
        if (c >= 'A' && c <= 'Z') c += 'a' - 'A';
    return out;
}

bool IsQuirkyDoctype(const Token& t) {
    if (t.forceQuirks || t.name != U"html") return true;
    const std::u32string pub = Lower(t.publicId.value_or(U""));
    const std::u32string sys = Lower(t.systemId.value_or(U""));
    if (pub == U"-//w3o//dtd w3 html strict 3.0//en//" ||
        pub == U"-/w3c/dtd html 4.0 transitional/en" || pub == U"html" ||
        sys == U"http://www.ibm.com/data/dtd/v11/ibmxhtml1-transitional.dtd")
        return true;
    for (std::u32string_view prefix : kQuirkyPublicPrefixes)
        if (pub.starts_with(prefix)) return true;
    return !t.systemId && (pub.starts_with(U"-//w3c//dtd html 4.01 frameset//") ||
                           pub.starts_with(U"-//w3c//dtd html 4.01 transitional//"));
}

bool IsAnyOf(Tag tag, std::initializer_list<Tag> tags) {
    for (Tag t : tags)
        if (t == tag) return true;
    return false;
}

} // namespace

void TreeBuilder::SetQuirksFromDoctype(const Token& t) {
    Node* n = doc_.NewNode(NodeKind::DocumentType);
    n->name = doc_.Intern(t.name);
    n->data = t.publicId.value_or(U"");
    n->systemId = t.systemId.value_or(U"");
    n->hasIdentifiers = t.publicId || t.systemId;
    AppendChild(doc_.Root(), n);
    quirks_ = IsQuirkyDoctype(t);
}

void TreeBuilder::StartGenericText(const Token& t, State state) {
    InsertElement(t);
    tokenizer_.SetState(state);
    originalMode_ = mode_;
    mode_ = Mode::Text;
}

void TreeBuilder::Initial(Token& t) {
    if (IsSpaceRun(t)) return;
    if (t.kind == TokenKind::Comment) return InsertComment(t, {doc_.Root(), nullptr});
    if (t.kind == TokenKind::Doctype) {
        SetQuirksFromDoctype(t);
        mode_ = Mode::BeforeHtml;
        return;
    }
    quirks_ = true;
    mode_ = Mode::BeforeHtml;
    Dispatch(t);
}

void TreeBuilder::BeforeHtml(Token& t) {
    if (t.kind == TokenKind::Doctype || IsSpaceRun(t)) return;
    if (t.kind == TokenKind::Comment) return InsertComment(t, {doc_.Root(), nullptr});
    const Tag tag = TagOf(t);
    Node* html = nullptr;
    if (IsStart(t) && tag == Tag::Html) {
        html = CreateElement(t, Namespace::Html);
    } else if (IsEnd(t) && !IsAnyOf(tag, {Tag::Head, Tag::Body, Tag::Html, Tag::Br})) {
        return;
    }
    const bool reprocess = !html;
    if (!html) {
        html = doc_.NewNode(NodeKind::Element);
        html->name = U"html";
        html->tag = Tag::Html;
    }
    AppendChild(doc_.Root(), html);
    Push(html);
    mode_ = Mode::BeforeHead;
    if (reprocess) Dispatch(t);
}

void TreeBuilder::BeforeHead(Token& t) {
    if (t.kind == TokenKind::Doctype || IsSpaceRun(t)) return;
    if (t.kind == TokenKind::Comment) return InsertComment(t);
    const Tag tag = TagOf(t);
    if (IsStart(t) && tag == Tag::Html) return InBody(t);
    if (IsStart(t) && tag == Tag::Head) {
        head_ = InsertElement(t);
        mode_ = Mode::InHead;
        return;
    }
    if (IsEnd(t) && !IsAnyOf(tag, {Tag::Head, Tag::Body, Tag::Html, Tag::Br})) return;
    head_ = InsertHtmlElement(Tag::Head);
    mode_ = Mode::InHead;
    Dispatch(t);
}

void TreeBuilder::InHead(Token& t) {
    if (IsSpaceRun(t)) return InsertCharacters(t.data);
    if (t.kind == TokenKind::Comment) return InsertComment(t);
    if (t.kind == TokenKind::Doctype) return;
    const Tag tag = TagOf(t);
    if (IsStart(t)) {
        switch (tag) {
        case Tag::Html:
            return InBody(t);
        case Tag::Base:
        case Tag::Basefont:
        case Tag::Bgsound:
        case Tag::Link:
        case Tag::Meta:
            InsertElement(t);
            Pop();
            return;
        case Tag::Title:
            return StartGenericText(t, State::Rcdata);
        case Tag::Noscript:
            if (!options_.scripting) {
                InsertElement(t);
                mode_ = Mode::InHeadNoscript;
                return;
            }
            return StartGenericText(t, State::Rawtext);
        case Tag::Noframes:
        case Tag::Style:
            return StartGenericText(t, State::Rawtext);
        case Tag::Script:
            return StartGenericText(t, State::ScriptData);
        case Tag::Template:
            InsertElement(t);
            formatting_.push_back(nullptr);
            framesetOk_ = false;
            mode_ = Mode::InTemplate;
            templateModes_.push_back(Mode::InTemplate);
            return;
        case Tag::Head:
            return;
        default:
            break;
        }
    } else if (IsEnd(t)) {
        if (tag == Tag::Head) {
            Pop();
            mode_ = Mode::AfterHead;
            return;
        }
        if (tag == Tag::Template) {
            if (!StackHas(Tag::Template)) return;
            GenerateImpliedEndTags(Tag::Unknown, true);
            PopUntil(Tag::Template);
            ClearFormattingToMarker();
            if (!templateModes_.empty()) templateModes_.pop_back();
            ResetInsertionMode();
            return;
        }
        if (!IsAnyOf(tag, {Tag::Body, Tag::Html, Tag::Br})) return;
    }
    Pop();
    mode_ = Mode::AfterHead;
    Dispatch(t);
}

void TreeBuilder::InHeadNoscript(Token& t) {
    if (t.kind == TokenKind::Doctype) return;
    const Tag tag = TagOf(t);
    if (IsStart(t) && tag == Tag::Html) return InBody(t);
    if (IsEnd(t) && tag == Tag::Noscript) {
        Pop();
        mode_ = Mode::InHead;
        return;
    }
    if (IsSpaceRun(t) || t.kind == TokenKind::Comment ||
        (IsStart(t) && IsAnyOf(tag, {Tag::Basefont, Tag::Bgsound, Tag::Link, Tag::Meta,
                                     Tag::Noframes, Tag::Style})))
        return InHead(t);
    if ((IsStart(t) && (tag == Tag::Head || tag == Tag::Noscript)) || (IsEnd(t) && tag != Tag::Br))
        return;
    Pop();
    mode_ = Mode::InHead;
    Dispatch(t);
}

void TreeBuilder::AfterHead(Token& t) {
    if (IsSpaceRun(t)) return InsertCharacters(t.data);
    if (t.kind == TokenKind::Comment) return InsertComment(t);
    if (t.kind == TokenKind::Doctype) return;
    const Tag tag = TagOf(t);
    if (IsStart(t)) {
        if (IsHeadContent(tag) && head_) {
            Push(head_);
            Node* head = head_;
            InHead(t);
            Remove(head);
            return;
        }
        switch (tag) {
        case Tag::Html:
            return InBody(t);
        case Tag::Body:
            InsertElement(t);
            framesetOk_ = false;
            mode_ = Mode::InBody;
            return;
        case Tag::Frameset:
            InsertElement(t);
            mode_ = Mode::InFrameset;
            return;
        case Tag::Head:
            return;
        default:
            break;
        }
    } else if (IsEnd(t)) {
        if (tag == Tag::Template) return InHead(t);
        if (!IsAnyOf(tag, {Tag::Body, Tag::Html, Tag::Br})) return;
    }
    InsertHtmlElement(Tag::Body);
    mode_ = Mode::InBody;
    Dispatch(t);
}

void TreeBuilder::TextMode(Token& t) {
    if (t.kind == TokenKind::Character) return InsertCharacters(t.data);
    const bool eof = t.kind == TokenKind::EndOfFile;
    Pop();
    mode_ = originalMode_;
    if (eof) Dispatch(t);
}

void TreeBuilder::AfterBody(Token& t) {
    if (IsSpaceRun(t)) return InBody(t);
    if (t.kind == TokenKind::Comment) return InsertComment(t, {stack_[0], nullptr});
    if (t.kind == TokenKind::Doctype) return;
    if (t.kind == TokenKind::EndOfFile) {
        stopped_ = true;
        return;
    }
    const Tag tag = TagOf(t);
    if (IsStart(t) && tag == Tag::Html) return InBody(t);
    if (IsEnd(t) && tag == Tag::Html) {
        if (!context_) mode_ = Mode::AfterAfterBody;
        return;
    }
    mode_ = Mode::InBody;
    Dispatch(t);
}

void TreeBuilder::InFrameset(Token& t) {
    if (IsSpaceRun(t)) return InsertCharacters(t.data);
    if (t.kind == TokenKind::Comment) return InsertComment(t);
    if (t.kind == TokenKind::EndOfFile) {
        stopped_ = true;
        return;
    }
    const Tag tag = TagOf(t);
    if (IsStart(t)) {
        if (tag == Tag::Html) return InBody(t);
        if (tag == Tag::Frameset) InsertElement(t);
        if (tag == Tag::Frame) {
            InsertElement(t);
            Pop();
        }
        if (tag == Tag::Noframes) InHead(t);
    } else if (IsEnd(t) && tag == Tag::Frameset && stack_.size() > 1) {
        Pop();
        if (!context_ && !Current()->Is(Tag::Frameset)) mode_ = Mode::AfterFrameset;
    }
}

void TreeBuilder::AfterFrameset(Token& t) {
    if (IsSpaceRun(t)) return InsertCharacters(t.data);
    if (t.kind == TokenKind::Comment) return InsertComment(t);
    if (t.kind == TokenKind::EndOfFile) {
        stopped_ = true;
        return;
    }
    const Tag tag = TagOf(t);
    if (IsStart(t) && tag == Tag::Html) return InBody(t);
    if (IsStart(t) && tag == Tag::Noframes) return InHead(t);
    if (IsEnd(t) && tag == Tag::Html) mode_ = Mode::AfterAfterFrameset;
}

void TreeBuilder::AfterAfterBody(Token& t) {
    if (t.kind == TokenKind::Comment) return InsertComment(t, {doc_.Root(), nullptr});
    if (t.kind == TokenKind::EndOfFile) {
        stopped_ = true;
        return;
    }
    if (t.kind == TokenKind::Doctype || IsSpaceRun(t) || (IsStart(t) && TagOf(t) == Tag::Html))
        return InBody(t);
    mode_ = Mode::InBody;
    Dispatch(t);
}

void TreeBuilder::AfterAfterFrameset(Token& t) {
    if (t.kind == TokenKind::Comment) return InsertComment(t, {doc_.Root(), nullptr});
    if (t.kind == TokenKind::EndOfFile) {
        stopped_ = true;
        return;
    }
    if (t.kind == TokenKind::Doctype || IsSpaceRun(t) || (IsStart(t) && TagOf(t) == Tag::Html))
        return InBody(t);
    if (IsStart(t) && TagOf(t) == Tag::Noframes) return InHead(t);
}

} // namespace html
