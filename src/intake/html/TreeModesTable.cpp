// The table insertion modes, with foster parenting for content that strays out of cells.
#include "intake/html/TreeBuilder.h"
#include "intake/html/TreeRules.h"

namespace html {
namespace {

bool IsTableContext(const Node* n) {
    return n->Is(Tag::Table) || n->Is(Tag::Template) || n->Is(Tag::Html);
}
bool IsTableBodyContext(const Node* n) {
    return n->Is(Tag::Tbody) || n->Is(Tag::Tfoot) || n->Is(Tag::Thead) || IsTableContext(n);
}
bool IsRowContext(const Node* n) {
    return n->Is(Tag::Tr) || n->Is(Tag::Template) || n->Is(Tag::Html);
}
bool IsCell(const Node* n) {
    return n->Is(Tag::Td) || n->Is(Tag::Th);
}

bool IsSection(Tag tag) {
    return tag == Tag::Tbody || tag == Tag::Tfoot || tag == Tag::Thead;
}

// Tags that end a caption or cell implicitly.
bool IsTableStructure(Tag tag) {
    switch (tag) {
    case Tag::Caption:
    case Tag::Col:
    case Tag::Colgroup:
    case Tag::Tbody:
    case Tag::Td:
    case Tag::Tfoot:
    case Tag::Th:
    case Tag::Thead:
    case Tag::Tr:
        return true;
    default:
        return false;
    }
}

bool IgnoredEndInTable(Tag tag) {
    return tag == Tag::Body || tag == Tag::Html || IsTableStructure(tag);
}

} // namespace

void TreeBuilder::ClearStackBackTo(bool (*stop)(const Node*)) {
    while (stack_.size() > 1 && !stop(Current()))
        Pop();
}

void TreeBuilder::InTable(Token& t) {
    if (t.kind == TokenKind::Character &&
        (Current()->Is(Tag::Table) || Current()->Is(Tag::Tbody) || Current()->Is(Tag::Template) ||
         Current()->Is(Tag::Tfoot) || Current()->Is(Tag::Thead) || Current()->Is(Tag::Tr))) {
        tableText_.clear();
        tableTextHasNonSpace_ = false;
        originalMode_ = mode_;
        mode_ = Mode::InTableText;
        return Dispatch(t);
    }
    if (t.kind == TokenKind::Comment) return InsertComment(t);
    if (t.kind == TokenKind::Doctype) return;
    if (t.kind == TokenKind::EndOfFile) return InBody(t);
    const Tag tag = TagOf(t);
    if (IsStart(t)) {
        switch (tag) {
        case Tag::Caption:
            ClearStackBackTo(IsTableContext);
            formatting_.push_back(nullptr);
            InsertElement(t);
            mode_ = Mode::InCaption;
            return;
        case Tag::Colgroup:
            ClearStackBackTo(IsTableContext);
            InsertElement(t);
            mode_ = Mode::InColumnGroup;
            return;
        case Tag::Col:
            ClearStackBackTo(IsTableContext);
            InsertHtmlElement(Tag::Colgroup);
            mode_ = Mode::InColumnGroup;
            return Dispatch(t);
        case Tag::Tbody:
        case Tag::Tfoot:
        case Tag::Thead:
            ClearStackBackTo(IsTableContext);
            InsertElement(t);
            mode_ = Mode::InTableBody;
            return;
        case Tag::Td:
        case Tag::Th:
        case Tag::Tr:
            ClearStackBackTo(IsTableContext);
            InsertHtmlElement(Tag::Tbody);
            mode_ = Mode::InTableBody;
            return Dispatch(t);
        case Tag::Table:
            if (!InScope(Tag::Table, Scope::Table)) return;
            PopUntil(Tag::Table);
            ResetInsertionMode();
            return Dispatch(t);
        case Tag::Style:
        case Tag::Script:
        case Tag::Template:
            return InHead(t);
        case Tag::Input: {
            const std::u32string* type = TokenAttribute(t, U"type");
            if (!type || !EqualsIgnoringAsciiCase(*type, U"hidden")) break;
            InsertElement(t);
            Pop();
            return;
        }
        case Tag::Form:
            if (StackHas(Tag::Template) || form_) return;
            form_ = InsertElement(t);
            Pop();
            return;
        default:
            break;
        }
    } else if (IsEnd(t)) {
        if (tag == Tag::Table) {
            if (!InScope(Tag::Table, Scope::Table)) return;
            PopUntil(Tag::Table);
            ResetInsertionMode();
            return;
        }
        if (tag == Tag::Template) return InHead(t);
        if (IgnoredEndInTable(tag)) return;
    }
    fosterParenting_ = true;
    InBody(t);
    fosterParenting_ = false;
}

void TreeBuilder::InTableText(Token& t) {
    if (t.kind == TokenKind::Character) {
        for (char32_t c : t.data) {
            if (!c) continue;
            tableText_.push_back(c);
            if (!IsHtmlSpace(c)) tableTextHasNonSpace_ = true;
        }
        return;
    }
    FlushTableText();
    mode_ = originalMode_;
    Dispatch(t);
}

void TreeBuilder::FlushTableText() {
    if (tableTextHasNonSpace_) {
        fosterParenting_ = true;
        BodyCharacters(tableText_);
        fosterParenting_ = false;
    } else {
        InsertCharacters(tableText_);
    }
    tableText_.clear();
    tableTextHasNonSpace_ = false;
}

void TreeBuilder::InCaption(Token& t) {
    const Tag tag = TagOf(t);
    const bool endCaption = IsEnd(t) && tag == Tag::Caption;
    const bool implicit = (IsStart(t) && IsTableStructure(tag)) || (IsEnd(t) && tag == Tag::Table);
    if (endCaption || implicit) {
        if (!InScope(Tag::Caption, Scope::Table)) return;
        GenerateImpliedEndTags();
        PopUntil(Tag::Caption);
        ClearFormattingToMarker();
        mode_ = Mode::InTable;
        if (implicit) Dispatch(t);
        return;
    }
    if (IsEnd(t) && IgnoredEndInTable(tag)) return;
    InBody(t);
}

void TreeBuilder::InColumnGroup(Token& t) {
    if (IsSpaceRun(t)) return InsertCharacters(t.data);
    if (t.kind == TokenKind::Comment) return InsertComment(t);
    if (t.kind == TokenKind::Doctype) return;
    if (t.kind == TokenKind::EndOfFile) return InBody(t);
    const Tag tag = TagOf(t);
    if (IsStart(t) && tag == Tag::Html) return InBody(t);
    if (IsStart(t) && tag == Tag::Col) {
        InsertElement(t);
        Pop();
        return;
    }
    if (tag == Tag::Template && (IsStart(t) || IsEnd(t))) return InHead(t);
    if (IsEnd(t) && tag == Tag::Col) return;
    if (!Current()->Is(Tag::Colgroup)) return;
    Pop();
    mode_ = Mode::InTable;
    if (!(IsEnd(t) && tag == Tag::Colgroup)) Dispatch(t);
}

void TreeBuilder::InTableBody(Token& t) {
    const Tag tag = TagOf(t);
    if (IsStart(t) && (tag == Tag::Tr || tag == Tag::Td || tag == Tag::Th)) {
        ClearStackBackTo(IsTableBodyContext);
        if (tag == Tag::Tr) {
            InsertElement(t);
            mode_ = Mode::InRow;
            return;
        }
        InsertHtmlElement(Tag::Tr);
        mode_ = Mode::InRow;
        return Dispatch(t);
    }
    if (IsEnd(t) && IsSection(tag)) {
        if (!InScope(tag, Scope::Table)) return;
        ClearStackBackTo(IsTableBodyContext);
        Pop();
        mode_ = Mode::InTable;
        return;
    }
    const bool leaves = (IsStart(t) && (tag == Tag::Caption || tag == Tag::Col ||
                                        tag == Tag::Colgroup || IsSection(tag))) ||
                        (IsEnd(t) && tag == Tag::Table);
    if (leaves) {
        if (!InScope(Tag::Tbody, Scope::Table) && !InScope(Tag::Thead, Scope::Table) &&
            !InScope(Tag::Tfoot, Scope::Table))
            return;
        ClearStackBackTo(IsTableBodyContext);
        Pop();
        mode_ = Mode::InTable;
        return Dispatch(t);
    }
    if (IsEnd(t) &&
        (tag == Tag::Body || tag == Tag::Caption || tag == Tag::Col || tag == Tag::Colgroup ||
         tag == Tag::Html || tag == Tag::Td || tag == Tag::Th || tag == Tag::Tr))
        return;
    InTable(t);
}

void TreeBuilder::InRow(Token& t) {
    const Tag tag = TagOf(t);
    if (IsStart(t) && (tag == Tag::Td || tag == Tag::Th)) {
        ClearStackBackTo(IsRowContext);
        InsertElement(t);
        mode_ = Mode::InCell;
        formatting_.push_back(nullptr);
        return;
    }
    const bool endRow = IsEnd(t) && tag == Tag::Tr;
    const bool leaves =
        (IsStart(t) && (tag == Tag::Caption || tag == Tag::Col || tag == Tag::Colgroup ||
                        IsSection(tag) || tag == Tag::Tr)) ||
        (IsEnd(t) && (tag == Tag::Table || IsSection(tag)));
    if (endRow || leaves) {
        if (IsEnd(t) && IsSection(tag) && !InScope(tag, Scope::Table)) return;
        if (!InScope(Tag::Tr, Scope::Table)) return;
        ClearStackBackTo(IsRowContext);
        Pop();
        mode_ = Mode::InTableBody;
        if (leaves) Dispatch(t);
        return;
    }
    if (IsEnd(t) && (tag == Tag::Body || tag == Tag::Caption || tag == Tag::Col ||
                     tag == Tag::Colgroup || tag == Tag::Html || tag == Tag::Td || tag == Tag::Th))
        return;
    InTable(t);
}

void TreeBuilder::CloseCell() {
    GenerateImpliedEndTags();
    PopUntilOneOf(IsCell);
    ClearFormattingToMarker();
    mode_ = Mode::InRow;
}

void TreeBuilder::InCell(Token& t) {
    const Tag tag = TagOf(t);
    if (IsEnd(t) && (tag == Tag::Td || tag == Tag::Th)) {
        if (!InScope(tag, Scope::Table)) return;
        GenerateImpliedEndTags();
        PopUntil(tag);
        ClearFormattingToMarker();
        mode_ = Mode::InRow;
        return;
    }
    if (IsStart(t) && IsTableStructure(tag)) {
        if (!InScope(Tag::Td, Scope::Table) && !InScope(Tag::Th, Scope::Table)) return;
        CloseCell();
        return Dispatch(t);
    }
    if (IsEnd(t) && (tag == Tag::Body || tag == Tag::Caption || tag == Tag::Col ||
                     tag == Tag::Colgroup || tag == Tag::Html))
        return;
    if (IsEnd(t) && (tag == Tag::Table || IsSection(tag) || tag == Tag::Tr)) {
        if (!InScope(tag, Scope::Table)) return;
        CloseCell();
        return Dispatch(t);
    }
    InBody(t);
}

} // namespace html
