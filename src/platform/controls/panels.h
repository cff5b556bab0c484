#pragma once
// Containers: TabPanel, PagePanel, GroupBox, and the Separator line. A panel's Value is
// the tab or page shown, from 0; assigning it raises Change at once when it changes,
// as a user's click on a tab does. Controls name their panel and page themselves
// (Control::panel(), Control::page()), so a panel holds no list of children.

#include "platform/controls/buttons.h"
#include "platform/controls/control.h"

namespace platform {

class PanelControl : public Control {
 public:
  using Control::Control;

  std::function<void()> Change;

  // The tab or page shown: 0 to PanelCount - 1 (0 alone when there is none);
  // OutOfBoundsException for anything else.
  int Value() const { return value_; }
  void setValue(int value);
  virtual int PanelCount() const = 0;

  const PropertyTable& properties() const override { return propertyTable(); }
  static const PropertyTable& propertyTable();

 private:
  int value_ = 0;
};

class TabPanel : public PanelControl {
 public:
  static constexpr ControlKind Kind = ControlKind::TabPanel;
  explicit TabPanel(const QString& name) : PanelControl(name, Kind) {}

  // The tab captions, one per line, as the control table gives them.
  QStringList Tabs() const { return tabs_; }
  void setTabDefinition(const QString& definition);
  int PanelCount() const override { return static_cast<int>(tabs_.size()); }
  bool SmallTabs() const { return smallTabs_; }
  void setSmallTabs(bool on);

  // Where a user would press to reach tab `tab`: the middle of its caption, counted
  // from the panel's left edge. Never 0, so a press always counts as a press.
  int tabPosition(int tab) const;
  // A user's click on a tab: MouseDown at the tab's position; unless it claims the
  // press, the tab is shown (Change when it was not), and MouseUp follows.
  void userChoose(int tab) override { userChoose(tab, tabPosition(tab), 10); }
  // The same with the point of the press, as a toolkit reports it.
  void userChoose(int tab, int x, int y);

  const PropertyTable& properties() const override { return propertyTable(); }
  static const PropertyTable& propertyTable();
  void applyCreationText(const QString& text) override { setTabDefinition(text); }

 private:
  QStringList tabs_;
  bool smallTabs_ = false;
};

class PagePanel : public PanelControl {
 public:
  static constexpr ControlKind Kind = ControlKind::PagePanel;
  explicit PagePanel(const QString& name) : PanelControl(name, Kind) {}

  int PanelCount() const override { return panelCount_; }
  // At least 1; a Value beyond the new count goes back to the last page.
  void setPanelCount(int count);

  const PropertyTable& properties() const override { return propertyTable(); }
  static const PropertyTable& propertyTable();

 private:
  int panelCount_ = 1;
};

class GroupBox : public CaptionControl {
 public:
  static constexpr ControlKind Kind = ControlKind::GroupBox;
  explicit GroupBox(const QString& name) : CaptionControl(name, Kind) {}
};

class Separator : public Control {
 public:
  static constexpr ControlKind Kind = ControlKind::Separator;
  explicit Separator(const QString& name) : Control(name, Kind) {}
};

}  // namespace platform
