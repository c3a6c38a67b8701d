// "In body": end tags and the end of the input.
#include "intake/html/TreeBuilder.h"
#include "intake/html/TreeRules.h"

namespace html {
namespace {

bool IsBlockEnd(Tag tag) {
    return IsBodyBlock(tag) || tag == Tag::Button || tag == Tag::Listing || tag == Tag::Pre ||
           tag == Tag::Select;
}

bool IsHeadingNode(const Node* n) {
    return n->IsHtml() && IsHeading(n->tag);
}

} // namespace

void TreeBuilder::BodyEndTag(Token& t) {
    if (BodyEndTagBlocks(t)) return;
    const Tag tag = TagOf(t);
    if (IsFormatting(tag)) {
        if (!AdoptionAgency(t)) AnyOtherEndTag(t);
        return;
    }
    switch (tag) {
    case Tag::Applet:
    case Tag::Marquee:
    case Tag::Object:
        if (!InScope(tag, Scope::Default)) return;
        GenerateImpliedEndTags();
        PopUntil(tag);
        ClearFormattingToMarker();
        return;
    case Tag::Br: {
        Token br;
        br.kind = TokenKind::StartTag;
        br.name = U"br";
        ReconstructFormatting();
        InsertElement(br);
        Pop();
        framesetOk_ = false;
        return;
    }
    default:
        AnyOtherEndTag(t);
        return;
    }
}

bool TreeBuilder::BodyEndTagBlocks(Token& t) {
    const Tag tag = TagOf(t);
    if (IsBlockEnd(tag)) {
        if (!InScope(tag, Scope::Default)) return true;
        GenerateImpliedEndTags();
        PopUntil(tag);
        return true;
    }
    if (IsHeading(tag)) {
        if (!HeadingInScope()) return true;
        GenerateImpliedEndTags();
        PopUntilOneOf(IsHeadingNode);
        return true;
    }
    switch (tag) {
    case Tag::Template:
        InHead(t);
        return true;
    case Tag::Body:
    case Tag::Html:
        if (!InScope(Tag::Body, Scope::Default)) return true;
        mode_ = Mode::AfterBody;
        if (tag == Tag::Html) Dispatch(t);
        return true;
    case Tag::Form:
        if (!StackHas(Tag::Template)) {
            Node* form = form_;
            form_ = nullptr;
            if (!form || !InScope(form, Scope::Default)) return true;
            GenerateImpliedEndTags();
            Remove(form);
        } else {
            if (!InScope(Tag::Form, Scope::Default)) return true;
            GenerateImpliedEndTags();
            PopUntil(Tag::Form);
        }
        return true;
    case Tag::P:
        if (!InScope(Tag::P, Scope::Button)) InsertHtmlElement(Tag::P);
        CloseP();
        return true;
    case Tag::Li:
    case Tag::Dd:
    case Tag::Dt:
        if (!InScope(tag, tag == Tag::Li ? Scope::ListItem : Scope::Default)) return true;
        GenerateImpliedEndTags(tag);
        PopUntil(tag);
        return true;
    default:
        return false;
    }
}

void TreeBuilder::BodyEndOfFile(Token& t) {
    if (!templateModes_.empty()) return InTemplate(t);
    stopped_ = true;
}

} // namespace html
