// The list of active formatting elements and the adoption agency that repairs misnested
// formatting (<b><i></b></i>), with the standard's loop limits so its work stays bounded.
#include "intake/html/TreeBuilder.h"
#include "intake/html/TreeRules.h"

#include <algorithm>

namespace html {
namespace {

// Beyond the depth cap nothing more can be open, so the list need not remember more.
constexpr std::size_t kMaxFormatting = 2 * kMaxTreeDepth;
// The standard's limits: eight passes of the outer loop, three of the inner before entries drop.
constexpr int kOuterLoops = 8;
constexpr int kInnerLoopsKeepingEntries = 3;
// "Noah's Ark": at most three identical formatting elements after the last marker.
constexpr int kIdenticalAllowed = 3;

bool SameAttributes(const Node* a, const Node* b) {
    if (a->attributes.size() != b->attributes.size()) return false;
    for (const NodeAttribute& x : a->attributes) {
        const bool found =
            std::any_of(b->attributes.begin(), b->attributes.end(), [&](const NodeAttribute& y) {
                return x.ns == y.ns && x.name == y.name && x.value == y.value;
            });
        if (!found) return false;
    }
    return true;
}

bool IsSpecial(const Node* n) {
    if (n->ns == Namespace::Html) return IsSpecialHtml(n->tag);
    if (n->ns == Namespace::MathMl)
        return IsMathMlTextIntegrationPoint(n) || n->tag == Tag::AnnotationXml;
    return n->tag == Tag::ForeignObject || n->tag == Tag::Desc || n->tag == Tag::Title;
}

Node* Clone(Document& doc, const Node* e) {
    Node* n = doc.NewNode(NodeKind::Element);
    n->ns = e->ns;
    n->tag = e->tag;
    n->name = e->name;
    n->attributes = e->attributes;
    return n;
}

} // namespace

void TreeBuilder::PushFormatting(Node* n) {
    if (!n->onStack || formatting_.size() >= kMaxFormatting) return;
    int identical = 0;
    std::ptrdiff_t earliest = -1;
    for (std::size_t i = formatting_.size(); i-- > 0 && formatting_[i];) {
        const Node* e = formatting_[i];
        if (e->ns == n->ns && e->name == n->name && SameAttributes(e, n)) {
            ++identical;
            earliest = static_cast<std::ptrdiff_t>(i);
        }
    }
    if (identical >= kIdenticalAllowed) formatting_.erase(formatting_.begin() + earliest);
    formatting_.push_back(n);
}

void TreeBuilder::ReconstructFormatting() {
    if (formatting_.empty() || !formatting_.back() || formatting_.back()->onStack) return;
    std::size_t i = formatting_.size() - 1;
    while (i > 0 && formatting_[i - 1] && !formatting_[i - 1]->onStack)
        --i;
    for (; i < formatting_.size() && stack_.size() < kMaxTreeDepth; ++i) {
        Node* n = Clone(doc_, formatting_[i]);
        const Place place = AppropriatePlace();
        InsertBefore(place.parent, n, place.before);
        Push(n);
        formatting_[i] = n;
    }
}

void TreeBuilder::ClearFormattingToMarker() {
    while (!formatting_.empty()) {
        const Node* e = formatting_.back();
        formatting_.pop_back();
        if (!e) return;
    }
}

std::ptrdiff_t TreeBuilder::FormattingIndex(const Node* n) const {
    for (std::size_t i = formatting_.size(); i-- > 0;)
        if (formatting_[i] == n) return static_cast<std::ptrdiff_t>(i);
    return -1;
}

Node* TreeBuilder::FormattingAfterMarker(Tag tag) const {
    for (std::size_t i = formatting_.size(); i-- > 0 && formatting_[i];)
        if (formatting_[i]->Is(tag)) return formatting_[i];
    return nullptr;
}

void TreeBuilder::RemoveFormatting(const Node* n) {
    const std::ptrdiff_t i = FormattingIndex(n);
    if (i >= 0) formatting_.erase(formatting_.begin() + i);
}

bool TreeBuilder::AdoptionAgency(const Token& t) {
    const Tag subject = TagOf(t);
    if (Current()->Is(subject) && FormattingIndex(Current()) < 0) {
        Pop();
        return true;
    }
    for (int outer = 0; outer < kOuterLoops; ++outer) {
        Node* fe = FormattingAfterMarker(subject);
        if (!fe) return false;
        if (!fe->onStack) {
            RemoveFormatting(fe);
            return true;
        }
        if (!InScope(fe, Scope::Default)) return true;
        const auto feAt = std::find(stack_.begin(), stack_.end(), fe) - stack_.begin();
        std::ptrdiff_t fbAt = -1;
        for (std::size_t i = feAt + 1; i < stack_.size(); ++i) {
            if (IsSpecial(stack_[i])) {
                fbAt = static_cast<std::ptrdiff_t>(i);
                break;
            }
        }
        if (fbAt < 0) {
            while (stack_.size() > static_cast<std::size_t>(feAt))
                Pop();
            RemoveFormatting(fe);
            return true;
        }
        Node* furthest = stack_[fbAt];
        Node* common = stack_[feAt - 1];
        std::ptrdiff_t bookmark = FormattingIndex(fe);
        Node* last = furthest;
        std::ptrdiff_t at = fbAt;
        for (int inner = 1;; ++inner) {
            Node* node = stack_[--at];
            if (node == fe) break;
            std::ptrdiff_t entry = FormattingIndex(node);
            if (inner > kInnerLoopsKeepingEntries && entry >= 0) {
                formatting_.erase(formatting_.begin() + entry);
                if (entry < bookmark) --bookmark;
                entry = -1;
            }
            if (entry < 0) {
                node->onStack = false;
                stack_.erase(stack_.begin() + at);
                continue;
            }
            Node* copy = Clone(doc_, node);
            formatting_[entry] = copy;
            stack_[at] = copy;
            node->onStack = false;
            copy->onStack = true;
            if (last == furthest) bookmark = entry + 1;
            AppendChild(copy, last);
            last = copy;
        }
        const Place place = AppropriatePlace(common);
        InsertBefore(place.parent, last, place.before);

        Node* adopted = Clone(doc_, fe);
        while (furthest->firstChild)
            AppendChild(adopted, furthest->firstChild);
        AppendChild(furthest, adopted);

        const std::ptrdiff_t feEntry = FormattingIndex(fe);
        formatting_.erase(formatting_.begin() + feEntry);
        if (feEntry < bookmark) --bookmark;
        bookmark = std::clamp<std::ptrdiff_t>(bookmark, 0, formatting_.size());
        formatting_.insert(formatting_.begin() + bookmark, adopted);

        Remove(fe);
        const auto fbNow = std::find(stack_.begin(), stack_.end(), furthest);
        stack_.insert(fbNow + 1, adopted);
        adopted->onStack = true;
    }
    return true;
}

void TreeBuilder::AnyOtherEndTag(const Token& t) {
    for (std::size_t i = stack_.size(); i-- > 1;) {
        Node* node = stack_[i];
        if (node->IsHtml() && node->name == t.name) {
            GenerateImpliedEndTags(node->tag == Tag::Unknown ? Tag::Html : node->tag);
            while (stack_.size() > i)
                Pop();
            return;
        }
        if (IsSpecial(node)) return;
    }
}

} // namespace html
