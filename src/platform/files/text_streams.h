#pragma once
// Text streams over whole files, in UTF-8. An input stream reads the file at opening
// and hands it out by lines or all at once; any of CR LF, CR and LF ends a line. An
// output stream either appends to a file as it writes, or rewrites one whole: then the
// text goes to a temporary file that replaces the old one only at Close, so a crash or
// an abandoned stream leaves the old file as it was.

#include <QString>
#include <memory>

class QFileDevice;

namespace platform {

class FolderItem;

class TextInputStream {
 public:
  // The text of a file already read.
  explicit TextInputStream(QString text = QString());

  // The rest of the text, line ends as they stand.
  QString ReadAll();
  // The next line without its line end; empty at the end.
  QString ReadLine();
  // True once everything is read: after the last line, even when it had a line end.
  // (Named so because EOF is a macro of the C library.)
  bool Eof() const;
  // Reads after Close give empty text.
  void Close();

 private:
  QString text_;
  qsizetype pos_ = 0;
};

class TextOutputStream {
 public:
  enum class Mode { Append, Rewrite };

  // Opens the item's file; IOException when it cannot be opened for writing.
  TextOutputStream(const QString& path, Mode mode);
  ~TextOutputStream();
  TextOutputStream(TextOutputStream&&) noexcept;
  TextOutputStream& operator=(TextOutputStream&&) noexcept;

  // The framework's TextOutputStream.Create and .Append; a Nil item throws
  // NilObjectException.
  static TextOutputStream Create(const FolderItem& item);
  static TextOutputStream Append(const FolderItem& item);

  // IOException when the writing fails or the stream is closed.
  void Write(const QString& text);
  // The text and EndOfLine ("\n").
  void WriteLine(const QString& text = QString());
  // Appended text is on disk; a rewrite replaces the old file now (IOException if that
  // fails). A second Close does nothing. A rewriting stream destroyed unclosed is
  // abandoned and leaves the old file; an appending one is closed.
  void Close();
  bool isOpen() const;

 private:
  std::unique_ptr<QFileDevice> file_;
  Mode mode_;
  QString path_;
};

// Replaces the item's file by the text in one step, through a temporary file.
// NilObjectException for a Nil item, IOException when it cannot be written.
void writeWholeFileAtomically(const FolderItem& item, const QString& text);

}  // namespace platform
