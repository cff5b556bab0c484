#pragma once
// XML documents read with XPath queries (Xql), for the conversion table and the two
// data files. Read-only: nothing here writes XML back.
//
// Navigation never fails: a child, sibling, parent or list item that is not there is a
// Nil node, and navigating on from Nil gives Nil again, so chains such as
// list.Item(0).Child(0) need no checks. Name, GetAttribute, ChildCount and Xql of Nil
// read as empty. Value of Nil raises NilObjectException: the readers of the data files
// rely on that fault for a record without Name, Key or Value, or with an empty one,
// which must break off the read rather than yield an empty text.
//
// Nodes and lists hold a share of the tree they come from, so they stay valid after
// the XmlDocument they were taken from is gone or has loaded another text.

#include <QString>
#include <memory>
#include <utility>
#include <vector>

#include "platform/exceptions.h"

namespace pugi {
class xml_document;
struct xml_node_struct;
struct xml_attribute_struct;
}  // namespace pugi

namespace platform {

// Text that is not well-formed XML, or a query that is not valid XPath. The one
// framework fault the program catches itself (while the conversion table loads).
class XmlException : public FrameworkException {
 public:
  explicit XmlException(const QString& message, int line = 0, int column = 0)
      : FrameworkException(message), line_(line), column_(column) {}
  QString kind() const override { return QStringLiteral("XmlException"); }
  // Where the parser stopped, from 1; 0 for faults of a query.
  int line() const { return line_; }
  int column() const { return column_; }

 private:
  int line_;
  int column_;
};

class XmlNodeList;

class XmlNode {
 public:
  // Nil.
  XmlNode() = default;

  bool IsNil() const { return node_ == nullptr; }
  explicit operator bool() const { return !IsNil(); }

  // The element's or attribute's name; "#text", "#cdata-section", "#comment" or
  // "#document" for those kinds of node; the target of a processing instruction.
  QString Name() const;
  // The text of a text, CDATA or comment node, an attribute's value, a processing
  // instruction's data; empty for an element or the document (an element's text is
  // its Child(0).Value). Nil raises NilObjectException.
  QString Value() const;

  // Child nodes of every kind, text and comments included, from 0.
  XmlNode Child(int index) const;
  int ChildCount() const;
  XmlNode FirstChild() const;
  XmlNode NextSibling() const;
  XmlNode Parent() const;

  // Empty text when the attribute is absent or this is not an element.
  QString GetAttribute(const QString& name) const;

  // Nodes selected by an XPath query relative to this node, in document order.
  // An invalid query, or one that does not select nodes, raises XmlException.
  XmlNodeList Xql(const QString& xpath) const;

 private:
  friend class XmlDocument;
  friend class XmlNodeList;
  XmlNode(std::shared_ptr<pugi::xml_document> tree, pugi::xml_node_struct* node,
          pugi::xml_attribute_struct* attribute = nullptr)
      : tree_(std::move(tree)), node_(node), attribute_(attribute) {}

  std::shared_ptr<pugi::xml_document> tree_;
  // For an attribute node: its element, and the attribute itself.
  pugi::xml_node_struct* node_ = nullptr;
  pugi::xml_attribute_struct* attribute_ = nullptr;
};

class XmlNodeList {
 public:
  XmlNodeList() = default;

  int Length() const { return static_cast<int>(items_.size()); }
  // Nil when the index lies outside 0 .. Length - 1.
  XmlNode Item(int index) const;

 private:
  friend class XmlNode;
  std::shared_ptr<pugi::xml_document> tree_;
  std::vector<std::pair<pugi::xml_node_struct*, pugi::xml_attribute_struct*>> items_;
};

// Copies of an XmlDocument are the same document, as object references are in the
// framework: LoadXml on one is seen by all.
class XmlDocument {
 public:
  // An empty document, without children.
  XmlDocument();
  // The document of the text; see LoadXml.
  explicit XmlDocument(const QString& xml);

  // Replaces the content by the document of the text. Text that is not well-formed
  // (empty, an unclosed or mismatched tag, text or a second element beside the root)
  // raises XmlException with the parser's message, line and column, and leaves the
  // document empty. The XML declaration is not a child; comments and processing
  // instructions before the root are, so the root is Child(0) only when nothing
  // stands before it.
  void LoadXml(const QString& xml);

  XmlNode Child(int index) const;
  int ChildCount() const;
  XmlNode FirstChild() const;
  // The root element, wherever it stands among the children.
  XmlNode DocumentElement() const;
  XmlNodeList Xql(const QString& xpath) const;
  // The document node itself, for code that walks any node.
  XmlNode Node() const;

 private:
  struct Shared {
    std::shared_ptr<pugi::xml_document> tree;
  };
  std::shared_ptr<Shared> shared_;
};

}  // namespace platform
