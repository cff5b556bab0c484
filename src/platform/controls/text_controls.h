#pragma once
// Text controls. StaticText is a label; TextField (one line) and TextArea (several
// lines) are editable fields that share TextEdit. Assigning Text raises TextChange when
// the text changes, as an edit by the user does. A user's key goes to KeyDown before it
// reaches the text, and KeyDown returning true swallows it. Paste takes the desktop's
// clipboard into the text at the cursor.

#include "platform/controls/control.h"

namespace platform {

enum class Alignment { Default, Left, Center, Right };

// "default", "left", "center", "right"; reading also takes "centre" and the numbers 0-3.
QString alignmentName(Alignment alignment);
Alignment alignmentFromVariant(const QVariant& value, const QString& property);

class TextControl : public Control {
 public:
  using Control::Control;

  QString Text() const { return text_; }
  virtual void setText(const QString& text);

  Alignment alignment() const { return alignment_; }
  void setAlignment(Alignment alignment);

  // Where the text told last to the observers as "Text" had its new part added at the
  // end, or -1 when it was replaced as a whole: a renderer then appends instead of
  // redrawing a log that may hold a hundred thousand lines.
  qsizetype appendedFrom() const { return appendedFrom_; }

  const PropertyTable& properties() const override { return propertyTable(); }
  static const PropertyTable& propertyTable();
  void applyCreationText(const QString& text) override { setText(text); }

 protected:
  // Stores the text and tells the observers; false when it was already so.
  bool storeText(const QString& text);
  // Adds to the end in place, so the cost does not grow with the text.
  void storeAppended(const QString& more);

 private:
  QString text_;
  Alignment alignment_ = Alignment::Default;
  qsizetype appendedFrom_ = -1;
};

class StaticText : public TextControl {
 public:
  static constexpr ControlKind Kind = ControlKind::StaticText;
  explicit StaticText(const QString& name) : TextControl(name, Kind) {}
};

class TextEdit : public TextControl {
 public:
  using TextControl::TextControl;

  std::function<void()> TextChange;
  // Receives the key as a text ("a", "\r", Chr(8) for backspace); true swallows it.
  std::function<bool(const QString& key)> KeyDown;

  // A change raises TextChange and leaves the cursor at the end of the new text.
  void setText(const QString& text) override;
  // Text + more, with the same events as setText, at a cost that does not depend on the
  // length of the text already there.
  void AppendText(const QString& more);

  // The selection, in characters; an empty selection is the cursor. Setting SelStart
  // collapses the selection there. Both are kept inside the text.
  int SelStart() const { return selStart_; }
  void setSelStart(int start);
  int SelLength() const { return selLength_; }
  void setSelLength(int length);
  QString SelText() const { return Text().mid(selStart_, selLength_); }
  void SelectAll();

  // The clipboard's text replaces the selection, the cursor ends behind it. Nothing
  // happens on a read-only field or when the clipboard holds no text. The control must
  // belong to a window, whose desktop holds the clipboard (NilObjectException if not).
  void Paste();
  // The selection to the clipboard; an empty selection copies nothing.
  void Copy();

  bool ReadOnly() const { return readOnly_; }
  void setReadOnly(bool on);
  bool MultiLine() const { return multiLine_; }
  void setMultiLine(bool on);
  bool Styled() const { return styled_; }
  void setStyled(bool on);
  bool ScrollbarVertical() const { return scrollbarVertical_; }
  void setScrollbarVertical(bool on);
  bool ScrollbarHorizontal() const { return scrollbarHorizontal_; }
  void setScrollbarHorizontal(bool on);
  // "#rrggbb", or empty for the toolkit's background.
  QString BackColor() const { return backColor_; }
  void setBackColor(const QString& color);

  // The user's side. userType puts the cursor at the end and types each character as a
  // key of its own. userKey is one key at the cursor: KeyDown first, then, unless it
  // was swallowed or the field is read-only, the edit and TextChange. A single-line
  // field takes no line ends or tabs; Chr(8) deletes backwards.
  void userType(const QString& text);
  void userKey(const QString& key);
  // For a toolkit that edits by itself: ask KeyDown (true means swallow it), and report
  // the text the user's edit left, with the cursor.
  bool userKeyDown(const QString& key);
  void userEditText(const QString& text, int cursor);

  const PropertyTable& properties() const override { return propertyTable(); }
  static const PropertyTable& propertyTable();

 protected:
  void replaceSelection(const QString& insert);

 private:
  void setSelection(int start, int length);

  int selStart_ = 0;
  int selLength_ = 0;
  bool readOnly_ = false;
  bool multiLine_ = false;
  bool styled_ = false;
  bool scrollbarVertical_ = false;
  bool scrollbarHorizontal_ = false;
  QString backColor_;
};

class TextField : public TextEdit {
 public:
  static constexpr ControlKind Kind = ControlKind::TextField;
  explicit TextField(const QString& name) : TextEdit(name, Kind) {}
};

class TextArea : public TextEdit {
 public:
  static constexpr ControlKind Kind = ControlKind::TextArea;
  explicit TextArea(const QString& name) : TextEdit(name, Kind) { setMultiLine(true); }
};

}  // namespace platform
