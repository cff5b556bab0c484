#pragma once
// A ControlView is the widget of one control of the model, kept in step both ways: the
// control's observers bring every change made by code to the widget at once, and what
// the user does to the widget goes to the control's user entry points (userClick,
// userChoose, userKeyDown and userEditText, userPress, userLeave, ...), which raise the
// handlers the program expects. There is one view class per ControlKind and none per
// control: a control's name never appears here.
//
// Geometry is the control table's, in window coordinates. A view sits in a host widget
// (the window's surface, or a page of a tab panel or page panel) whose origin in window
// coordinates it is told, so the layout of one 800 x 900 window comes out the same
// whatever the toolkit's tab bars measure.

#include <QFont>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QWidget>
#include <memory>

#include "platform/controls/control.h"
#include "platform/qt/guard.h"

namespace platform::qt {

// Where a view's widget lives: its parent widget and that widget's top-left corner in
// window coordinates.
struct Host {
  QWidget* widget = nullptr;
  QPoint origin;
};

class ControlView : public QObject {
 public:
  ControlView(Control& control, const Guard& guard);
  ~ControlView() override;

  Control& control() const { return control_; }
  // Null for a control that shows nothing (a Timer).
  QWidget* widget() const { return widget_; }

  // Builds the widget in its host and shows the control's present state.
  void build(const Host& host, const QFont& baseFont);

  // A panel's page, for the controls that sit on it; the page's host otherwise.
  virtual Host pageHost(int page) const;

  // Whether a press of the left button on the widget is the control's MouseDown. Views
  // whose controls raise MouseDown on their own way (menus, tabs) or do their work on a
  // click (buttons, fields, lists) leave the press to the widget.
  virtual bool forwardsPresses() const { return false; }
  // Whether the pointer leaving the widget now is the control's MouseExit.
  virtual bool leaveCounts() const { return true; }

 protected:
  virtual QWidget* createWidget(QWidget* parent) = 0;
  // Brings one property of the control to the widget; the base handles geometry,
  // Visible, Enabled and the look of the text.
  virtual void refresh(const QString& property);
  void refreshAll();

  // Runs a user's action on the model through the guard.
  void run(const std::function<void()>& action) const;
  // True while the view itself writes to its widget, so widget signals of that write
  // are not taken for the user's.
  bool applying() const { return applying_ > 0; }
  class Applying {
   public:
    explicit Applying(ControlView& view) : view_(view) { ++view_.applying_; }
    ~Applying() { --view_.applying_; }
    Applying(const Applying&) = delete;
    Applying& operator=(const Applying&) = delete;

   private:
    ControlView& view_;
  };

  const Host& host() const { return host_; }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void placeWidget();
  void applyFont();

  Control& control_;
  Guard guard_;
  QPointer<QWidget> widget_;
  Host host_;
  QFont baseFont_;
  int observer_ = 0;
  int applying_ = 0;
};

// The view for a control of any kind.
std::unique_ptr<ControlView> makeControlView(Control& control, const Guard& guard);

// A QLabel, QPushButton, ... caption from a model caption: "&" is a letter, not an
// access key mark, in the program's captions.
QString captionText(const QString& caption);

}  // namespace platform::qt
