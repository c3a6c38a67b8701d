#include "intake/html/Dom.h"

namespace html {

const std::u32string* Node::Attribute(std::u32string_view attrName) const {
    for (const NodeAttribute& a : attributes)
        if (a.ns == AttributeNamespace::None && a.name == attrName) return &a.value;
    return nullptr;
}

void Detach(Node* node) {
    Node* parent = node->parent;
    if (!parent) return;
    (node->prev ? node->prev->next : parent->firstChild) = node->next;
    (node->next ? node->next->prev : parent->lastChild) = node->prev;
    node->parent = node->prev = node->next = nullptr;
}

void InsertBefore(Node* parent, Node* child, Node* before) {
    Detach(child);
    child->parent = parent;
    child->next = before;
    child->prev = before ? before->prev : parent->lastChild;
    (child->prev ? child->prev->next : parent->firstChild) = child;
    (before ? before->prev : parent->lastChild) = child;
}

void AppendChild(Node* parent, Node* child) {
    InsertBefore(parent, child, nullptr);
}

Document::Document() : root_(NewNode(NodeKind::Document)) {}

std::u32string_view Document::Intern(std::u32string_view name) {
    const Tag tag = LookupTag(name);
    if (tag != Tag::Unknown) return TagName32(tag);
    return names_.emplace_back(name);
}

Node* Document::NewNode(NodeKind kind) {
    Node& n = nodes_.emplace_back();
    n.kind = kind;
    return &n;
}

} // namespace html
