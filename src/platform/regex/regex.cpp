#include "platform/regex/regex.h"

#include <QRegularExpressionMatchIterator>
#include <QStringView>

namespace platform {

// --- RegExMatch --------------------------------------------------------------------

void RegExMatch::checkIndex(int index) const {
  if (index < 0 || index >= SubExpressionCount()) {
    throw OutOfBoundsException(
        QStringLiteral("Subexpression %1 of a match with %2").arg(index).arg(SubExpressionCount()));
  }
}

int RegExMatch::SubExpressionCount() const {
  return match_.regularExpression().captureCount() + 1;
}

QString RegExMatch::SubExpressionString(int index) const {
  checkIndex(index);
  return match_.captured(index);
}

int RegExMatch::SubExpressionStart(int index) const {
  checkIndex(index);
  return static_cast<int>(match_.capturedStart(index));
}

int RegExMatch::SubExpressionStartB(int index) const {
  const int start = SubExpressionStart(index);
  if (start < 0) return -1;
  return static_cast<int>(QStringView(subject_).left(start).toUtf8().size());
}

// --- RegEx -------------------------------------------------------------------------

const QRegularExpression& RegEx::compiled() {
  QRegularExpression::PatternOptions options;
  if (!Options.CaseSensitive) options |= QRegularExpression::CaseInsensitiveOption;
  if (!Options.Greedy) options |= QRegularExpression::InvertedGreedinessOption;
  if (Options.DotMatchAll) options |= QRegularExpression::DotMatchesEverythingOption;
  if (!Options.TreatTargetAsOneLine) options |= QRegularExpression::MultilineOption;

  if (!isCompiled_ || SearchPattern != compiledPattern_ || options != compiledOptions_) {
    isCompiled_ = false;
    regex_.setPattern(SearchPattern);
    regex_.setPatternOptions(options);
    if (!regex_.isValid()) {
      throw RegExException(QStringLiteral("Invalid pattern \"%1\": %2 at position %3")
                               .arg(SearchPattern, regex_.errorString())
                               .arg(regex_.patternErrorOffset() + 1));
    }
    compiledPattern_ = SearchPattern;
    compiledOptions_ = options;
    isCompiled_ = true;
  }
  return regex_;
}

std::optional<QRegularExpressionMatch> RegEx::findFrom(int position) {
  const QRegularExpression& regex = compiled();
  QRegularExpressionMatchIterator matches = regex.globalMatch(target_, position);
  if (!matches.hasNext()) return std::nullopt;
  QRegularExpressionMatch match = matches.next();
  // After a match of nothing here, the iterator's second step is the one that looks
  // for a non-empty match at the same place before moving on.
  if (lastWasEmpty_ && match.capturedStart(0) == position && match.capturedLength(0) == 0) {
    if (!matches.hasNext()) return std::nullopt;
    match = matches.next();
  }
  return match;
}

std::optional<RegExMatch> RegEx::Search(const QString& target) {
  target_ = target;
  position_ = 0;
  lastWasEmpty_ = false;
  return Search();
}

std::optional<RegExMatch> RegEx::Search() {
  std::optional<QRegularExpressionMatch> match = findFrom(position_);
  if (!match) {
    position_ = static_cast<int>(target_.size());
    lastWasEmpty_ = true;
    return std::nullopt;
  }
  position_ = static_cast<int>(match->capturedEnd(0));
  lastWasEmpty_ = match->capturedLength(0) == 0;
  return RegExMatch(std::move(*match), target_);
}

QString RegEx::Replace(const QString& target) {
  target_ = target;
  position_ = 0;
  lastWasEmpty_ = false;
  return Replace();
}

QString RegEx::Replace() {
  if (!Options.ReplaceAllMatches) {
    std::optional<QRegularExpressionMatch> match = findFrom(position_);
    if (!match) {
      position_ = static_cast<int>(target_.size());
      lastWasEmpty_ = true;
      return target_;
    }
    const QString inserted = expand(*match);
    const auto start = match->capturedStart(0);
    target_ = target_.left(start) + inserted + target_.mid(match->capturedEnd(0));
    // Go on behind the inserted text, never inside it.
    position_ = static_cast<int>(start + inserted.size());
    lastWasEmpty_ = match->capturedLength(0) == 0;
    return target_;
  }

  const QRegularExpression& regex = compiled();
  QString result = target_.left(position_);
  qsizetype copied = position_;
  QRegularExpressionMatchIterator matches = regex.globalMatch(target_, position_);
  bool first = true;
  while (matches.hasNext()) {
    const QRegularExpressionMatch match = matches.next();
    const bool repeatsEmpty = first && lastWasEmpty_ && match.capturedStart(0) == position_ &&
                              match.capturedLength(0) == 0;
    first = false;
    if (repeatsEmpty) continue;
    result += QStringView(target_).mid(copied, match.capturedStart(0) - copied);
    result += expand(match);
    copied = match.capturedEnd(0);
  }
  result += QStringView(target_).mid(copied);
  target_ = result;
  position_ = static_cast<int>(target_.size());
  lastWasEmpty_ = true;
  return target_;
}

QString RegEx::expand(const QRegularExpressionMatch& match) const {
  QString out;
  const QString& pattern = ReplacementPattern;
  for (qsizetype i = 0; i < pattern.size(); ++i) {
    const QChar c = pattern[i];
    const bool escape = c == u'\\' || c == u'$';
    if (escape && i + 1 < pattern.size()) {
      const QChar next = pattern[i + 1];
      if (next >= u'0' && next <= u'9') {
        // A group the pattern does not have puts in nothing.
        out += match.captured(next.unicode() - u'0');
        ++i;
        continue;
      }
      if (c == u'\\' && next == u'\\') {
        out += u'\\';
        ++i;
        continue;
      }
    }
    out += c;
  }
  return out;
}

}  // namespace platform
