#include "platform/xml/xml.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <optional>

#include "support/printers.h"

namespace platform {
namespace {

// The shape of the conversion table, with two List elements in one category, a row
// without its attribute and an attribute on an ignored element.
const QString kTable = QStringLiteral(
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<Table>\n"
    "  <Category>\n"
    "    <Name>Power</Name>\n"
    "    <List><SubList convert=\"*745.7\">hp-&gt;W</SubList></List>\n"
    "    <List><SubList convert=\"/745.7\">W-&gt;hp</SubList><SubList>bare</SubList></List>\n"
    "  </Category>\n"
    "  <Other convert=\"x\"/>\n"
    "  <Category><Name>Length</Name><Name>Second name</Name>\n"
    "    <List><SubList convert=\"*0.3048\">ft->m</SubList></List>\n"
    "  </Category>\n"
    "</Table>\n");

// "name=value" for each node of a list, an element's value being its first child's
// (empty when that is an element), to compare whole selections at once.
QStringList describe(const XmlNodeList& list) {
  QStringList out;
  for (int i = 0; i < list.Length(); ++i) {
    const XmlNode node = list.Item(i);
    const XmlNode text = node.FirstChild();
    out << node.Name() + "=" + (text ? text.Value() : node.Value());
  }
  return out;
}

TEST(XmlQuery, SelectsRelativeToTheNodeInDocumentOrder) {
  struct Row {
    const char* name;
    int category;  // -1: the root
    QString xpath;
    QStringList expected;
  };
  const Row rows[] = {
      {"categories are the root's Category children", -1, "Category",
       {"Category=\n    ", "Category="}},
      {"rows of two List elements run together", 0, "List/SubList",
       {"SubList=hp->W", "SubList=W->hp", "SubList=bare"}},
      {"every Name of a category, in file order", 1, "Name",
       {"Name=Length", "Name=Second name"}},
      {"a query of a child's name does not reach grandchildren", -1, "SubList", {}},
      {"descendants from a category stay inside it", 1, ".//SubList", {"SubList=ft->m"}},
      {"attributes are nodes with a name and a value", 0, "List/SubList/@convert",
       {"convert=*745.7", "convert=/745.7"}},
      {"a predicate filters", -1, "Category[Name='Length']/Name", {"Name=Length", "Name=Second name"}},
      {"the parent step climbs", 0, "..", {"Table=\n  "}},
  };
  const XmlDocument doc(kTable);
  const XmlNode root = doc.Child(0);
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const XmlNode context = row.category < 0 ? root : root.Xql("Category").Item(row.category);
    EXPECT_EQ(describe(context.Xql(row.xpath)), row.expected);
  }
}

TEST(XmlQuery, ADocumentQueryStartsAtTheDocument) {
  const XmlDocument doc(kTable);
  EXPECT_EQ(doc.Xql("Category").Length(), 0);
  EXPECT_EQ(doc.Xql("Table/Category").Length(), 2);
  EXPECT_EQ(doc.Xql("//SubList").Length(), 4);
}

TEST(XmlQuery, InvalidQueriesRaiseXmlException) {
  struct Row {
    const char* name;
    QString xpath;
  };
  const Row rows[] = {
      {"unclosed predicate", "Category["},
      {"a step of nothing", "Category//"},
      {"a number, not a node set", "count(Category)"},
      {"an unbound variable", "$x"},
      {"empty query", ""},
      {"an unknown function", "frobnicate(Category)"},
  };
  const XmlDocument doc(kTable);
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    try {
      doc.Child(0).Xql(row.xpath);
      ADD_FAILURE() << "no exception";
    } catch (const XmlException& fault) {
      EXPECT_EQ(fault.kind(), "XmlException");
      EXPECT_TRUE(fault.message().contains("\"" + row.xpath + "\"")) << fault.message().toStdString();
    }
  }
}

TEST(XmlText, TheFirstChildOfAnElementCarriesItsText) {
  struct Row {
    const char* name;
    QString xml;
    QString text;
  };
  const Row rows[] = {
      {"predefined and numeric entities", "<k>a &amp; b &lt; c &#233;&#x263A;</k>",
       QString::fromUtf8("a & b < c \u00e9\u263a")},
      {"UTF-8 text", QString::fromUtf8("<k>\u00c5ngstr\u00f6m \u00b5m \u2014 1e-10</k>"),
       QString::fromUtf8("\u00c5ngstr\u00f6m \u00b5m \u2014 1e-10")},
      {"a child element cuts the text", "<k>mass <b>of</b> electron</k>", "mass "},
      {"CDATA keeps markup characters", "<k><![CDATA[a<b && c>d]]></k>", "a<b && c>d"},
      {"CR LF line endings become LF", "<k>line one\r\nline two</k>", "line one\nline two"},
      {"a comment first is the first child", "<k><!-- note -->text</k>", " note "},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const XmlDocument doc(row.xml);
    EXPECT_EQ(doc.Child(0).Child(0).Value(), row.text);
  }
}

TEST(XmlNodes, NamesAndValuesByKindOfNode) {
  const XmlDocument doc(QStringLiteral("<r a=\"1\"><e/>text<![CDATA[c]]><!--m--><?pi data?></r>"));
  const XmlNode root = doc.Child(0);
  struct Row {
    const char* name;
    XmlNode node;
    QString nodeName;
    QString value;
  };
  const Row rows[] = {
      {"an element has no value of its own", root, "r", ""},
      {"a text node", root.Child(1), "#text", "text"},
      {"a CDATA section", root.Child(2), "#cdata-section", "c"},
      {"a comment", root.Child(3), "#comment", "m"},
      {"a processing instruction", root.Child(4), "pi", "data"},
      {"an attribute", root.Xql("@a").Item(0), "a", "1"},
      {"the document", doc.Node(), "#document", ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    ASSERT_FALSE(row.node.IsNil());
    EXPECT_EQ(row.node.Name(), row.nodeName);
    EXPECT_EQ(row.node.Value(), row.value);
  }
  EXPECT_EQ(root.ChildCount(), 5);
}

TEST(XmlNodes, NavigationWalksSiblingsAndParents) {
  const XmlDocument doc(QStringLiteral("<r><a/><b>x</b><c/></r>"));
  const XmlNode a = doc.Child(0).FirstChild();
  EXPECT_EQ(a.NextSibling().NextSibling().Name(), "c");
  EXPECT_TRUE(a.NextSibling().NextSibling().NextSibling().IsNil());
  EXPECT_EQ(a.Parent().Parent().Name(), "#document");
  EXPECT_TRUE(doc.Node().Parent().IsNil());
  EXPECT_EQ(doc.Child(0).Xql("b/text()").Item(0).Parent().Name(), "b");
}

TEST(XmlNodes, MissingThingsReadAsNilOrEmpty) {
  const XmlDocument doc(QStringLiteral("<r><Category><Key/></Category></r>"));
  const XmlNode category = doc.Child(0).Xql("Category").Item(0);
  const XmlNodeList none = category.Xql("Value");
  struct Row {
    const char* name;
    XmlNode node;
  };
  const Row nils[] = {
      {"an item past the end", none.Item(0)},
      {"a negative item", doc.Child(0).Xql("Category").Item(-1)},
      {"a child of an empty element", category.Xql("Key").Item(0).Child(0)},
      {"a child past the last", category.Child(1)},
      {"a child of a Nil", none.Item(0).Child(0)},
      {"a parent of a Nil", none.Item(0).Parent()},
  };
  for (const Row& row : nils) {
    SCOPED_TRACE(row.name);
    EXPECT_TRUE(row.node.IsNil());
    EXPECT_FALSE(static_cast<bool>(row.node));
    EXPECT_EQ(row.node.Name(), "");
    EXPECT_EQ(row.node.GetAttribute("convert"), "");
    EXPECT_EQ(row.node.ChildCount(), 0);
    EXPECT_EQ(row.node.Xql("Key").Length(), 0);
  }
  EXPECT_EQ(none.Length(), 0);
  EXPECT_EQ(category.GetAttribute("convert"), "");
  EXPECT_EQ(category.Child(0).Value(), "");
}

// A record without Key, or with an empty one, must break off the search with a fault
// that the conversion loader's XmlException handler lets pass.
TEST(XmlNodes, TheValueOfANilIsAFaultButNotAnXmlFault) {
  struct Row {
    const char* name;
    QString xml;
  };
  const Row rows[] = {
      {"a record without its element", "<r><Category><Value>v</Value></Category></r>"},
      {"an element without text", "<r><Category><Key/></Category></r>"},
      {"an element holding only an empty element", "<r><Category><Key><i/></Key></Category></r>"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const XmlDocument doc(row.xml);
    const XmlNode category = doc.Child(0).Xql("Category").Item(0);
    bool nilFault = false;
    try {
      category.Xql("Key").Item(0).Child(0).Child(0).Value();
      category.Xql("Key").Item(0).Child(0).Value();
    } catch (const XmlException&) {
      ADD_FAILURE() << "an XmlException";
    } catch (const NilObjectException& fault) {
      nilFault = true;
      EXPECT_EQ(fault.kind(), "NilObjectException");
    }
    EXPECT_TRUE(nilFault);
  }
}

TEST(XmlDocumentLoad, TheRootIsTheFirstChildUnlessSomethingStandsBeforeIt) {
  struct Row {
    const char* name;
    QString xml;
    QString firstChild;
    int childCount;
  };
  const Row rows[] = {
      {"the declaration is not a child", "<?xml version=\"1.0\"?><Table/>", "Table", 1},
      {"blank lines around the root are not children", "<?xml version=\"1.0\"?>\n\n<Table/>\n\n",
       "Table", 1},
      {"a byte order mark is skipped", QString(QChar(0xFEFF)) + "<Table/>", "Table", 1},
      {"a comment before the root is taken for it", "<!-- data --><Table/>", "#comment", 2},
      {"a comment behind the root is a child too", "<Table/><!-- end -->", "Table", 2},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const XmlDocument doc(row.xml);
    EXPECT_EQ(doc.Child(0).Name(), row.firstChild);
    EXPECT_EQ(doc.ChildCount(), row.childCount);
    EXPECT_EQ(doc.DocumentElement().Name(), "Table");
  }
}

TEST(XmlDocumentLoad, MalformedTextRaisesXmlExceptionWithItsPosition) {
  struct Row {
    const char* name;
    QString xml;
    int line;  // 0: not checked
    int column;
  };
  const Row rows[] = {
      {"empty text", "", 1, 1},
      {"only blanks", "  \n ", 2, 2},
      {"unclosed tag", "<Table><Category></Category>", 0, 0},
      {"mismatched end tag on line 3", "<Table>\n<Category>\n</Table>", 3, 0},
      {"a second root", "<a/>\n  <b/>", 2, 3},
      {"text behind the root", "<a/>junk", 1, 5},
      {"text before the root", "junk<a/>", 1, 1},
      {"an unclosed comment", "<a><!-- </a>", 0, 0},
      {"garbage", "this is not XML", 0, 0},
      {"an unquoted attribute", "<a b=c/>", 0, 0},
      {"a stray end tag", "</a>", 0, 0},
      {"columns count characters", QString::fromUtf8("<a>\u00e9\u00e9</a><b/>"), 1, 10},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    XmlDocument doc;
    try {
      doc.LoadXml(row.xml);
      ADD_FAILURE() << "no exception";
    } catch (const XmlException& fault) {
      EXPECT_EQ(fault.kind(), "XmlException");
      EXPECT_FALSE(fault.message().isEmpty());
      EXPECT_GE(fault.line(), 1);
      EXPECT_GE(fault.column(), 1);
      EXPECT_EQ(row.line ? fault.line() : 0, row.line) << fault.message().toStdString();
      EXPECT_EQ(row.column ? fault.column() : 0, row.column) << fault.message().toStdString();
      EXPECT_TRUE(fault.message().contains(QStringLiteral("line %1").arg(fault.line())));
    }
    EXPECT_EQ(doc.ChildCount(), 0);
  }
}

TEST(XmlDocumentLoad, NodesOutliveTheirDocumentAndItsReloads) {
  std::optional<XmlNode> kept;
  {
    const XmlDocument doc(QStringLiteral("<r><Key>electron</Key></r>"));
    kept = doc.Child(0).Xql("Key").Item(0);
  }
  EXPECT_EQ(kept->Child(0).Value(), "electron");
  EXPECT_EQ(kept->Parent().Name(), "r");

  XmlDocument doc(QStringLiteral("<old><Key>first</Key></old>"));
  const XmlNodeList oldKeys = doc.Child(0).Xql("Key");
  doc.LoadXml(QStringLiteral("<new/>"));
  EXPECT_EQ(oldKeys.Item(0).Child(0).Value(), "first");
  EXPECT_EQ(doc.Child(0).Name(), "new");

  EXPECT_THROW(doc.LoadXml(QStringLiteral("<broken>")), XmlException);
  EXPECT_EQ(oldKeys.Item(0).Child(0).Value(), "first");
  EXPECT_TRUE(doc.Child(0).IsNil());
}

TEST(XmlLimits, DeepNestingLoadsAndWalksAndDeeperRaisesInsteadOfOverflowing) {
  constexpr int kDepth = 10000;
  const XmlDocument doc(QString("<a>").repeated(kDepth) + "bottom" + QString("</a>").repeated(kDepth));
  XmlNode node = doc.Child(0);
  for (int i = 1; i < kDepth; ++i) node = node.FirstChild();
  EXPECT_EQ(node.Child(0).Value(), "bottom");
  EXPECT_EQ(doc.Xql("//a").Length(), kDepth);
  EXPECT_EQ(doc.Xql("//a[not(a)]").Item(0).Child(0).Value(), "bottom");
  EXPECT_THROW(XmlDocument{QString("<a>").repeated(100000)}, XmlException);
  EXPECT_THROW(doc.Xql(QString(20000, '(') + "a" + QString(20000, ')')), XmlException);
}

}  // namespace
}  // namespace platform
