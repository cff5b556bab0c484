#include "platform/controls/panels.h"

#include "platform/exceptions.h"

namespace platform {

void PanelControl::setValue(int value) {
  if (value < 0 || value >= std::max(1, PanelCount())) {
    throw OutOfBoundsException(Name() + QStringLiteral(".Value ") + QString::number(value) +
                               QStringLiteral(" is outside its ") + QString::number(PanelCount()) +
                               QStringLiteral(" pages"));
  }
  if (value_ == value) return;
  value_ = value;
  changed(QStringLiteral("Value"));
  raise(Change);
}

const PropertyTable& PanelControl::propertyTable() {
  static const PropertyTable table = [] {
    PropertyTable t = Control::propertyTable();
    PropertyRegistrar<PanelControl>(t)
        .readWrite("Value", &PanelControl::Value, &PanelControl::setValue)
        .readOnly("PanelCount", &PanelControl::PanelCount);
    return t;
  }();
  return table;
}

void TabPanel::setTabDefinition(const QString& definition) {
  const QStringList tabs = linesFromVariant(definition, QStringLiteral("Tabs"));
  if (tabs == tabs_) return;
  tabs_ = tabs;
  changed(QStringLiteral("Tabs"));
  if (Value() >= std::max(1, PanelCount())) setValue(std::max(0, PanelCount() - 1));
}

void TabPanel::setSmallTabs(bool on) {
  if (smallTabs_ == on) return;
  smallTabs_ = on;
  changed(QStringLiteral("SmallTabs"));
}

int TabPanel::tabPosition(int tab) const {
  // About what a toolkit draws: 7 pixels a character and 10 on each side of a caption.
  constexpr int kPerChar = 7, kPadding = 20;
  int left = 1;
  for (int i = 0; i < tab && i < tabs_.size(); ++i) left += kPadding + kPerChar * static_cast<int>(tabs_[i].size());
  const int own = kPadding + kPerChar * static_cast<int>(tabs_.value(tab).size());
  return left + own / 2;
}

void TabPanel::userChoose(int tab, int x, int y) {
  if (!Enabled()) return;
  if (tab < 0 || tab >= std::max(1, PanelCount())) {
    throw OutOfBoundsException(Name() + QStringLiteral(" has no tab ") + QString::number(tab));
  }
  if (!eventsBlocked() && MouseDown && MouseDown(x, y)) {
    if (MouseUp) MouseUp(x, y);
    return;
  }
  setValue(tab);
  if (!eventsBlocked() && MouseUp) MouseUp(x, y);
}

const PropertyTable& TabPanel::propertyTable() {
  static const PropertyTable table = [] {
    PropertyTable t = PanelControl::propertyTable();
    PropertyRegistrar<TabPanel>(t)
        .readWrite("SmallTabs", &TabPanel::SmallTabs, &TabPanel::setSmallTabs)
        .indexed(
            "Tabs", 0, [](const TabPanel& p, const PropertyTable::Args&) { return QVariant(p.Tabs().join(u'\n')); },
            [](TabPanel& p, const PropertyTable::Args&, const QVariant& v) {
              p.setTabDefinition(linesFromVariant(v, QStringLiteral("Tabs")).join(u'\n'));
            });
    return t;
  }();
  return table;
}

void PagePanel::setPanelCount(int count) {
  if (count < 1) {
    throw OutOfBoundsException(Name() + QStringLiteral(".PanelCount must be at least 1, not ") +
                               QString::number(count));
  }
  if (count == panelCount_) return;
  panelCount_ = count;
  changed(QStringLiteral("PanelCount"));
  if (Value() >= count) setValue(count - 1);
}

const PropertyTable& PagePanel::propertyTable() {
  static const PropertyTable table = [] {
    PropertyTable t = PanelControl::propertyTable();
    PropertyRegistrar<PagePanel>(t).readWrite("PanelCount", &PagePanel::PanelCount, &PagePanel::setPanelCount);
    return t;
  }();
  return table;
}

}  // namespace platform
