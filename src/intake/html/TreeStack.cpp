// The stack of open elements, its scopes, and where new nodes go.
#include "intake/html/TreeBuilder.h"
#include "intake/html/TreeRules.h"

namespace html {
namespace {

bool IsScopeBoundary(const Node* n, bool tableScope, bool listItem, bool button) {
    if (n->ns == Namespace::Html) {
        switch (n->tag) {
        case Tag::Html:
        case Tag::Table:
        case Tag::Template:
            return true;
        default:
            break;
        }
        if (tableScope) return false;
        switch (n->tag) {
        case Tag::Applet:
        case Tag::Caption:
        case Tag::Td:
        case Tag::Th:
        case Tag::Marquee:
        case Tag::Object:
            return true;
        case Tag::Ol:
        case Tag::Ul:
            return listItem;
        case Tag::Button:
            return button;
        default:
            return false;
        }
    }
    if (tableScope) return false;
    if (n->ns == Namespace::MathMl)
        return IsMathMlTextIntegrationPoint(n) || n->tag == Tag::AnnotationXml;
    return n->tag == Tag::ForeignObject || n->tag == Tag::Desc || n->tag == Tag::Title;
}

bool IsBoundary(const Node* n, int scope) {
    enum { Default, ListItem, Button, Table };
    return IsScopeBoundary(n, scope == Table, scope == ListItem, scope == Button);
}

bool IsImpliedEnd(const Node* n, bool thorough) {
    if (!n->IsHtml()) return false;
    switch (n->tag) {
    case Tag::Dd:
    case Tag::Dt:
    case Tag::Li:
    case Tag::Optgroup:
    case Tag::Option:
    case Tag::P:
    case Tag::Rb:
    case Tag::Rp:
    case Tag::Rt:
    case Tag::Rtc:
        return true;
    case Tag::Caption:
    case Tag::Colgroup:
    case Tag::Tbody:
    case Tag::Td:
    case Tag::Tfoot:
    case Tag::Th:
    case Tag::Thead:
    case Tag::Tr:
        return thorough;
    default:
        return false;
    }
}

bool IsTableSection(const Node* n) {
    return n->Is(Tag::Table) || n->Is(Tag::Tbody) || n->Is(Tag::Tfoot) || n->Is(Tag::Thead) ||
           n->Is(Tag::Tr);
}

} // namespace

Node* TreeBuilder::AdjustedCurrent() const {
    return context_ && stack_.size() == 1 ? context_ : stack_.back();
}

void TreeBuilder::Push(Node* n) {
    if (stack_.size() >= kMaxTreeDepth) return; // attached at the cap, never open
    n->onStack = true;
    stack_.push_back(n);
}

void TreeBuilder::Pop() {
    if (stack_.size() <= 1) return; // the root element stays
    stack_.back()->onStack = false;
    stack_.pop_back();
}

void TreeBuilder::PopUntil(Tag tag) {
    while (stack_.size() > 1) {
        const bool found = Current()->Is(tag);
        Pop();
        if (found) return;
    }
}

void TreeBuilder::PopUntilOneOf(bool (*match)(const Node*)) {
    while (stack_.size() > 1) {
        const bool found = match(Current());
        Pop();
        if (found) return;
    }
}

void TreeBuilder::Remove(Node* n) {
    for (auto it = stack_.rbegin(); it != stack_.rend(); ++it) {
        if (*it == n) {
            n->onStack = false;
            stack_.erase(std::next(it).base());
            return;
        }
    }
}

bool TreeBuilder::InScope(Tag tag, Scope scope) const {
    for (auto it = stack_.rbegin(); it != stack_.rend(); ++it) {
        if ((*it)->Is(tag)) return true;
        if (IsBoundary(*it, static_cast<int>(scope))) return false;
    }
    return false;
}

bool TreeBuilder::InScope(const Node* n, Scope scope) const {
    for (auto it = stack_.rbegin(); it != stack_.rend(); ++it) {
        if (*it == n) return true;
        if (IsBoundary(*it, static_cast<int>(scope))) return false;
    }
    return false;
}

bool TreeBuilder::HeadingInScope() const {
    for (auto it = stack_.rbegin(); it != stack_.rend(); ++it) {
        if ((*it)->IsHtml() && IsHeading((*it)->tag)) return true;
        if (IsBoundary(*it, static_cast<int>(Scope::Default))) return false;
    }
    return false;
}

bool TreeBuilder::StackHas(Tag tag) const {
    for (const Node* n : stack_)
        if (n->Is(tag)) return true;
    return false;
}

void TreeBuilder::GenerateImpliedEndTags(Tag except, bool thorough) {
    while (stack_.size() > 1 && IsImpliedEnd(Current(), thorough) &&
           !(except != Tag::Unknown && Current()->Is(except)))
        Pop();
}

void TreeBuilder::ResetInsertionMode() {
    for (std::size_t i = stack_.size(); i-- > 0;) {
        const bool last = i == 0;
        const Node* node = last && context_ ? context_ : stack_[i];
        if (!node->IsHtml()) {
            if (last) break;
            continue;
        }
        switch (node->tag) {
        case Tag::Td:
        case Tag::Th:
            if (last) break;
            mode_ = Mode::InCell;
            return;
        case Tag::Tr:
            mode_ = Mode::InRow;
            return;
        case Tag::Tbody:
        case Tag::Thead:
        case Tag::Tfoot:
            mode_ = Mode::InTableBody;
            return;
        case Tag::Caption:
            mode_ = Mode::InCaption;
            return;
        case Tag::Colgroup:
            mode_ = Mode::InColumnGroup;
            return;
        case Tag::Table:
            mode_ = Mode::InTable;
            return;
        case Tag::Template:
            mode_ = templateModes_.empty() ? Mode::InBody : templateModes_.back();
            return;
        case Tag::Head:
            if (last) break;
            mode_ = Mode::InHead;
            return;
        case Tag::Body:
            mode_ = Mode::InBody;
            return;
        case Tag::Frameset:
            mode_ = Mode::InFrameset;
            return;
        case Tag::Html:
            mode_ = head_ ? Mode::AfterHead : Mode::BeforeHead;
            return;
        default:
            break;
        }
        if (last) break;
    }
    mode_ = Mode::InBody;
}

TreeBuilder::Place TreeBuilder::AppropriatePlace(Node* target) const {
    if (!target) target = Current();
    Place place{target, nullptr};
    if (fosterParenting_ && IsTableSection(target)) {
        std::ptrdiff_t table = -1, tmpl = -1;
        for (std::size_t i = stack_.size(); i-- > 0 && (table < 0 || tmpl < 0);) {
            if (table < 0 && stack_[i]->Is(Tag::Table)) table = static_cast<std::ptrdiff_t>(i);
            if (tmpl < 0 && stack_[i]->Is(Tag::Template)) tmpl = static_cast<std::ptrdiff_t>(i);
        }
        if (tmpl >= 0 && (table < 0 || tmpl > table)) {
            place = {stack_[tmpl], nullptr};
        } else if (table < 0) {
            place = {stack_[0], nullptr};
        } else if (Node* t = stack_[table]; t->parent) {
            place = {t->parent, t};
        } else {
            place = {stack_[table - 1], nullptr};
        }
    }
    if (place.parent->Is(Tag::Template) && place.parent->content)
        place = {place.parent->content, nullptr};
    return place;
}

Node* TreeBuilder::CreateElement(const Token& t, Namespace ns) {
    Node* n = doc_.NewNode(NodeKind::Element);
    n->ns = ns;
    n->name = doc_.Intern(t.name);
    n->tag = LookupTag(t.name);
    n->attributes.reserve(t.attributes.size());
    for (const html::Attribute& a : t.attributes)
        n->attributes.push_back({AttributeNamespace::None, a.name, a.value});
    if (n->Is(Tag::Template)) n->content = doc_.NewNode(NodeKind::Document);
    return n;
}

Node* TreeBuilder::InsertElement(const Token& t, Namespace ns) {
    const Place place = AppropriatePlace();
    Node* n = CreateElement(t, ns);
    InsertBefore(place.parent, n, place.before);
    Push(n);
    return n;
}

Node* TreeBuilder::InsertHtmlElement(Tag tag) {
    Token t;
    t.kind = TokenKind::StartTag;
    const std::string_view name = TagName(tag);
    t.name.assign(name.begin(), name.end());
    return InsertElement(t);
}

void TreeBuilder::InsertCharacters(std::u32string_view text) {
    if (text.empty()) return;
    const Place place = AppropriatePlace();
    if (place.parent == doc_.Root()) return;
    Node* prev = place.before ? place.before->prev : place.parent->lastChild;
    if (prev && prev->kind == NodeKind::Text) {
        prev->data.append(text);
        return;
    }
    Node* n = doc_.NewNode(NodeKind::Text);
    n->data = text;
    InsertBefore(place.parent, n, place.before);
}

void TreeBuilder::InsertComment(const Token& t, Place place) {
    Node* n = doc_.NewNode(NodeKind::Comment);
    n->data = t.data;
    InsertBefore(place.parent, n, place.before);
}

void TreeBuilder::InsertComment(const Token& t) {
    InsertComment(t, AppropriatePlace());
}

} // namespace html
