#pragma once
// A typed handle on a control of the window it is declared in, bound by name once the
// window has built its controls from the table. Declaring a handle whose name is not in
// the table fails when the window is built, not on some later click.

#include <QString>
#include <vector>

#include "platform/controls/window.h"

namespace app {

class ControlRefBase {
 public:
  virtual ~ControlRefBase() = default;
  virtual void bind(const platform::Window& window) = 0;
};

// Handles register themselves with their owner on construction.
class ControlRefs {
 public:
  void add(ControlRefBase* ref) { refs_.push_back(ref); }
  void bindAll(const platform::Window& window) {
    for (ControlRefBase* ref : refs_) ref->bind(window);
  }

 private:
  std::vector<ControlRefBase*> refs_;
};

template <class T>
class ControlRef final : public ControlRefBase {
 public:
  ControlRef(ControlRefs& owner, const char* name) : name_(QString::fromLatin1(name)) {
    owner.add(this);
  }
  void bind(const platform::Window& window) override { control_ = &window.control<T>(name_); }

  T* operator->() const { return control_; }
  T& operator*() const { return *control_; }
  T* get() const { return control_; }

 private:
  QString name_;
  T* control_ = nullptr;
};

}  // namespace app

// Declares a member handle named after the control: CONTROL(PushButton, PushButton40).
#define CONTROL(Type, Name) ::app::ControlRef<::platform::Type> Name{controlRefs_, #Name}
