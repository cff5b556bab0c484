#pragma once
// WindowView renders one Window of the control model as a real top-level window: one
// view per control, in creation order, each at its table geometry on the window's
// surface or on its panel's page. The surface holds the whole layout; the window, sized
// only by the model's Width and Height, shows its top-left part, so a small window is
// a corner of the large one and no control ever moves.
//
// A window the user cannot resize floats above other applications as a tool palette
// (the desk accessory); a resizable one is an ordinary document window. A text dropped
// anywhere on the window that no control takes for itself becomes Window::userDrop.

#include <QWidget>
#include <memory>
#include <unordered_map>
#include <vector>

#include "platform/controls/window.h"
#include "platform/qt/control_view.h"
#include "platform/qt/guard.h"

namespace platform::qt {

class WindowView : public QWidget {
 public:
  WindowView(Window& window, const Guard& guard);
  ~WindowView() override;

  Window& window() const { return window_; }
  // The widget of the whole layout, at window coordinates.
  QWidget* surface() const { return surface_; }
  // The view of a control, by the control's name (case ignored); null for none.
  ControlView* view(const QString& name) const;
  QWidget* widgetFor(const QString& name) const;

  // The base font of the layout: the controls' geometry was drawn for text of this size.
  static QFont layoutFont();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  class Surface;
  void buildViews();
  void refresh(const QString& property);
  void fitSize();
  void run(const std::function<void()>& action) const { guard_(action); }

  Window& window_;
  Guard guard_;
  QWidget* surface_ = nullptr;  // a Surface
  QSize layoutExtent_;
  std::vector<std::unique_ptr<ControlView>> views_;
  std::unordered_map<const Control*, ControlView*> byControl_;
  int observer_ = 0;
  int sizing_ = 0;
};

}  // namespace platform::qt
