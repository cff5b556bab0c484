// The two shipped data files through the program's searches and search tabs: every
// record readable, and the searches the help texts tell the user to make finding what
// the texts promise.

#include <QFile>
#include <QRegularExpression>
#include <algorithm>

#include "support/app_fixture.h"
#include "support/printers.h"

namespace {

enum class File { Physical, Astro };

class ShippedData : public testsupport::AppFixture {
 protected:
  void SetUp() override {
    AppFixture::SetUp();
    installSupportFiles();
    launch();
  }

  // The value of each hit of a search, in the order of the file; a smart search gets
  // the phrase without its noise words, as the input paths give it.
  QStringList search(File file, const QString& phrase) {
    window->EditField1->setText(QString());
    const QString query = window->RadioButton5->Value() ? window->SmartParse(phrase) : phrase;
    file == File::Physical ? window->physical(query) : window->astronomical(query);
    QStringList values = window->EditField1->Text().split(QRegularExpression("\t\\(\\d-\\d+\\)"));
    values.removeLast();  // what follows the last tag
    for (QString& value : values) value = value.mid(value.indexOf(": ") + 2);
    return values;
  }
};

TEST_F(ShippedData, EveryRecordReadsAndTheFilesAreAscii) {
  window->RadioButton6->setValue(true);  // literal: every record is listed
  for (const auto& [file, name] : {std::pair{File::Physical, "physicaldata.txt"},
                                   std::pair{File::Astro, "AstrDataXML.txt"}}) {
    SCOPED_TRACE(name);
    QFile raw(testsupport::sourceDir() + "/support/VXKSupport/" + name);
    ASSERT_TRUE(raw.open(QIODevice::ReadOnly));
    for (const char c : raw.readAll()) ASSERT_TRUE(c == '\n' || (c >= 32 && c < 127));
    const QStringList all = search(file, "anything");
    EXPECT_GT(all.size(), 300);
    for (const QString& value : all) EXPECT_FALSE(value.trimmed().isEmpty());
  }
  int constellations = 0;
  for (const QString& value : search(File::Astro, "x")) {
    if (value.contains("), constellation of the ")) ++constellations;
  }
  EXPECT_EQ(constellations, 88);
}

struct Promise {
  const char* name;
  File file;
  const char* query;
  const char* someHitHolds;   // a fact the help promises this search gives
  const char* everyHitHolds;  // where the help promises only that kind of record
  int atLeast;
  bool listFirst = false;  // the record listing the others is the first hit
};

// The searches of the help texts and directions, as the user types or drops them.
const Promise kPromises[] = {
    {"'mass' finds all mass data", File::Physical, "mass", "Electron mass m[e] =", nullptr, 20},
    {"'electron' finds all data on the electron", File::Physical, "electron",
     "Classical electron radius", nullptr, 8},
    {"'electron mass' gives the mass of the electron", File::Physical, "electron mass",
     "Electron mass m[e] = 9.1093837015e-31 kg", nullptr, 1},
    {"'Element' gives every element", File::Physical, "Element",
     "Oganesson (Og), atomic number 118", nullptr, 118},
    {"an element by atomic number", File::Physical, "element 26", "Iron (Fe), atomic number 26",
     "Iron (Fe)", 1},
    {"'Isotope' gives every isotope", File::Physical, "Isotope", "half-life", "neutron", 50},
    {"Co-60 gives its half-life", File::Physical, "Co-60", "Cobalt-60 (Co-60)", "Co-60", 1},
    {"'Energy/Content' gives all energy contents", File::Physical, "Energy/Content",
     "Energy content of bituminous coal", "Energy content of", 10},
    {"basic data on the Moon", File::Physical, "moon radius", "Mean radius of the Moon", nullptr, 1},
    {"noise words go in smart search", File::Physical, "the radius of the moon",
     "Mean radius of the Moon", nullptr, 1},
    {"SUN gives extensive data", File::Astro, "SUN", "Effective temperature of the Sun", nullptr,
     10},
    {"MOON gives extensive data", File::Astro, "MOON", "Length of the Moon's month", nullptr, 8},
    {"ASTEROID gives the names of asteroids", File::Astro, "ASTEROID", "Asteroids in this file:",
     "asteroid", 20, true},
    {"COMETS gives the list with instructions", File::Astro, "COMETS",
     "Search for a comet by its name", "Famous comets in this file", 1},
    {"CONSTELLATION FAMLIY, as the help spells it, gives the families", File::Astro,
     "CONSTELLATION FAMLIY", "eight families", nullptr, 1, true},
    {"then a family by name gives its members", File::Astro, "Heavenly Waters",
     "The Heavenly Waters family of constellations (9): Delphinus", nullptr, 1},
    {"GALAXY gives the types of galaxies", File::Astro, "GALAXY", "Types of galaxies in this file",
     "galax", 20, true},
    {"then a type gives the galaxies of that type", File::Astro, "elliptical",
     "Elliptical galaxies in this file", nullptr, 2},
    {"NEPTUNE MOON gives the moons of Neptune", File::Astro, "NEPTUNE MOON",
     "Moons of Neptune in this file", "Neptune", 2, true},
    {"STAR lists stars with magnitude and distance", File::Astro, "STAR",
     "apparent visual magnitude", "light-years", 100},
    {"'Star Sirius' from the search tab", File::Astro, "Star Sirius", "Sirius (alpha CMa", nullptr,
     1},
    {"a planet by name", File::Astro, "Mars", "Mass of Mars", nullptr, 5},
};

TEST_F(ShippedData, SearchesOfTheHelpTextsFindWhatTheyPromise) {
  for (const Promise& p : kPromises) {
    SCOPED_TRACE(p.name);
    const QStringList hits = search(p.file, p.query);
    EXPECT_GE(hits.size(), p.atLeast);
    const QStringList holding = hits.filter(p.someHitHolds, Qt::CaseInsensitive);
    EXPECT_FALSE(holding.isEmpty()) << "no hit holds: " << p.someHitHolds;
    if (p.listFirst && !hits.isEmpty()) {
      EXPECT_TRUE(hits.first().contains(p.someHitHolds)) << hits.first().toStdString();
    }
    if (p.everyHitHolds) {
      EXPECT_EQ(hits.filter(p.everyHitHolds, Qt::CaseInsensitive), hits);
    }
  }
}

TEST_F(ShippedData, EveryElementIsFoundByItsAtomicNumber) {
  // "Element" also finds the elementary charge, whose name holds the word.
  const QStringList elements = search(File::Physical, "Element");
  EXPECT_EQ(elements.filter(", atomic number ").size(), 118);
  EXPECT_LE(elements.size(), 120);
  for (int z = 1; z <= 118; ++z) {
    SCOPED_TRACE(z);
    const QStringList hits = search(File::Physical, "element " + QString::number(z));
    EXPECT_FALSE(hits.filter("atomic number " + QString::number(z) + ":").isEmpty());
  }
}

// The search tabs list the first words of the keys: a short list of subjects, each
// offering the words that can follow it.
TEST_F(ShippedData, PrimaryWordsReadAsSubjectsToBrowse) {
  struct Case {
    const char* name;
    platform::Listbox* list;
    QStringList mustList;
  };
  const Case cases[] = {
      {"physical subjects", window->Listbox4.get(),
       {"constant", "electron", "element", "energy/content", "isotope", "proton", "neutron", "sun",
        "earth", "moon"}},
      {"astronomical subjects", window->Listbox7.get(),
       {"asteroid", "comet", "comets", "constellation", "galaxy", "star", "planet", "sun", "earth",
        "moon", "mercury", "venus", "mars", "jupiter", "saturn", "uranus", "neptune", "pluto"}},
  };
  const QRegularExpression word("^[a-z][a-z/-]*$");
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const QStringList primaries = c.list->RowsText().split('\n');
    EXPECT_LE(primaries.size(), 40) << "too many primary words to browse";
    for (const QString& primary : c.mustList) {
      EXPECT_TRUE(primaries.contains(primary)) << primary.toStdString();
    }
    newLogLines();
    for (int row = 0; row < primaries.size(); ++row) {
      EXPECT_TRUE(word.match(primaries[row]).hasMatch()) << primaries[row].toStdString();
      c.list->userChoose(row);
    }
    EXPECT_EQ(newLogLines(), QStringList()) << "a primary word without its optional words";
  }
}

// A menu row chosen with the shift key is searched alone: for an element that is
// everything about the substance, for a star everything about the star.
TEST_F(ShippedData, MenusOfferWhatTheDirectionsDescribe) {
  struct Case {
    const char* name;
    bool astro;
    const char* primary;
    const char* rowStart;
    QStringList shiftFinds;  // the first is found without shift too
  };
  const Case cases[] = {
      {"'element' then 'iron'", false, "element", "iron ",
       {"Iron (Fe), atomic number 26", "Iron-56 (Fe-56)", "Specific heat capacity of iron"}},
      {"'Star' then 'Sirius'", true, "star", "sirius ", {"Sirius (alpha CMa"}},
      {"'electron' then 'mass m[e]'", false, "electron", "mass m[e]", {"Electron mass m[e] ="}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    window->BevelButton1->userChoose(c.astro ? 4 : 3);
    platform::Listbox& primaries = c.astro ? *window->Listbox7 : *window->Listbox4;
    platform::PopupMenu& menu = c.astro ? *window->PopupMenu3 : *window->PopupMenu1;
    for (const bool shift : {false, true}) {
      primaries.userChoose(static_cast<int>(primaries.RowsText().split('\n').indexOf(c.primary)));
      const QStringList rows = menu.RowsText().split('\n');
      const auto row = std::find_if(rows.begin(), rows.end(),
                                    [&](const QString& r) { return r.startsWith(c.rowStart); });
      ASSERT_NE(row, rows.end());
      desktop.setShiftKey(shift);
      menu.userChoose(static_cast<int>(row - rows.begin()));
      desktop.setShiftKey(false);
      // Without shift the field reads the primary word and the row, for the button.
      if (!shift) (c.astro ? window->PushButton49 : window->PushButton47)->Push();
      const QString found = (c.astro ? window->Listbox6 : window->Listbox5)->RowsText();
      for (const QString& fact : shift ? c.shiftFinds : c.shiftFinds.mid(0, 1)) {
        EXPECT_TRUE(found.contains(fact)) << "shift " << shift << ", no hit: " << fact.toStdString();
      }
    }
  }
}

}  // namespace
