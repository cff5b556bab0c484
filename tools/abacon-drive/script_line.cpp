#include "script_line.h"

namespace drive {

ScriptLine parseScriptLine(const QString& line) {
  ScriptLine result;
  qsizetype i = 0;
  const qsizetype n = line.size();
  while (i < n) {
    if (line[i].isSpace()) {
      ++i;
      continue;
    }
    Word word;
    if (line[i] == '"') {
      word.quoted = true;
      ++i;
      bool closed = false;
      while (i < n) {
        const QChar c = line[i];
        if (c == '"') {
          closed = true;
          ++i;
          break;
        }
        if (c == '\\') {
          if (i + 1 >= n) {
            result.error = QStringLiteral("a backslash ends the line");
            return result;
          }
          const QChar e = line[i + 1];
          if (e == 'n') word.text += '\n';
          else if (e == 'r') word.text += '\r';
          else if (e == 't') word.text += '\t';
          else if (e == '"') word.text += '"';
          else if (e == '\\') word.text += '\\';
          else {
            result.error = QStringLiteral("unknown escape \\") + e;
            return result;
          }
          i += 2;
          continue;
        }
        word.text += c;
        ++i;
      }
      if (!closed) {
        result.error = QStringLiteral("a quoted string is not closed");
        return result;
      }
      if (i < n && !line[i].isSpace()) {
        result.error = QStringLiteral("a quoted string runs into the next word");
        return result;
      }
    } else {
      while (i < n && !line[i].isSpace()) word.text += line[i++];
    }
    result.words.push_back(word);
  }
  return result;
}

QString quote(const QString& text) {
  QString out = QStringLiteral("\"");
  for (const QChar c : text) {
    if (c == '\n') out += QStringLiteral("\\n");
    else if (c == '\r') out += QStringLiteral("\\r");
    else if (c == '\t') out += QStringLiteral("\\t");
    else if (c == '"') out += QStringLiteral("\\\"");
    else if (c == '\\') out += QStringLiteral("\\\\");
    else out += c;
  }
  return out + '"';
}

}  // namespace drive
