// "In body": characters and start tags, where most of a page is built.
#include "intake/html/TreeBuilder.h"
#include "intake/html/TreeRules.h"

namespace html {
namespace {

bool ClosesP(Tag tag) {
    return IsBodyBlock(tag) || tag == Tag::P;
}

void AddMissingAttributes(Node* n, const Token& t) {
    for (const html::Attribute& a : t.attributes)
        if (!n->Attribute(a.name))
            n->attributes.push_back({AttributeNamespace::None, a.name, a.value});
}

} // namespace

void TreeBuilder::InBody(Token& t) {
    switch (t.kind) {
    case TokenKind::Character:
        return BodyCharacters(t.data);
    case TokenKind::Comment:
        return InsertComment(t);
    case TokenKind::Doctype:
        return;
    case TokenKind::StartTag:
        return BodyStartTag(t);
    case TokenKind::EndTag:
        return BodyEndTag(t);
    case TokenKind::EndOfFile:
        return BodyEndOfFile(t);
    }
}

void TreeBuilder::BodyCharacters(std::u32string_view text) {
    std::u32string kept;
    if (text.find(U'\0') != std::u32string_view::npos) {
        for (char32_t c : text)
            if (c) kept.push_back(c);
        text = kept;
    }
    if (text.empty()) return;
    ReconstructFormatting();
    InsertCharacters(text);
    if (!IsAllSpace(text)) framesetOk_ = false;
}

void TreeBuilder::CloseP() {
    if (!InScope(Tag::P, Scope::Button)) return;
    GenerateImpliedEndTags(Tag::P);
    PopUntil(Tag::P);
}

void TreeBuilder::BodyStartTag(Token& t) {
    if (BodyStartTagBlocks(t) || BodyStartTagSpecial(t)) return;
    const Tag tag = TagOf(t);
    switch (tag) {
    case Tag::A:
        if (Node* a = FormattingAfterMarker(Tag::A)) {
            Token end;
            end.kind = TokenKind::EndTag;
            end.name = U"a";
            if (!AdoptionAgency(end)) AnyOtherEndTag(end);
            RemoveFormatting(a);
            Remove(a);
        }
        ReconstructFormatting();
        PushFormatting(InsertElement(t));
        return;
    case Tag::Nobr:
        ReconstructFormatting();
        if (InScope(Tag::Nobr, Scope::Default)) {
            Token end;
            end.kind = TokenKind::EndTag;
            end.name = U"nobr";
            if (!AdoptionAgency(end)) AnyOtherEndTag(end);
            ReconstructFormatting();
        }
        PushFormatting(InsertElement(t));
        return;
    case Tag::Math:
    case Tag::Svg:
        ReconstructFormatting();
        InsertForeignElement(t, tag == Tag::Math ? Namespace::MathMl : Namespace::Svg);
        return;
    case Tag::Caption:
    case Tag::Col:
    case Tag::Colgroup:
    case Tag::Frame:
    case Tag::Head:
    case Tag::Tbody:
    case Tag::Td:
    case Tag::Tfoot:
    case Tag::Th:
    case Tag::Thead:
    case Tag::Tr:
        return;
    default: {
        // The formatting elements other than a and nobr are just noted as well.
        ReconstructFormatting();
        Node* n = InsertElement(t);
        if (IsFormatting(tag)) PushFormatting(n);
        return;
    }
    }
}

// Start tags that close an open paragraph or list item first.
bool TreeBuilder::BodyStartTagBlocks(Token& t) {
    const Tag tag = TagOf(t);
    if (ClosesP(tag)) {
        CloseP();
        InsertElement(t);
        return true;
    }
    if (IsHeading(tag)) {
        CloseP();
        if (Current()->IsHtml() && IsHeading(Current()->tag)) Pop();
        InsertElement(t);
        return true;
    }
    switch (tag) {
    case Tag::Pre:
    case Tag::Listing:
        CloseP();
        InsertElement(t);
        skipNextNewline_ = true;
        framesetOk_ = false;
        return true;
    case Tag::Form:
        if (form_ && !StackHas(Tag::Template)) return true;
        CloseP();
        if (Node* f = InsertElement(t); !StackHas(Tag::Template)) form_ = f;
        return true;
    case Tag::Li:
    case Tag::Dd:
    case Tag::Dt:
        BodyStartTagListItem(t);
        return true;
    case Tag::Plaintext:
        CloseP();
        InsertElement(t);
        tokenizer_.SetState(State::Plaintext);
        return true;
    case Tag::Table:
        if (!quirks_) CloseP();
        InsertElement(t);
        framesetOk_ = false;
        mode_ = Mode::InTable;
        return true;
    case Tag::Hr:
        CloseP();
        if (InScope(Tag::Select, Scope::Default)) GenerateImpliedEndTags();
        InsertElement(t);
        Pop();
        framesetOk_ = false;
        return true;
    case Tag::Xmp:
        CloseP();
        ReconstructFormatting();
        framesetOk_ = false;
        StartGenericText(t, State::Rawtext);
        return true;
    default:
        return false;
    }
}

void TreeBuilder::BodyStartTagListItem(Token& t) {
    const Tag tag = TagOf(t);
    framesetOk_ = false;
    for (std::size_t i = stack_.size(); i-- > 0;) {
        const Node* node = stack_[i];
        const bool match =
            tag == Tag::Li ? node->Is(Tag::Li) : (node->Is(Tag::Dd) || node->Is(Tag::Dt));
        if (match) {
            GenerateImpliedEndTags(node->tag);
            PopUntil(node->tag);
            break;
        }
        if (node->ns == Namespace::Html && IsSpecialHtml(node->tag) && !node->Is(Tag::Address) &&
            !node->Is(Tag::Div) && !node->Is(Tag::P))
            break;
        if (node->ns != Namespace::Html &&
            (IsMathMlTextIntegrationPoint(node) || node->tag == Tag::AnnotationXml ||
             node->tag == Tag::ForeignObject || node->tag == Tag::Desc || node->tag == Tag::Title))
            break;
    }
    CloseP();
    InsertElement(t);
}

// Start tags with rules of their own: head content, body and frameset, void elements, forms.
bool TreeBuilder::BodyStartTagSpecial(Token& t) {
    const Tag tag = TagOf(t);
    if (IsHeadContent(tag)) {
        InHead(t);
        return true;
    }
    switch (tag) {
    case Tag::Html:
        if (!StackHas(Tag::Template)) AddMissingAttributes(stack_[0], t);
        return true;
    case Tag::Body:
        if (stack_.size() < 2 || !stack_[1]->Is(Tag::Body) || StackHas(Tag::Template)) return true;
        framesetOk_ = false;
        AddMissingAttributes(stack_[1], t);
        return true;
    case Tag::Frameset:
        if (stack_.size() < 2 || !stack_[1]->Is(Tag::Body) || !framesetOk_) return true;
        Detach(stack_[1]);
        while (stack_.size() > 1)
            Pop();
        InsertElement(t);
        mode_ = Mode::InFrameset;
        return true;
    case Tag::Button:
        if (InScope(Tag::Button, Scope::Default)) {
            GenerateImpliedEndTags();
            PopUntil(Tag::Button);
        }
        ReconstructFormatting();
        InsertElement(t);
        framesetOk_ = false;
        return true;
    case Tag::Applet:
    case Tag::Marquee:
    case Tag::Object:
        ReconstructFormatting();
        InsertElement(t);
        formatting_.push_back(nullptr);
        framesetOk_ = false;
        return true;
    case Tag::Area:
    case Tag::Br:
    case Tag::Embed:
    case Tag::Img:
    case Tag::Keygen:
    case Tag::Wbr:
    case Tag::Input: {
        if (tag == Tag::Input && context_ && context_->Is(Tag::Select)) return true;
        if (tag == Tag::Input && InScope(Tag::Select, Scope::Default)) PopUntil(Tag::Select);
        ReconstructFormatting();
        InsertElement(t);
        Pop();
        const std::u32string* type = TokenAttribute(t, U"type");
        if (tag != Tag::Input || !type || !EqualsIgnoringAsciiCase(*type, U"hidden"))
            framesetOk_ = false;
        return true;
    }
    case Tag::Param:
    case Tag::Source:
    case Tag::Track:
        InsertElement(t);
        Pop();
        return true;
    case Tag::Image:
        t.name = U"img";
        Dispatch(t);
        return true;
    case Tag::Textarea:
        InsertElement(t);
        skipNextNewline_ = true;
        tokenizer_.SetState(State::Rcdata);
        originalMode_ = mode_;
        framesetOk_ = false;
        mode_ = Mode::Text;
        return true;
    case Tag::Iframe:
        framesetOk_ = false;
        StartGenericText(t, State::Rawtext);
        return true;
    case Tag::Noembed:
        StartGenericText(t, State::Rawtext);
        return true;
    case Tag::Noscript:
        if (!options_.scripting) return false;
        StartGenericText(t, State::Rawtext);
        return true;
    case Tag::Select:
        if (context_ && context_->Is(Tag::Select)) return true;
        if (InScope(Tag::Select, Scope::Default)) {
            PopUntil(Tag::Select);
            return true;
        }
        ReconstructFormatting();
        InsertElement(t);
        framesetOk_ = false;
        return true;
    case Tag::Option:
    case Tag::Optgroup:
        if (InScope(Tag::Select, Scope::Default))
            GenerateImpliedEndTags(tag == Tag::Option ? Tag::Optgroup : Tag::Unknown);
        else if (Current()->Is(Tag::Option))
            Pop();
        ReconstructFormatting();
        InsertElement(t);
        return true;
    case Tag::Rb:
    case Tag::Rtc:
    case Tag::Rp:
    case Tag::Rt:
        if (InScope(Tag::Ruby, Scope::Default))
            GenerateImpliedEndTags(tag == Tag::Rp || tag == Tag::Rt ? Tag::Rtc : Tag::Unknown);
        InsertElement(t);
        return true;
    default:
        return false;
    }
}

} // namespace html
