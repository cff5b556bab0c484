#include "platform/controls/text_controls.h"

#include <algorithm>

#include "platform/desktop/desktop.h"
#include "platform/exceptions.h"

namespace platform {

namespace {

constexpr char16_t kBackspace = 8;
constexpr char16_t kTab = 9;

}  // namespace

QString alignmentName(Alignment alignment) {
  switch (alignment) {
    case Alignment::Default: return QStringLiteral("default");
    case Alignment::Left: return QStringLiteral("left");
    case Alignment::Center: return QStringLiteral("center");
    case Alignment::Right: return QStringLiteral("right");
  }
  return QStringLiteral("default");
}

Alignment alignmentFromVariant(const QVariant& value, const QString& property) {
  const QString word = value.toString().trimmed().toLower();
  if (word == u"default" || word == u"0") return Alignment::Default;
  if (word == u"left" || word == u"1") return Alignment::Left;
  if (word == u"center" || word == u"centre" || word == u"2") return Alignment::Center;
  if (word == u"right" || word == u"3") return Alignment::Right;
  throw PropertyValueException(property + QStringLiteral(" takes left, center, right or default, not ") +
                               value.toString());
}

// ---- TextControl -------------------------------------------------------------------

bool TextControl::storeText(const QString& text) {
  if (text_ == text) return false;
  text_ = text;
  appendedFrom_ = -1;
  changed(QStringLiteral("Text"));
  return true;
}

void TextControl::storeAppended(const QString& more) {
  appendedFrom_ = text_.size();
  text_ += more;
  changed(QStringLiteral("Text"));
}

void TextControl::setText(const QString& text) { storeText(text); }

void TextControl::setAlignment(Alignment alignment) {
  if (alignment_ == alignment) return;
  alignment_ = alignment;
  changed(QStringLiteral("Alignment"));
}

const PropertyTable& TextControl::propertyTable() {
  static const PropertyTable table = [] {
    PropertyTable t = Control::propertyTable();
    PropertyRegistrar<TextControl>(t)
        .readWrite("Text", &TextControl::Text, &TextControl::setText)
        .indexed(
            "Alignment", 0,
            [](const TextControl& c, const PropertyTable::Args&) { return QVariant(alignmentName(c.alignment())); },
            [](TextControl& c, const PropertyTable::Args&, const QVariant& v) {
              c.setAlignment(alignmentFromVariant(v, QStringLiteral("Alignment")));
            });
    return t;
  }();
  return table;
}

// ---- TextEdit ----------------------------------------------------------------------

void TextEdit::setSelection(int start, int length) {
  const int size = static_cast<int>(Text().size());
  start = std::clamp(start, 0, size);
  length = std::clamp(length, 0, size - start);
  if (start == selStart_ && length == selLength_) return;
  const bool startMoved = start != selStart_;
  const bool lengthChanged = length != selLength_;
  selStart_ = start;
  selLength_ = length;
  if (startMoved) changed(QStringLiteral("SelStart"));
  if (lengthChanged) changed(QStringLiteral("SelLength"));
}

void TextEdit::setText(const QString& text) {
  if (text == Text()) return;
  // The cursor goes first, so that observers told of the text find it inside.
  selStart_ = static_cast<int>(text.size());
  selLength_ = 0;
  storeText(text);
  raise(TextChange);
}

void TextEdit::AppendText(const QString& more) {
  if (more.isEmpty()) return;
  selStart_ = static_cast<int>(Text().size() + more.size());
  selLength_ = 0;
  storeAppended(more);
  raise(TextChange);
}

void TextEdit::setSelStart(int start) { setSelection(start, 0); }

void TextEdit::setSelLength(int length) { setSelection(selStart_, length); }

void TextEdit::SelectAll() { setSelection(0, static_cast<int>(Text().size())); }

void TextEdit::replaceSelection(const QString& insert) {
  QString text = Text();
  text.replace(selStart_, selLength_, insert);
  const int cursor = selStart_ + static_cast<int>(insert.size());
  selStart_ = cursor;
  selLength_ = 0;
  if (storeText(text)) raise(TextChange);
}

void TextEdit::Paste() {
  Desktop* d = desktop();
  if (!d) throw NilObjectException(Name() + QStringLiteral(" has no desktop to paste from"));
  if (readOnly_ || !d->clipboardHasText()) return;
  replaceSelection(d->clipboardText());
}

void TextEdit::Copy() {
  Desktop* d = desktop();
  if (!d) throw NilObjectException(Name() + QStringLiteral(" has no desktop to copy to"));
  if (selLength_ > 0) d->setClipboardText(SelText());
}

void TextEdit::setReadOnly(bool on) {
  if (readOnly_ == on) return;
  readOnly_ = on;
  changed(QStringLiteral("ReadOnly"));
}

void TextEdit::setMultiLine(bool on) {
  if (multiLine_ == on) return;
  multiLine_ = on;
  changed(QStringLiteral("MultiLine"));
}

void TextEdit::setStyled(bool on) {
  if (styled_ == on) return;
  styled_ = on;
  changed(QStringLiteral("Styled"));
}

void TextEdit::setScrollbarVertical(bool on) {
  if (scrollbarVertical_ == on) return;
  scrollbarVertical_ = on;
  changed(QStringLiteral("ScrollbarVertical"));
}

void TextEdit::setScrollbarHorizontal(bool on) {
  if (scrollbarHorizontal_ == on) return;
  scrollbarHorizontal_ = on;
  changed(QStringLiteral("ScrollbarHorizontal"));
}

void TextEdit::setBackColor(const QString& color) {
  if (backColor_ == color) return;
  backColor_ = color;
  changed(QStringLiteral("BackColor"));
}

bool TextEdit::userKeyDown(const QString& key) {
  if (!Enabled() || eventsBlocked()) return false;
  return KeyDown && KeyDown(key);
}

void TextEdit::userKey(const QString& key) {
  if (!Enabled() || key.isEmpty()) return;
  if (userKeyDown(key)) return;
  if (readOnly_) return;
  const char16_t first = key.front().unicode();
  if (first == kBackspace) {
    if (selLength_ == 0 && selStart_ > 0) {
      // A surrogate pair goes as one character.
      const bool pair = selStart_ >= 2 && Text().at(selStart_ - 1).isLowSurrogate() &&
                        Text().at(selStart_ - 2).isHighSurrogate();
      const int width = pair ? 2 : 1;
      selStart_ -= width;
      selLength_ = width;
    }
    replaceSelection(QString());
    return;
  }
  const bool lineEnd = first == u'\r' || first == u'\n';
  if ((lineEnd || first == kTab) && !multiLine_) return;
  if (first < 0x20 && !lineEnd && first != kTab) return;
  replaceSelection(lineEnd ? QStringLiteral("\n") : key);
}

void TextEdit::userType(const QString& text) {
  if (!Enabled()) return;
  setSelection(static_cast<int>(Text().size()), 0);
  for (int i = 0; i < text.size();) {
    const int width = text.at(i).isHighSurrogate() && i + 1 < text.size() ? 2 : 1;
    userKey(text.mid(i, width));
    i += width;
  }
}

void TextEdit::userEditText(const QString& text, int cursor) {
  if (!Enabled()) return;
  selStart_ = std::clamp(cursor, 0, static_cast<int>(text.size()));
  selLength_ = 0;
  if (storeText(text)) raise(TextChange);
}

const PropertyTable& TextEdit::propertyTable() {
  static const PropertyTable table = [] {
    PropertyTable t = TextControl::propertyTable();
    PropertyRegistrar<TextEdit>(t)
        .readWrite("SelStart", &TextEdit::SelStart, &TextEdit::setSelStart)
        .readWrite("SelLength", &TextEdit::SelLength, &TextEdit::setSelLength)
        .readOnly("SelText", &TextEdit::SelText)
        .readWrite("ReadOnly", &TextEdit::ReadOnly, &TextEdit::setReadOnly)
        .readWrite("MultiLine", &TextEdit::MultiLine, &TextEdit::setMultiLine)
        .readWrite("Styled", &TextEdit::Styled, &TextEdit::setStyled)
        .readWrite("ScrollbarVertical", &TextEdit::ScrollbarVertical, &TextEdit::setScrollbarVertical)
        .readWrite("ScrollbarHorizontal", &TextEdit::ScrollbarHorizontal, &TextEdit::setScrollbarHorizontal)
        .readWrite("BackColor", &TextEdit::BackColor, &TextEdit::setBackColor);
    return t;
  }();
  return table;
}

}  // namespace platform
