#pragma once

#include "intake/html/Tags.h"

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

namespace html {

enum class Namespace : std::uint8_t { Html, MathMl, Svg };
enum class NodeKind : std::uint8_t { Document, DocumentType, Element, Text, Comment };
// Namespaced attributes of foreign content ("xlink:href" is {XLink, "href"}).
enum class AttributeNamespace : std::uint8_t { None, XLink, Xml, Xmlns };

struct NodeAttribute {
    AttributeNamespace ns = AttributeNamespace::None;
    std::u32string name;
    std::u32string value;
};

// A node of the parsed tree. Children form a doubly linked list so that the tree builder's moves
// (foster parenting, the adoption agency) cost O(1) each; the Document owns every node.
struct Node {
    NodeKind kind = NodeKind::Element;
    Namespace ns = Namespace::Html;
    Tag tag = Tag::Unknown;      // the name's Tag in any namespace; check ns as well
    bool onStack = false;        // the tree builder's "is in the stack of open elements"
    bool hasIdentifiers = false; // DOCTYPE: a public or a system identifier was given
    std::u32string_view name;    // element local name or DOCTYPE name; see Document::Intern
    std::u32string data;         // text or comment; DOCTYPE public identifier
    std::u32string systemId;     // DOCTYPE only
    std::vector<NodeAttribute> attributes;
    Node* parent = nullptr;
    Node* firstChild = nullptr;
    Node* lastChild = nullptr;
    Node* prev = nullptr;
    Node* next = nullptr;
    Node* content = nullptr; // a template's contents, a node of kind Document

    bool Is(Tag t) const { return kind == NodeKind::Element && ns == Namespace::Html && tag == t; }
    bool IsHtml() const { return kind == NodeKind::Element && ns == Namespace::Html; }
    const std::u32string* Attribute(std::u32string_view attrName) const;
};

// Inserts `child` (detached first if attached) into `parent` before `before`, or last when
// `before` is null.
void InsertBefore(Node* parent, Node* child, Node* before);
void AppendChild(Node* parent, Node* child);
void Detach(Node* node);

class Document {
  public:
    Document();
    Document(Document&&) = default;
    Document& operator=(Document&&) = default;

    Node* Root() const { return root_; }
    Node* NewNode(NodeKind kind);
    std::size_t NodeCount() const { return nodes_.size(); }
    // A name that lives as long as the document. Known tag names are shared, not copied: most
    // elements of a page then cost no allocation for their name.
    std::u32string_view Intern(std::u32string_view name);

  private:
    std::deque<Node> nodes_; // a deque keeps addresses stable as it grows
    std::deque<std::u32string> names_;
    Node* root_;
};

} // namespace html
