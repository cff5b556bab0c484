#pragma once
// One line of a driver script, cut into words. A word is a run of characters up to a
// blank, or a double-quoted string with the escapes \n \r \t \" \\. Quoted words are
// marked, so that a quoted "*" is text while a bare * is the wildcard of expect log.

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace drive {

struct Word {
  QString text;
  bool quoted = false;
};

struct ScriptLine {
  std::vector<Word> words;
  QString error;  // empty when the line could be read
};

ScriptLine parseScriptLine(const QString& line);

// A text as the driver prints strings: double-quoted, with the same escapes.
QString quote(const QString& text);

}  // namespace drive
