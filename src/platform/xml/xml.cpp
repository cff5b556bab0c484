#include "platform/xml/xml.h"

#include <memory>
#include <string>
#include <unordered_map>

#include <pugixml.hpp>

#include <QByteArray>

namespace platform {
namespace {

// Whitespace text is kept as nodes, as a DOM keeps it, so Child(i) counts what the file
// holds. parse_fragment keeps text beside the root in the tree, which pugixml would
// otherwise drop without a word; LoadXml then rejects it as a strict parser does.
constexpr unsigned kParseFlags = pugi::parse_default | pugi::parse_comments | pugi::parse_pi |
                                 pugi::parse_ws_pcdata | pugi::parse_fragment;

QString utf8(const char* text) { return QString::fromUtf8(text); }

// Line and column, from 1, of a byte offset in UTF-8 text; columns count characters.
std::pair<int, int> lineAndColumn(const QByteArray& text, std::ptrdiff_t offset) {
  if (offset < 0) offset = 0;
  if (offset > text.size()) offset = text.size();
  const char* bytes = text.constData();
  int line = 1;
  int column = 1;
  for (std::ptrdiff_t i = 0; i < offset; ++i) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    if (byte == '\n' || (byte == '\r' && (i + 1 >= text.size() || bytes[i + 1] != '\n'))) {
      ++line;
      column = 1;
    } else if (byte != '\r' && (byte & 0xC0) != 0x80) {
      ++column;
    }
  }
  return {line, column};
}

[[noreturn]] void raiseParseError(const QByteArray& text, const QString& what,
                                  std::ptrdiff_t offset) {
  const auto [line, column] = lineAndColumn(text, offset);
  throw XmlException(QStringLiteral("%1 at line %2, column %3").arg(what).arg(line).arg(column),
                     line, column);
}

bool isXmlWhitespace(const char* text) {
  for (; *text; ++text) {
    if (*text != ' ' && *text != '\t' && *text != '\n' && *text != '\r') return false;
  }
  return true;
}

// pugixml accepts what a conforming parser refuses at the top level: text beside the
// root, several roots, no root at all. Blank text there is dropped so that Child(0)
// is whatever really stands first.
void checkTopLevel(pugi::xml_document& tree, const QByteArray& text) {
  int elements = 0;
  for (pugi::xml_node node = tree.first_child(); node;) {
    const pugi::xml_node next = node.next_sibling();
    switch (node.type()) {
      case pugi::node_pcdata:
        if (!isXmlWhitespace(node.value())) {
          raiseParseError(text, QStringLiteral("Text outside the root element"),
                          node.offset_debug());
        }
        tree.remove_child(node);
        break;
      case pugi::node_cdata:
        raiseParseError(text, QStringLiteral("Text outside the root element"),
                        node.offset_debug());
      case pugi::node_element:
        if (++elements > 1) {
          // offset_debug points at the name; the tag starts one byte before.
          raiseParseError(text, QStringLiteral("More than one root element"),
                          node.offset_debug() - 1);
        }
        break;
      default:
        break;
    }
    node = next;
  }
  if (elements == 0) {
    raiseParseError(text, QStringLiteral("No document element found"), text.size());
  }
}

pugi::xml_node handle(pugi::xml_node_struct* node) { return pugi::xml_node(node); }

}  // namespace

// --- XmlNode -----------------------------------------------------------------------

QString XmlNode::Name() const {
  if (IsNil()) return {};
  if (attribute_) return utf8(pugi::xml_attribute(attribute_).name());
  const pugi::xml_node node = handle(node_);
  switch (node.type()) {
    case pugi::node_pcdata:
      return QStringLiteral("#text");
    case pugi::node_cdata:
      return QStringLiteral("#cdata-section");
    case pugi::node_comment:
      return QStringLiteral("#comment");
    case pugi::node_document:
      return QStringLiteral("#document");
    default:
      return utf8(node.name());
  }
}

QString XmlNode::Value() const {
  if (IsNil()) throw NilObjectException(QStringLiteral("Value of an XML node that is not there"));
  if (attribute_) return utf8(pugi::xml_attribute(attribute_).value());
  const pugi::xml_node node = handle(node_);
  switch (node.type()) {
    case pugi::node_element:
    case pugi::node_document:
      return {};
    default:
      return utf8(node.value());
  }
}

XmlNode XmlNode::Child(int index) const {
  if (IsNil() || attribute_ || index < 0) return {};
  pugi::xml_node child = handle(node_).first_child();
  for (; child && index > 0; --index) child = child.next_sibling();
  if (!child) return {};
  return XmlNode(tree_, child.internal_object());
}

int XmlNode::ChildCount() const {
  if (IsNil() || attribute_) return 0;
  int count = 0;
  for (pugi::xml_node child = handle(node_).first_child(); child; child = child.next_sibling()) {
    ++count;
  }
  return count;
}

XmlNode XmlNode::FirstChild() const { return Child(0); }

XmlNode XmlNode::NextSibling() const {
  if (IsNil() || attribute_) return {};
  const pugi::xml_node next = handle(node_).next_sibling();
  if (!next) return {};
  return XmlNode(tree_, next.internal_object());
}

XmlNode XmlNode::Parent() const {
  if (IsNil()) return {};
  // An attribute's parent is its element.
  if (attribute_) return XmlNode(tree_, node_);
  const pugi::xml_node parent = handle(node_).parent();
  if (!parent) return {};
  return XmlNode(tree_, parent.internal_object());
}

QString XmlNode::GetAttribute(const QString& name) const {
  if (IsNil() || attribute_) return {};
  const QByteArray key = name.toUtf8();
  return utf8(handle(node_).attribute(key.constData()).value());
}

namespace {

// Compiled queries by their text. The program runs the same few queries ("Key" and
// "Value" for every record of a data file) thousands of times a search, and compiling
// costs more than evaluating. Bounded: a program that made up queries endlessly would
// only ever hold the last few.
const pugi::xpath_query& compiledQuery(const QByteArray& query) {
  constexpr size_t kMaxCachedQueries = 64;
  thread_local std::unordered_map<std::string, std::unique_ptr<pugi::xpath_query>> cache;
  const std::string key(query.constData(), static_cast<size_t>(query.size()));
  if (auto found = cache.find(key); found != cache.end()) return *found->second;
  auto compiled = std::make_unique<pugi::xpath_query>(query.constData());  // throws if invalid
  if (cache.size() >= kMaxCachedQueries) cache.clear();
  return *cache.emplace(key, std::move(compiled)).first->second;
}

}  // namespace

XmlNodeList XmlNode::Xql(const QString& xpath) const {
  XmlNodeList list;
  if (IsNil()) return list;
  const QByteArray query = xpath.toUtf8();
  const pugi::xpath_node context =
      attribute_ ? pugi::xpath_node(pugi::xml_attribute(attribute_), handle(node_))
                 : pugi::xpath_node(handle(node_));
  pugi::xpath_node_set found;
  try {
    found = compiledQuery(query).evaluate_node_set(context);
  } catch (const pugi::xpath_exception& fault) {
    QString message = QStringLiteral("Invalid XPath \"%1\": %2").arg(xpath, utf8(fault.what()));
    const std::ptrdiff_t offset = fault.result().offset;
    if (offset >= 0 && offset <= query.size()) {
      message += QStringLiteral(" at position %1")
                     .arg(QString::fromUtf8(query.left(offset)).size() + 1);
    }
    throw XmlException(message);
  }
  // Records are numbered by their place in the file.
  found.sort();
  list.tree_ = tree_;
  list.items_.reserve(found.size());
  for (const pugi::xpath_node& item : found) {
    if (item.attribute()) {
      list.items_.emplace_back(item.parent().internal_object(), item.attribute().internal_object());
    } else {
      list.items_.emplace_back(item.node().internal_object(), nullptr);
    }
  }
  return list;
}

// --- XmlNodeList -------------------------------------------------------------------

XmlNode XmlNodeList::Item(int index) const {
  if (index < 0 || index >= Length()) return {};
  const auto& [node, attribute] = items_[static_cast<std::size_t>(index)];
  return XmlNode(tree_, node, attribute);
}

// --- XmlDocument -------------------------------------------------------------------

XmlDocument::XmlDocument() : shared_(std::make_shared<Shared>()) {
  shared_->tree = std::make_shared<pugi::xml_document>();
}

XmlDocument::XmlDocument(const QString& xml) : XmlDocument() { LoadXml(xml); }

void XmlDocument::LoadXml(const QString& xml) {
  // A fresh tree each time: nodes taken from the former content keep theirs.
  auto tree = std::make_shared<pugi::xml_document>();
  shared_->tree = std::make_shared<pugi::xml_document>();
  const QByteArray text = xml.toUtf8();
  const pugi::xml_parse_result result = tree->load_buffer(
      text.constData(), static_cast<std::size_t>(text.size()), kParseFlags, pugi::encoding_utf8);
  if (!result) raiseParseError(text, utf8(result.description()), result.offset);
  checkTopLevel(*tree, text);
  shared_->tree = std::move(tree);
}

XmlNode XmlDocument::Node() const {
  return XmlNode(shared_->tree, shared_->tree->internal_object());
}

XmlNode XmlDocument::Child(int index) const { return Node().Child(index); }
int XmlDocument::ChildCount() const { return Node().ChildCount(); }
XmlNode XmlDocument::FirstChild() const { return Node().FirstChild(); }
XmlNodeList XmlDocument::Xql(const QString& xpath) const { return Node().Xql(xpath); }

XmlNode XmlDocument::DocumentElement() const {
  const pugi::xml_node root = shared_->tree->document_element();
  if (!root) return {};
  return XmlNode(shared_->tree, root.internal_object());
}

}  // namespace platform
