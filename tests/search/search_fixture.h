#pragma once
// A launched program with small data files of the test's own making. A record is a
// key and a value; the files are written before the launch, since the word lists of
// the search tab are built only then.

#include <QString>
#include <utility>
#include <vector>

#include "support/app_fixture.h"

namespace searchtest {

using Records = std::vector<std::pair<QString, QString>>;

// A data file as the searches read it: a root element holding Category records.
inline QString dataXml(const Records& records) {
  QString xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Data>\n";
  for (const auto& [key, value] : records) {
    xml += "  <Category><Key>" + key + "</Key><Value>" + value + "</Value></Category>\n";
  }
  return xml + "</Data>\n";
}

inline const QString kPhysicalPath = "ApplicationData/VXKSupport/physicaldata.txt";
inline const QString kAstroPath = "ApplicationData/VXKSupport/AstrDataXML.txt";

class SearchFixture : public testsupport::AppFixture {
 protected:
  // Straight to Window1: the introduction has been seen.
  app::Window1& start(const Records& physical, const Records& astro) {
    writePhysical(physical);
    writeAstro(astro);
    return startWithFilesAsTheyAre();
  }
  app::Window1& startWithFilesAsTheyAre() {
    writeFile("Preferences/VXKInstr", "do not show");
    return launch();
  }
  void writePhysical(const Records& records) { writeFile(kPhysicalPath, dataXml(records)); }
  void writeAstro(const Records& records) { writeFile(kAstroPath, dataXml(records)); }

  // A claves sound in a resources folder of the test's own, so its playing shows.
  void useClaves() {
    writeFile("Resources/claves.wav", "RIFF");
    platform::SpecialFolder::setResources(home.path() + "/Resources");
  }

  // The selector as a choice from its menu leaves it: caption and menu value.
  void select(const QString& caption, int menuValue) {
    window->BevelButton1->setCaption(caption);
    window->BevelButton1->setMenuValue(menuValue);
  }

  static QStringList listRows(const platform::ListControl& list) {
    QStringList out;
    for (int i = 0; i < list.ListCount(); ++i) out << list.List(i);
    return out;
  }
};

}  // namespace searchtest
