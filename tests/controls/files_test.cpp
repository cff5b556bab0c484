// FolderItem lookups, text streams and whole-file rewrites.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <functional>

#include "platform/exceptions.h"
#include "platform/files/folder_item.h"
#include "platform/files/folders.h"
#include "support/printers.h"

namespace platform {
namespace {

class Files : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(home.isValid());
    SpecialFolder::setHome(home.path());
    for (const char* folder : {"ApplicationData/VXKSupport", "Application", "Preferences"}) {
      QDir(home.path()).mkpath(folder);
    }
  }
  void TearDown() override { SpecialFolder::clearOverrides(); }

  QString pathOf(const QString& relative) const { return QDir(home.path()).filePath(relative); }
  void put(const QString& relative, const QByteArray& bytes) const {
    QFile f(pathOf(relative));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(bytes);
  }
  QByteArray contents(const QString& relative) const {
    QFile f(pathOf(relative));
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("(missing)");
  }

  QTemporaryDir home;
};

TEST_F(Files, ChildGivesAnItemOnlyInAnExistingFolder) {
  put("ApplicationData/VXKSupport/convert.txt", "<x/>");
  const FolderItem support = SpecialFolder::ApplicationData().Child("VXKSupport");
  enum class Expect { Nil, Exists, Absent };
  struct Row {
    const char* name;
    std::function<FolderItem()> look;
    Expect expect;
  };
  const Row rows[] = {
      {"a file that is there", [&] { return support.Child("convert.txt"); }, Expect::Exists},
      {"a file missing from an existing folder is still an item",
       [&] { return support.Child("physicaldata.txt"); }, Expect::Absent},
      {"but a child of a missing folder is Nil",
       [] { return SpecialFolder::ApplicationData().Child("Else").Child("convert.txt"); }, Expect::Nil},
      {"a child of a file is Nil", [&] { return support.Child("convert.txt").Child("x"); }, Expect::Nil},
      {"a name that is a path is Nil", [] { return SpecialFolder::ApplicationData().Child("VXKSupport/convert.txt"); },
       Expect::Nil},
      {"the applications folder's file", [] { return GetFolderItem("VXmemory.txt"); }, Expect::Absent},
      {"GetFolderItem of a path in a missing folder", [] { return GetFolderItem("Missing/VXmemory.txt"); },
       Expect::Nil},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const FolderItem item = row.look();
    ASSERT_EQ(item.isNil(), row.expect == Expect::Nil);
    EXPECT_TRUE(item.isNil() || item.Exists() == (row.expect == Expect::Exists));
  }
  const FolderItem nil = SpecialFolder::ApplicationData().Child("Else").Child("convert.txt");
  EXPECT_THROW(nil.Exists(), NilObjectException);
  EXPECT_THROW(nil.Child("x"), NilObjectException);
  EXPECT_THROW(nil.CreateTextFile(), NilObjectException);
  EXPECT_THROW(writeWholeFileAtomically(nil, "x"), NilObjectException);
  EXPECT_THROW(support.Child("physicaldata.txt").OpenAsTextFile(), NilObjectException) << "missing";
  EXPECT_THROW(support.OpenAsTextFile(), NilObjectException) << "a folder is no text file";
}

TEST_F(Files, ReadLineTakesEveryKindOfLineEnd) {
  struct Row {
    const char* name;
    QByteArray bytes;
    QStringList lines;  // read while !Eof, after a first read
  };
  const Row rows[] = {
      {"CR", "a\rb", {"a", "b"}},
      {"mixed, with an empty line", "a\r\n\rb\nc", {"a", "", "b", "c"}},
      {"an empty file gives one empty line", "", {""}},
      {"UTF-8 with its byte order mark", "\xEF\xBB\xBF\xC3\xA9t\xC3\xA9\n", {QString::fromUtf8("\xC3\xA9t\xC3\xA9")}},
      {"bytes that are no UTF-8 read as replacement characters", "a\xFF", {QString("a") + QChar(0xFFFD)}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    put("Application/VXmemory.txt", row.bytes);
    TextInputStream in = GetFolderItem("VXmemory.txt").OpenAsTextFile();
    QStringList lines;
    do {
      lines.append(in.ReadLine());
    } while (!in.Eof());
    EXPECT_EQ(lines, row.lines);
  }
  put("Application/f.txt", "one\r\ntwo\rthree");
  TextInputStream in = GetFolderItem("f.txt").OpenAsTextFile();
  in.ReadLine();
  EXPECT_EQ(in.ReadAll(), "two\rthree") << "ReadAll gives the rest as it stands";
  EXPECT_TRUE(in.Eof());
}

TEST_F(Files, CreateReplacesAndAppendAddsOrCreates) {
  const FolderItem memory = GetFolderItem("VXmemory.txt");
  TextOutputStream append = memory.AppendToTextFile();
  append.WriteLine("x^2:");
  append.Close();
  TextOutputStream more = TextOutputStream::Append(memory);
  more.Write(QString::fromUtf8("\xCF\x80*r^2"));
  more.Close();
  EXPECT_EQ(contents("Application/VXmemory.txt"), "x^2:\n\xCF\x80*r^2");
  TextOutputStream create = TextOutputStream::Create(memory);
  create.WriteLine("only");
  create.Close();
  EXPECT_EQ(contents("Application/VXmemory.txt"), "only\n");
  EXPECT_THROW(create.Write("late"), IOException);
}

TEST_F(Files, AnAbandonedRewriteLeavesTheOldFile) {
  put("Preferences/VXKPreferences", "False,True;True,False");
  const FolderItem prefs = SpecialFolder::Preferences().Child("VXKPreferences");
  {
    TextOutputStream out = prefs.CreateTextFile();
    out.Write("True,Fa");
    // no Close: as if an exception had left the handler here
  }
  EXPECT_EQ(contents("Preferences/VXKPreferences"), "False,True;True,False");
  writeWholeFileAtomically(prefs, "True,False");
  EXPECT_EQ(contents("Preferences/VXKPreferences"), "True,False");
  EXPECT_EQ(QDir(pathOf("Preferences")).entryList(QDir::Files), QStringList{"VXKPreferences"})
      << "no temporary file is left over";
}

TEST_F(Files, WritesThatCannotHappenThrowIOException) {
  // Paths that cannot be written even with every permission: a folder where the file
  // would be, and a folder that is not there.
  QDir(home.path()).mkpath("Application/VXmemory.txt");
  const FolderItem noFolder(pathOf("Missing/VXLog.txt"));
  for (const FolderItem& item : {GetFolderItem("VXmemory.txt"), noFolder}) {
    SCOPED_TRACE(item.path().toStdString());
    EXPECT_THROW(item.CreateTextFile(), IOException);
    EXPECT_THROW(item.AppendToTextFile(), IOException);
    EXPECT_THROW(writeWholeFileAtomically(item, "x"), IOException);
  }
}

}  // namespace
}  // namespace platform
