#pragma once
// The view classes, one per kind of control (see control_view.h). Each knows its Qt
// widget and the properties of its control class; none knows any particular control.

#include <QPointer>
#include <vector>

#include "platform/controls/controls.h"
#include "platform/qt/control_view.h"

class QAbstractButton;
class QComboBox;
class QFrame;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QMenu;
class QPlainTextEdit;
class QPushButton;
class QTabBar;
class QTableWidget;
class QToolButton;

namespace platform::qt {

// A Timer shows nothing; its periods run on the desktop.
class NoView : public ControlView {
 public:
  using ControlView::ControlView;

 protected:
  QWidget* createWidget(QWidget*) override { return nullptr; }
};

class PushButtonView : public ControlView {
 public:
  using ControlView::ControlView;

 protected:
  QWidget* createWidget(QWidget* parent) override;
  void refresh(const QString& property) override;

 private:
  PushButton& button() const { return static_cast<PushButton&>(control()); }
  QPushButton* button_ = nullptr;
};

// A button whose click opens its menu; choosing an entry is the user's choice.
class BevelButtonView : public ControlView {
 public:
  using ControlView::ControlView;

 protected:
  QWidget* createWidget(QWidget* parent) override;
  void refresh(const QString& property) override;

 private:
  BevelButton& button() const { return static_cast<BevelButton&>(control()); }
  void rebuildMenu();
  QToolButton* button_ = nullptr;
  QMenu* menu_ = nullptr;
};

// Radio buttons and check boxes. The model turns partners off, so Qt's own exclusion
// is off and the widget always shows the model's value after a click.
class ToggleView : public ControlView {
 public:
  using ControlView::ControlView;

 protected:
  QWidget* createWidget(QWidget* parent) override;
  void refresh(const QString& property) override;

 private:
  bool value() const;
  QAbstractButton* button_ = nullptr;
};

class LabelView : public ControlView {
 public:
  using ControlView::ControlView;
  bool forwardsPresses() const override { return true; }

 protected:
  QWidget* createWidget(QWidget* parent) override;
  void refresh(const QString& property) override;

 private:
  StaticText& label() const { return static_cast<StaticText&>(control()); }
  QLabel* label_ = nullptr;
};

// What the editable fields share: KeyDown before the widget takes a key, and a user's
// edit reported back as the text it left.
class TextEditView : public ControlView {
 public:
  using ControlView::ControlView;

  // The key as KeyDown receives it ("a", "\r", Chr(8) for backspace, Chr(28) to
  // Chr(31) for the arrows); empty for a key that is no KeyDown (shortcuts, shift).
  static QString keyDownText(const QKeyEvent& event);

 protected:
  TextEdit& edit() const { return static_cast<TextEdit&>(control()); }
  // Installs the key filter on the widget that receives the keys.
  void watchKeys(QWidget* keyTarget);
  void userEdited(const QString& shown, int cursor);
  // The text the user's edit is about to store in the model, which the widget shows.
  virtual void aboutToStore(const QString&) {}
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* keyTarget_ = nullptr;
};

class LineEditView : public TextEditView {
 public:
  using TextEditView::TextEditView;

 protected:
  QWidget* createWidget(QWidget* parent) override;
  void refresh(const QString& property) override;

 private:
  void showSelection();
  QLineEdit* line_ = nullptr;
};

// A multi-line field. Text that only grew at its end (the log) is appended to the
// widget, so each append costs the same however long the text has become.
class TextAreaView : public TextEditView {
 public:
  using TextEditView::TextEditView;

 protected:
  QWidget* createWidget(QWidget* parent) override;
  void refresh(const QString& property) override;

 private:
  void aboutToStore(const QString& text) override;
  void showText();
  void showSelection();
  QPlainTextEdit* area_ = nullptr;
  QString shownModelText_;  // the model text that the widget shows
  bool shownHasCR_ = false;
};

class PopupMenuView : public ControlView {
 public:
  using ControlView::ControlView;
  // Opening the menu takes the pointer off the control; that is no MouseExit.
  bool leaveCounts() const override;

 protected:
  QWidget* createWidget(QWidget* parent) override;
  void refresh(const QString& property) override;

 private:
  PopupMenu& menu() const { return static_cast<PopupMenu&>(control()); }
  void showRows();
  QComboBox* combo_ = nullptr;
};

// A list box. The widget never changes its own selection or check boxes: a click is
// the model's userClickCell or userCheck, and the widget shows what the model then holds.
class ListboxView : public ControlView {
 public:
  using ControlView::ControlView;

 protected:
  QWidget* createWidget(QWidget* parent) override;
  void refresh(const QString& property) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  Listbox& list() const { return static_cast<Listbox&>(control()); }
  void showRows();
  void showSelection();
  void showColumnWidths();
  QTableWidget* table_ = nullptr;
  std::vector<QStringList> shownCells_;
  std::vector<QList<bool>> shownChecks_;
};

// A panel's pages: plain widgets, one shown at a time, that host the controls on them.
class PanelView : public ControlView {
 public:
  using ControlView::ControlView;
  Host pageHost(int page) const override;

 protected:
  PanelControl& panel() const { return static_cast<PanelControl&>(control()); }
  QWidget* createWidget(QWidget* parent) override;
  void refresh(const QString& property) override;
  // Where the pages begin below the top of the panel (a tab bar's height).
  virtual int pagesTop() const { return 0; }
  virtual void layoutParts();
  QWidget* container() const { return container_; }
  void ensurePages(int count) const;

 private:
  QWidget* container_ = nullptr;
  mutable std::vector<QPointer<QWidget>> pages_;
};

class TabPanelView : public PanelView {
 public:
  using PanelView::PanelView;

 protected:
  QWidget* createWidget(QWidget* parent) override;
  void refresh(const QString& property) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  int pagesTop() const override;
  void layoutParts() override;

 private:
  TabPanel& tabs() const { return static_cast<TabPanel&>(control()); }
  void showTabs();
  QTabBar* bar_ = nullptr;
  QFrame* pane_ = nullptr;
};

class PagePanelView : public PanelView {
 public:
  using PanelView::PanelView;
};

class GroupBoxView : public ControlView {
 public:
  using ControlView::ControlView;
  bool forwardsPresses() const override { return true; }

 protected:
  QWidget* createWidget(QWidget* parent) override;
  void refresh(const QString& property) override;

 private:
  QWidget* box_ = nullptr;
};

class SeparatorView : public ControlView {
 public:
  using ControlView::ControlView;

 protected:
  QWidget* createWidget(QWidget* parent) override;
  void refresh(const QString& property) override;

 private:
  QFrame* frame_ = nullptr;
};

class ImageView : public ControlView {
 public:
  using ControlView::ControlView;
  bool forwardsPresses() const override { return true; }

 protected:
  QWidget* createWidget(QWidget* parent) override;
  void refresh(const QString& property) override;

 private:
  ImageWell& well() const { return static_cast<ImageWell&>(control()); }
  QLabel* image_ = nullptr;
};

}  // namespace platform::qt
