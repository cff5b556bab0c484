#pragma once
// A launched program with a conversion table of the test's own, written inline.

#include <ostream>

#include "support/app_fixture.h"

// Readable failures.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}

namespace convtest {

// Small tables in the shape of the shipped one, values invented where no rule needs them.
inline QString table(const QString& categories) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Conversions>" + categories +
         "</Conversions>";
}
inline QString category(const QString& name, const QString& rows) {
  return "<Category><Name>" + name + "</Name><List>" + rows + "</List></Category>";
}
inline QString row(const QString& name, const QString& value) {
  return "<SubList convert=\"" + value + "\">" + name + "</SubList>";
}

inline QString numberCategory() {
  return category("Number", row("Decimal(Integer)-&gt;Hex", "") + row("Hex-&gt;Decimal", "") +
                                row("Decimal-&gt;Oct", "") + row("Oct-&gt;Decimal", "") +
                                row("Decimal-&gt;Binary", "") + row("Binary-&gt;Decimal", ""));
}
inline QString temperatureCategory() {
  return category("Temperature",
                  row("Fahrenheit(F)-&gt;C", "") + row("Celsius/Centigrade(C)-&gt;F", "") +
                      row("Kelvin(K)-&gt;C", "") + row("C-&gt;K", "") +
                      row("Rankine(R)-&gt;F", "") + row("F-&gt;R", "") + row("R-&gt;K", "") +
                      row("K-&gt;R", "") + row("F-&gt;K", "") + row("K-&gt;F", "") +
                      row("C-&gt;R", "") + row("c-&gt;k", "") + row("a-&gt;b-&gt;c", ""));
}

class ConvertFixture : public testsupport::AppFixture {
 protected:
  app::Window1& start(const QString& convertTxt) {
    writeFile("ApplicationData/VXKSupport/convert.txt", convertTxt);
    return startWithoutTable();
  }
  app::Window1& startWithoutTable() {
    writeFile("Preferences/VXKInstr", "do not show");
    return launch();
  }

  // Selects a category and a row by their texts, as the Convert tab's lists do.
  void select(const QString& family, const QString& conversion) {
    selectRow(*window->Listbox1, family, [this](int r) { window->Listbox1->userChoose(r); });
    selectRow(*window->Listbox2, conversion, [this](int r) { window->Listbox2->userChoose(r); });
  }

  QStringList rowsOf(const platform::ListControl& list) const {
    QStringList out;
    for (int r = 0; r < list.ListCount(); ++r) out << list.List(r);
    return out;
  }

 private:
  template <class Click>
  void selectRow(const platform::ListControl& list, const QString& text, Click click) {
    for (int r = 0; r < list.ListCount(); ++r) {
      if (list.List(r) == text) {
        click(r);
        return;
      }
    }
    ADD_FAILURE() << "no row " << text.toStdString() << " in " << list.Name().toStdString();
  }
};

}  // namespace convtest
