#pragma once
// One QApplication for the whole test program, on the offscreen platform, and helpers
// to act on widgets the way a user's input arrives.

#include <QApplication>
#include <QCoreApplication>
#include <QWidget>

namespace qttest {

// Lets queued events (deferred drops, posted layout) run.
inline void settle() {
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

// Where a widget's point lies in its top-level window.
inline QPoint inWindow(const QWidget* widget, QPoint local) {
  return widget->mapTo(widget->window(), local);
}

// A text dragged from another application and dropped at `at` of the top-level window:
// enter, move, then drop, as the window system delivers them. True when the window
// accepted the drop.
bool dropText(QWidget* window, QPoint at, const QString& text);

}  // namespace qttest
