// "In body": end tags and the end of the input.
#include "intake/html/TreeBuilder.h"
#include "intake/html/TreeRules.h"

namespace html {
namespace {

bool IsBlockEnd(Tag tag) {
    switch (tag) {
    case Tag::Address:
    case Tag::Article:
    case Tag::Aside:
    case Tag::Blockquote:
    case Tag::Button:
    case Tag::Center:
    case Tag::Details:
    case Tag::Dialog:
    case Tag::Dir:
    case Tag::Div:
    case Tag::Dl:
    case Tag::Fieldset:
    case Tag::Figcaption:
    case Tag::Figure:
    case Tag::Footer:
    case Tag::Header:
    case Tag::Hgroup:
    case Tag::Listing:
    case Tag::Main:
    case Tag::Menu:
    case Tag::Nav:
    case Tag::Ol:
    case Tag::Pre:
    case Tag::Search:
    case Tag::Section:
    case Tag::Select:
    case Tag::Summary:
    case Tag::Ul:
        return true;
    default:
        return false;
    }
}

bool IsHeadingNode(const Node* n) {
    return n->IsHtml() && IsHeading(n->tag);
}

} // namespace

void TreeBuilder::BodyEndTag(Token& t) {
    if (BodyEndTagBlocks(t)) return;
    const Tag tag = TagOf(t);
    switch (tag) {
    case Tag::A:
    case Tag::B:
    case Tag::Big:
    case Tag::Code:
    case Tag::Em:
    case Tag::Font:
    case Tag::I:
    case Tag::Nobr:
    case Tag::S:
    case Tag::Small:
    case Tag::Strike:
    case Tag::Strong:
    case Tag::Tt:
    case Tag::U:
        if (!AdoptionAgency(t)) AnyOtherEndTag(t);
        return;
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
    case Tag::H1:
    case Tag::H2:
    case Tag::H3:
    case Tag::H4:
    case Tag::H5:
    case Tag::H6:
        if (!HeadingInScope()) return true;
        GenerateImpliedEndTags();
        PopUntilOneOf(IsHeadingNode);
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
