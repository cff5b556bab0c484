#pragma once
// Window1 launched past the introduction, with pictures and a sound of its own so that
// blinks and claves show, and small data files whose records the tests know by heart.

#include <QStringList>

#include "platform/strings/strings.h"
#include "support/app_fixture.h"

namespace testsupport {

// Two families and the two built-in ones; each family's first row is the one a test
// lands on when it picks the family.
inline const char* const kWorkbenchConvertXml =
    "<Table>"
    "<Category><Name>Length</Name><List>"
    "<SubList convert=\"*1000\">km-&gt;m</SubList>"
    "<SubList convert=\"/1000\">m-&gt;km</SubList>"
    "</List></Category>"
    "<Category><Name>Number</Name><List>"
    "<SubList>Hex-&gt;Decimal</SubList>"
    "<SubList>Decimal(Integer)-&gt;Hex</SubList>"
    "</List></Category>"
    "<Category><Name>Temperature</Name><List>"
    "<SubList>C-&gt;K</SubList>"
    "</List></Category>"
    "</Table>";

// Record 1's value has leading blanks, record 3's runs over two lines.
inline const char* const kWorkbenchPhysicalXml =
    "<?xml version=\"1.0\"?>\n"
    "<PhysicalData>\n"
    "<Category><Key>electron mass</Key><Value>Mass of the electron: 9.109e-31 "
    "kg</Value></Category>\n"
    "<Category><Key>moon radius mean</Key><Value>   Mean radius of the Moon: 1738000 "
    "m</Value></Category>\n"
    "<Category><Key>moon mass</Key><Value>Mass of the Moon: 7.3458e22 kg</Value></Category>\n"
    "<Category><Key>earth radius</Key><Value>Radius of the Earth:\n6371000 m</Value></Category>\n"
    "</PhysicalData>\n";

inline const char* const kWorkbenchAstroXml =
    "<?xml version=\"1.0\"?>\n"
    "<AstroData>\n"
    "<Category><Key>sirius star</Key><Value>Sirius: magnitude -1.46</Value></Category>\n"
    "<Category><Key>moon radius</Key><Value>Moon radius 1737.4 km</Value></Category>\n"
    "</AstroData>\n";

class WorkbenchFixture : public AppFixture {
 protected:
  // The data files are laid first unless a test wants them missing.
  enum class Data { Present, Missing };

  app::Window1& start(Data data = Data::Present) {
    writeFile("Preferences/VXKInstr", "do not show");
    for (const char* name : {"target.gif", "target2.gif", "claves.wav"}) {
      writeFile(QStringLiteral("Resources/") + name, "x");
    }
    platform::SpecialFolder::setResources(home.path() + "/Resources");
    if (data == Data::Present) {
      writeFile("ApplicationData/VXKSupport/convert.txt", kWorkbenchConvertXml);
      writeFile("ApplicationData/VXKSupport/physicaldata.txt", kWorkbenchPhysicalXml);
      writeFile("ApplicationData/VXKSupport/AstrDataXML.txt", kWorkbenchAstroXml);
    }
    app::Window1& w = launch();
    newLogLines();
    return w;
  }

  void drop(const QString& text) { window->userDrop(platform::DragItem{text}); }
  void dropWithoutText() { window->userDrop(platform::DragItem{}); }
  // A user's choice on the selector's menu, by entry text.
  void choose(const QString& entry) {
    const int row = static_cast<int>(window->BevelButton1->Rows().indexOf(entry));
    ASSERT_GE(row, 0) << entry.toStdString();
    window->BevelButton1->userChoose(row);
  }
  // The conversion family, as the settings' popup menu picks it.
  void family(const QString& name) {
    for (int i = 0; i < window->PopupMenu2->ListCount(); ++i) {
      if (window->PopupMenu2->List(i) == name) {
        window->PopupMenu2->setListIndex(i);
        return;
      }
    }
    FAIL() << "no family " << name.toStdString();
  }

  bool blinking() const {
    return window->ImageWell1->Image() == "target2" && window->Timer1->Mode() != 0;
  }
  QStringList events() { return desktop.takeEvents(); }
  // Log lines as a multi-line append splits them.
  static QStringList linesOf(const QString& text) {
    QString t = text;
    if (t.endsWith('\n')) t.chop(1);
    return t.split('\n');
  }
};

}  // namespace testsupport
