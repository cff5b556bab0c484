#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include "platform/qt/display_text.h"
#include "platform/qt/views.h"

namespace platform::qt {

namespace {

Qt::Alignment horizontal(Alignment alignment) {
  switch (alignment) {
    case Alignment::Center:
      return Qt::AlignHCenter;
    case Alignment::Right:
      return Qt::AlignRight;
    case Alignment::Default:
    case Alignment::Left:
      break;
  }
  return Qt::AlignLeft;
}

void setBackColor(QWidget* widget, const QString& color) {
  QPalette palette = widget->palette();
  const QColor back(color);
  palette.setColor(QPalette::Base, back.isValid() ? back : QPalette().color(QPalette::Base));
  widget->setPalette(palette);
}

}  // namespace

// ---- StaticText ----------------------------------------------------------------------

QWidget* LabelView::createWidget(QWidget* parent) {
  label_ = new QLabel(parent);
  label_->setTextFormat(Qt::PlainText);
  label_->setWordWrap(true);
  // A label that answers a press (a link) shows it under the pointer.
  if (control().MouseDown) label_->setCursor(Qt::PointingHandCursor);
  return label_;
}

void LabelView::refresh(const QString& property) {
  if (property == u"Text") {
    label_->setText(displayText(label().Text()));
  } else if (property == u"Alignment") {
    label_->setAlignment(horizontal(label().alignment()) | Qt::AlignTop);
  } else {
    ControlView::refresh(property);
  }
}

// ---- what the fields share -----------------------------------------------------------------

QString TextEditView::keyDownText(const QKeyEvent& event) {
  // Shortcuts belong to the menus and the widget, as they do in the framework.
  if (event.modifiers() & (Qt::ControlModifier | Qt::MetaModifier | Qt::AltModifier)) return {};
  switch (event.key()) {
    case Qt::Key_Backspace:
      return QString(QChar(8));
    case Qt::Key_Tab:
      return QString(QChar(9));
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return QStringLiteral("\r");
    case Qt::Key_Escape:
      return QString(QChar(27));
    case Qt::Key_Left:
      return QString(QChar(28));
    case Qt::Key_Right:
      return QString(QChar(29));
    case Qt::Key_Up:
      return QString(QChar(30));
    case Qt::Key_Down:
      return QString(QChar(31));
    case Qt::Key_Delete:
      return QString(QChar(127));
    case Qt::Key_Home:
      return QString(QChar(1));
    case Qt::Key_End:
      return QString(QChar(4));
    case Qt::Key_PageUp:
      return QString(QChar(11));
    case Qt::Key_PageDown:
      return QString(QChar(12));
    default:
      break;
  }
  const QString text = event.text();
  if (text.isEmpty() || text.front().unicode() < 0x20) return {};
  return text;
}

void TextEditView::watchKeys(QWidget* keyTarget) {
  keyTarget_ = keyTarget;
  keyTarget_->installEventFilter(this);
}

bool TextEditView::eventFilter(QObject* watched, QEvent* event) {
  if (watched == keyTarget_ && event->type() == QEvent::KeyPress) {
    const QString key = keyDownText(*static_cast<QKeyEvent*>(event));
    if (!key.isEmpty()) {
      bool swallowed = false;
      run([&] { swallowed = edit().userKeyDown(key); });
      if (swallowed) return true;
    }
  }
  return ControlView::eventFilter(watched, event);
}

void TextEditView::userEdited(const QString& shown, int cursor) {
  if (applying()) return;
  const ModelEdit change = applyDisplayEdit(edit().Text(), shown, cursor);
  aboutToStore(change.text);
  run([&] { edit().userEditText(change.text, change.cursor); });
}

// ---- TextField -------------------------------------------------------------------------

QWidget* LineEditView::createWidget(QWidget* parent) {
  line_ = new QLineEdit(parent);
  watchKeys(line_);
  connect(line_, &QLineEdit::textEdited, this, [this](const QString& text) {
    userEdited(text, line_->cursorPosition());
    // A handler may have changed the text again, or a disabled field refused the edit.
    refresh(QStringLiteral("Text"));
  });
  return line_;
}

void LineEditView::refresh(const QString& property) {
  if (property == u"Text") {
    const QString shown = displayText(edit().Text());
    if (line_->text() != shown) {
      Applying applying(*this);
      line_->setText(shown);
      showSelection();
    }
  } else if (property == u"SelStart" || property == u"SelLength") {
    showSelection();
  } else if (property == u"ReadOnly") {
    line_->setReadOnly(edit().ReadOnly());
  } else if (property == u"Alignment") {
    line_->setAlignment(horizontal(edit().alignment()) | Qt::AlignVCenter);
  } else if (property == u"BackColor") {
    setBackColor(line_, edit().BackColor());
  } else {
    ControlView::refresh(property);
  }
}

void LineEditView::showSelection() {
  const std::vector<int> map = displayToModel(edit().Text());
  auto shownIndex = [&](int modelIndex) {
    return static_cast<int>(std::lower_bound(map.begin(), map.end(), modelIndex) - map.begin());
  };
  const int start = shownIndex(edit().SelStart());
  const int end = shownIndex(edit().SelStart() + edit().SelLength());
  Applying applying(*this);
  if (end > start) {
    line_->setSelection(start, end - start);
  } else {
    line_->setCursorPosition(start);
  }
}

// ---- TextArea --------------------------------------------------------------------------

QWidget* TextAreaView::createWidget(QWidget* parent) {
  area_ = new QPlainTextEdit(parent);
  area_->setTabChangesFocus(false);
  watchKeys(area_);
  connect(area_, &QPlainTextEdit::textChanged, this, [this] {
    if (applying()) return;
    userEdited(area_->toPlainText(), area_->textCursor().position());
    refresh(QStringLiteral("Text"));
  });
  return area_;
}

void TextAreaView::refresh(const QString& property) {
  if (property == u"Text") {
    showText();
  } else if (property == u"SelStart" || property == u"SelLength") {
    showSelection();
  } else if (property == u"ReadOnly") {
    area_->setReadOnly(edit().ReadOnly());
  } else if (property == u"Alignment") {
    QTextOption option = area_->document()->defaultTextOption();
    option.setAlignment(horizontal(edit().alignment()));
    area_->document()->setDefaultTextOption(option);
  } else if (property == u"BackColor") {
    setBackColor(area_, edit().BackColor());
  } else if (property == u"ScrollbarVertical") {
    area_->setVerticalScrollBarPolicy(edit().ScrollbarVertical() ? Qt::ScrollBarAsNeeded
                                                                 : Qt::ScrollBarAlwaysOff);
  } else if (property == u"ScrollbarHorizontal") {
    // Without a horizontal scroll bar the lines wrap at the field's edge.
    const bool scrolls = edit().ScrollbarHorizontal();
    area_->setHorizontalScrollBarPolicy(scrolls ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    area_->setLineWrapMode(scrolls ? QPlainTextEdit::NoWrap : QPlainTextEdit::WidgetWidth);
  } else {
    ControlView::refresh(property);
  }
}

void TextAreaView::aboutToStore(const QString& text) {
  // The widget holds the user's edit already; only a later change by code is news.
  shownModelText_ = text;
  shownHasCR_ = text.contains(u'\r');
}

void TextAreaView::showText() {
  const QString text = edit().Text();
  if (text == shownModelText_) return;
  Applying applying(*this);
  const qsizetype old = shownModelText_.size();
  // The model says when the change was an append to what is shown, so a long log is not
  // compared with itself at every line. A CR already shown as a break, followed now by
  // LF, makes one break of the two: that is no pure append.
  const bool appendedToShown = edit().appendedFrom() == old;
  const bool append = old > 0 && text.size() > old &&
                      (appendedToShown || text.startsWith(shownModelText_)) &&
                      !(shownModelText_.endsWith(u'\r') && text.at(old) == u'\n');
  if (append) {
    const QString tail = text.mid(old);
    QScrollBar* bar = area_->verticalScrollBar();
    const bool atEnd = bar->value() == bar->maximum();
    QTextCursor end(area_->document());
    end.movePosition(QTextCursor::End);
    end.insertText(displayText(tail));
    if (atEnd) bar->setValue(bar->maximum());
    shownHasCR_ = shownHasCR_ || tail.contains(u'\r');
    // Our own copy grows by the tail. Sharing the model's text instead would make the
    // model's next append copy the whole log, since shared text is copied on write.
    shownModelText_.append(tail);
  } else {
    area_->setPlainText(displayText(text));
    shownHasCR_ = text.contains(u'\r');
    shownModelText_ = text;
  }
  showSelection();
  // A text put in whole is read from its top; the end of a growing one stays in view.
  if (!append) area_->verticalScrollBar()->setValue(0);
}

void TextAreaView::showSelection() {
  const QString& text = shownModelText_;
  const int selStart = edit().SelStart(), selEnd = selStart + edit().SelLength();
  int start = selStart, end = selEnd;
  if (shownHasCR_) {
    const std::vector<int> map = displayToModel(text);
    auto shownIndex = [&](int modelIndex) {
      return static_cast<int>(std::lower_bound(map.begin(), map.end(), modelIndex) - map.begin());
    };
    start = shownIndex(selStart);
    end = shownIndex(selEnd);
  }
  // Before the text itself is shown (while the widget is being built) the model's
  // cursor may lie beyond what the widget holds.
  const int last = area_->document()->characterCount() - 1;
  start = std::min(start, last);
  end = std::min(end, last);
  QTextCursor cursor = area_->textCursor();
  if (cursor.anchor() == start && cursor.position() == end) return;
  Applying applying(*this);
  cursor.setPosition(start);
  if (end > start) cursor.setPosition(end, QTextCursor::KeepAnchor);
  area_->setTextCursor(cursor);
}

}  // namespace platform::qt
