#pragma once
// Texts and lists of texts in failure messages as they read, not as bytes.

#include <QString>
#include <QStringList>
#include <ostream>

inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }
inline void PrintTo(const QStringList& lines, std::ostream* out) {
  *out << '{';
  for (const QString& line : lines) *out << " \"" << line.toStdString() << '"';
  *out << " }";
}
