// "In template": template contents pick the mode their first element calls for.
#include "intake/html/TreeBuilder.h"
#include "intake/html/TreeRules.h"

namespace html {
void TreeBuilder::InTemplate(Token& t) {
    const Tag tag = TagOf(t);
    auto switchTo = [&](Mode m) {
        if (!templateModes_.empty()) templateModes_.pop_back();
        templateModes_.push_back(m);
        mode_ = m;
        Dispatch(t);
    };
    switch (t.kind) {
    case TokenKind::Character:
    case TokenKind::Comment:
    case TokenKind::Doctype:
        return InBody(t);
    case TokenKind::StartTag:
        if (IsHeadContent(tag)) return InHead(t);
        switch (tag) {
        case Tag::Caption:
        case Tag::Colgroup:
        case Tag::Tbody:
        case Tag::Tfoot:
        case Tag::Thead:
            return switchTo(Mode::InTable);
        case Tag::Col:
            return switchTo(Mode::InColumnGroup);
        case Tag::Tr:
            return switchTo(Mode::InTableBody);
        case Tag::Td:
        case Tag::Th:
            return switchTo(Mode::InRow);
        default:
            return switchTo(Mode::InBody);
        }
    case TokenKind::EndTag:
        if (tag == Tag::Template) InHead(t);
        return;
    case TokenKind::EndOfFile:
        if (!StackHas(Tag::Template)) {
            stopped_ = true;
            return;
        }
        PopUntil(Tag::Template);
        ClearFormattingToMarker();
        if (!templateModes_.empty()) templateModes_.pop_back();
        ResetInsertionMode();
        return Dispatch(t);
    }
}

} // namespace html
