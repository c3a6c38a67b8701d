#pragma once

#include "intake/html/Dom.h"
#include "intake/html/Token.h"
#include "intake/html/Tokenizer.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace html {

// Browsers stop nesting at this depth: an element opened deeper is attached to the element at
// the cap and does not stay open, so every walk of the open elements is bounded and a page of
// 100k unclosed tags still parses in linear time.
inline constexpr std::size_t kMaxTreeDepth = 512;

struct TreeOptions {
    // Off, as in a text browser: <noscript> content is parsed as markup and read.
    bool scripting = false;
};

// WHATWG tree construction over our tokenizer, for whole documents and for fragments (the
// content of a `contextName` element, as innerHTML would parse it).
Document ParseDocument(std::u32string_view text, const TreeOptions& options = {});
Document ParseFragment(std::u32string_view text, std::u32string_view contextName,
                       Namespace contextNs, const TreeOptions& options = {});

enum class InsertionMode : std::uint8_t {
    Initial,
    BeforeHtml,
    BeforeHead,
    InHead,
    InHeadNoscript,
    AfterHead,
    InBody,
    Text,
    InTable,
    InTableText,
    InCaption,
    InColumnGroup,
    InTableBody,
    InRow,
    InCell,
    InTemplate,
    AfterBody,
    InFrameset,
    AfterFrameset,
    AfterAfterBody,
    AfterAfterFrameset
};

class TreeBuilder {
  public:
    TreeBuilder(std::u32string_view text, const TreeOptions& options);
    void SetFragmentContext(std::u32string_view name, Namespace ns);
    Document Run();

  private:
    using Mode = InsertionMode;
    struct Place {
        Node* parent;
        Node* before;
    };
    enum class Scope { Default, ListItem, Button, Table };

    // Dispatch (TreeBuilder.cpp)
    void Dispatch(Token& t);
    void ProcessIn(Mode mode, Token& t);
    void DispatchCharacters(std::u32string_view text);
    bool UseForeignRules(const Token& t) const;

    // Stack, scopes and insertion (TreeStack.cpp)
    Node* Current() const { return stack_.back(); }
    Node* AdjustedCurrent() const;
    void Push(Node* n);
    void Pop();
    void PopUntil(Tag tag); // pops up to and including an HTML `tag`
    void PopUntilOneOf(bool (*match)(const Node*));
    void Remove(Node* n); // from the stack, wherever it is
    bool InScope(Tag tag, Scope scope) const;
    bool InScope(const Node* n, Scope scope) const;
    bool HeadingInScope() const;
    bool StackHas(Tag tag) const;
    void GenerateImpliedEndTags(Tag except = Tag::Unknown, bool thorough = false);
    void ResetInsertionMode();
    Place AppropriatePlace(Node* target = nullptr) const;
    Node* CreateElement(const Token& t, Namespace ns);
    Node* InsertElement(const Token& t, Namespace ns = Namespace::Html);
    Node* InsertHtmlElement(Tag tag);
    void InsertCharacters(std::u32string_view text);
    void InsertComment(const Token& t, Place place);
    void InsertComment(const Token& t);

    // Active formatting elements (TreeFormatting.cpp)
    void PushFormatting(Node* n);
    void ReconstructFormatting();
    void ClearFormattingToMarker();
    std::ptrdiff_t FormattingIndex(const Node* n) const;
    Node* FormattingAfterMarker(Tag tag) const;
    void RemoveFormatting(const Node* n);
    bool AdoptionAgency(const Token& t);
    void AnyOtherEndTag(const Token& t);

    // Modes before and after the body (TreeModesOuter.cpp)
    void Initial(Token& t);
    void BeforeHtml(Token& t);
    void BeforeHead(Token& t);
    void InHead(Token& t);
    void InHeadNoscript(Token& t);
    void AfterHead(Token& t);
    void TextMode(Token& t);
    void AfterBody(Token& t);
    void InFrameset(Token& t);
    void AfterFrameset(Token& t);
    void AfterAfterBody(Token& t);
    void AfterAfterFrameset(Token& t);
    void StartGenericText(const Token& t, State state);
    void SetQuirksFromDoctype(const Token& t);

    // In body (TreeModeBody.cpp, TreeModeBodyEnd.cpp)
    void InBody(Token& t);
    void BodyCharacters(std::u32string_view text);
    void BodyStartTag(Token& t);
    bool BodyStartTagBlocks(Token& t);
    bool BodyStartTagSpecial(Token& t);
    void BodyStartTagListItem(Token& t);
    void BodyEndTag(Token& t);
    bool BodyEndTagBlocks(Token& t);
    void BodyEndOfFile(Token& t);
    void CloseP();

    // Tables (TreeModesTable.cpp)
    void InTable(Token& t);
    void InTableText(Token& t);
    void FlushTableText();
    void InCaption(Token& t);
    void InColumnGroup(Token& t);
    void InTableBody(Token& t);
    void InRow(Token& t);
    void InCell(Token& t);
    void CloseCell();
    void ClearStackBackTo(bool (*stop)(const Node*));

    // Template contents and foreign content (TreeModeTemplate.cpp, TreeForeign.cpp)
    void InTemplate(Token& t);
    void ForeignContent(Token& t);
    void ForeignCharacters(std::u32string_view text);
    void ForeignEndTag(Token& t);
    void InsertForeignElement(Token& t, Namespace ns);

    Tokenizer tokenizer_;
    TreeOptions options_;
    Document doc_;
    std::vector<Node*> stack_;
    std::vector<Node*> formatting_; // nullptr is a marker
    std::vector<Mode> templateModes_;
    Mode mode_ = Mode::Initial;
    Mode originalMode_ = Mode::Initial;
    Node* head_ = nullptr;
    Node* form_ = nullptr;
    Node* context_ = nullptr; // fragment parsing only
    bool framesetOk_ = true;
    bool fosterParenting_ = false;
    bool quirks_ = false;
    bool skipNextNewline_ = false; // after <pre>, <listing>, <textarea>
    bool stopped_ = false;
    std::u32string tableText_;
    bool tableTextHasNonSpace_ = false;
};

} // namespace html
