#pragma once
// Regular expressions with the framework's calling habits: a RegEx object remembers
// the text of its last search, so Search() without a target goes on in that text,
// after the previous match, even when the caller has since rewritten its own copy
// (the factorial rewriting depends on exactly that). The pattern syntax is
// Perl-compatible; \d and \w mean ASCII digits and word characters.

#include <QRegularExpression>
#include <QRegularExpressionMatch>
#include <QString>
#include <optional>
#include <utility>

#include "platform/exceptions.h"

namespace platform {

// A SearchPattern that does not compile.
class RegExException : public FrameworkException {
 public:
  using FrameworkException::FrameworkException;
  QString kind() const override { return QStringLiteral("RegExException"); }
};

// The framework's defaults: case does not matter, quantifiers are greedy, "." stops at
// a line break, ^ and $ also match at line breaks, Replace changes the first match.
struct RegExOptions {
  bool CaseSensitive = false;
  bool Greedy = true;
  bool DotMatchAll = false;
  bool TreatTargetAsOneLine = false;
  bool ReplaceAllMatches = false;
};

class RegExMatch {
 public:
  // The whole match and the groups of the pattern: groups + 1, whether each took
  // part or not.
  int SubExpressionCount() const;
  // 0 is the whole match. A group that took no part gives the empty text; an index
  // beyond the pattern's groups raises OutOfBoundsException.
  QString SubExpressionString(int index) const;
  // Where the group starts in the searched text, from 0: in characters, and in bytes
  // of its UTF-8 form. -1 for a group that took no part.
  int SubExpressionStart(int index) const;
  int SubExpressionStartB(int index) const;

 private:
  friend class RegEx;
  RegExMatch(QRegularExpressionMatch match, QString subject)
      : match_(std::move(match)), subject_(std::move(subject)) {}
  void checkIndex(int index) const;
  QRegularExpressionMatch match_;
  QString subject_;
};

class RegEx {
 public:
  QString SearchPattern;
  // \0 .. \9 or $0 .. $9 put in the whole match or a group; \\ is one backslash.
  QString ReplacementPattern;
  RegExOptions Options;

  // The first match in target; none gives an empty optional. The target becomes the
  // text that Search() and Replace() continue in. A bad pattern raises RegExException.
  std::optional<RegExMatch> Search(const QString& target);
  // The next match in the text of the last Search or Replace with a target.
  std::optional<RegExMatch> Search();

  // The target with its first match (every match with ReplaceAllMatches) replaced by
  // ReplacementPattern; the target unchanged when nothing matches.
  QString Replace(const QString& target);
  // Goes on in the text the last Replace returned (or the last Search searched),
  // after what was last matched or put in, and returns that text with the next match
  // replaced.
  QString Replace();

 private:
  const QRegularExpression& compiled();
  std::optional<QRegularExpressionMatch> findFrom(int position);
  QString expand(const QRegularExpressionMatch& match) const;

  QString target_;
  // Where the next search in target_ starts; always within target_.
  int position_ = 0;
  // A match of nothing at position_ was the last one: the next search must not find it
  // again.
  bool lastWasEmpty_ = false;

  QRegularExpression regex_;
  QString compiledPattern_;
  QRegularExpression::PatternOptions compiledOptions_;
  bool isCompiled_ = false;
};

}  // namespace platform
