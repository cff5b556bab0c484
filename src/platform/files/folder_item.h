#pragma once
// FolderItem is a handle on a path, as the framework has it: a value that may be Nil.
// Child of an existing folder always gives an item, whether the file is there or not
// (Exists says which); Child of a folder that is not there gives Nil. Every framework
// method called on a Nil item throws NilObjectException, as the program's code would
// meet it.

#include <QString>
#include <optional>

#include "platform/desktop/media.h"
#include "platform/files/text_streams.h"

namespace platform {

class FolderItem {
 public:
  // Nil.
  FolderItem() = default;
  // An item for the path, whether anything is there or not; an empty path is Nil.
  explicit FolderItem(const QString& path);

  bool isNil() const { return path_.isEmpty(); }
  explicit operator bool() const { return !isNil(); }
  // The absolute path; empty for Nil.
  QString path() const { return path_; }

  QString Name() const;
  bool Exists() const;
  bool Directory() const;
  // Nil unless this is an existing folder and name is one plain file name (not empty,
  // ".", ".." or holding a "/").
  FolderItem Child(const QString& name) const;
  // Nil at the root.
  FolderItem Parent() const;

  // NilObjectException when there is no such file (opening gives Nil), IOException when
  // it is there but cannot be read.
  TextInputStream OpenAsTextFile() const;
  // Rewrites the file whole at Close (see TextOutputStream); IOException when it cannot.
  TextOutputStream CreateTextFile() const;
  // Appends, creating the file when it is not there.
  TextOutputStream AppendToTextFile() const;
  // Makes the folder and any missing folder above it; IOException when it cannot.
  void CreateAsFolder() const;
  // Removes a file or an empty folder; IOException when it cannot.
  void Delete() const;

  // Handles named after the file without its extension; nothing when no file is there.
  std::optional<Picture> OpenAsPicture() const;
  std::optional<Sound> OpenAsSound() const;

  friend bool operator==(const FolderItem&, const FolderItem&) = default;

 private:
  void requireItem(const char* method) const;
  QString path_;
};

// A path relative to the folder that holds the application (an absolute one as it
// stands); Nil when the folder it would lie in is not there.
FolderItem GetFolderItem(const QString& path);

}  // namespace platform
