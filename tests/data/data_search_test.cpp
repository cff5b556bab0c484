// The two shipped data files: their shape as the search reads them, and the searches
// that the help texts tell the user to make, each finding what the text promises.

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <algorithm>

#include "support_files.h"

namespace datatest {
namespace {

const QString kPhysical = QStringLiteral("physicaldata.txt");
const QString kAstro = QStringLiteral("AstrDataXML.txt");

const std::vector<Record>& records(const QString& file) {
  static const std::vector<Record> physical = loadRecords(kPhysical);
  static const std::vector<Record> astro = loadRecords(kAstro);
  return file == kPhysical ? physical : astro;
}

TEST(DataFiles, AreWellFormedAndOfTheDocumentedShape) {
  for (const QString& file : {kPhysical, kAstro}) {
    SCOPED_TRACE(file.toStdString());
    const QByteArray bytes = readBytes(file);
    ASSERT_FALSE(bytes.isEmpty()) << "not found in " << supportDir().toStdString();
    for (const char c : bytes) ASSERT_TRUE(c == '\n' || (c >= 32 && c < 127)) << "not ASCII";
    // Only the declaration may stand before the root: a comment would be taken for it.
    platform::XmlDocument doc(QString::fromUtf8(bytes));
    ASSERT_EQ(doc.Child(0).Name(), doc.DocumentElement().Name());
    const platform::XmlNodeList categories = doc.Child(0).Xql(QStringLiteral("Category"));
    ASSERT_GT(categories.Length(), 300);
    for (int i = 0; i < categories.Length(); ++i) {
      const platform::XmlNode node = categories.Item(i);
      const platform::XmlNodeList keys = node.Xql(QStringLiteral("Key"));
      const platform::XmlNodeList values = node.Xql(QStringLiteral("Value"));
      ASSERT_EQ(keys.Length(), 1) << "record " << i;
      ASSERT_EQ(values.Length(), 1) << "record " << i;
      // Key and value are plain text directly under their element.
      ASSERT_EQ(keys.Item(0).ChildCount(), 1) << "record " << i;
      ASSERT_EQ(values.Item(0).ChildCount(), 1) << "record " << i;
      ASSERT_EQ(keys.Item(0).Child(0).Name(), QStringLiteral("#text")) << "record " << i;
      ASSERT_EQ(values.Item(0).Child(0).Name(), QStringLiteral("#text")) << "record " << i;
    }
  }
}

TEST(DataFiles, KeysAreWordsWhoseFirstHoldsNoColon) {
  const QRegularExpression words(QStringLiteral("^[^ ]+( [^ ]+)*$"));
  for (const QString& file : {kPhysical, kAstro}) {
    for (const Record& r : records(file)) {
      SCOPED_TRACE((file + QLatin1Char(' ') + r.key).toStdString());
      EXPECT_TRUE(words.match(r.key).hasMatch()) << "words separated by single blanks";
      const QString first = platform::NthField(clean(r.key), QStringLiteral(" "), 1);
      EXPECT_FALSE(first.contains(QLatin1Char(':')));
      EXPECT_FALSE(r.value.trimmed().isEmpty());
    }
  }
}

struct Promise {
  const char* name;
  const QString* file;
  const char* query;
  const char* someHitHolds;   // a fact the help promises this search gives
  const char* everyHitHolds;  // where the help promises only that kind of record
  int atLeast;
};

// The searches of the help texts and directions, as the user types or drops them.
const Promise kPromises[] = {
    {"'mass' finds all mass data", &kPhysical, "mass", "Electron mass m[e] =", nullptr, 20},
    {"'mass' includes the masses of the Sun, Earth and Moon", &kPhysical, "mass",
     "Mass of the Moon", nullptr, 1},
    {"'electron' finds all data on the electron", &kPhysical, "electron",
     "Classical electron radius", nullptr, 8},
    {"'electron mass' gives the mass of the electron", &kPhysical, "electron mass",
     "Electron mass m[e] = 9.1093837015e-31 kg", nullptr, 1},
    {"words in any order and any case", &kPhysical, "Mass ELECTRON", "Electron mass m[e] =",
     nullptr, 1},
    {"'Element' gives every element", &kPhysical, "Element", "Oganesson (Og), atomic number 118",
     nullptr, 118},
    {"an element by name", &kPhysical, "element iron", "Iron (Fe), atomic number 26", nullptr, 1},
    {"an element by atomic number", &kPhysical, "element 26", "Iron (Fe), atomic number 26",
     "Iron (Fe)", 1},
    {"'Isotope' gives every isotope", &kPhysical, "Isotope", "half-life", "neutron", 50},
    {"Co-60 gives its half-life", &kPhysical, "Co-60", "Cobalt-60 (Co-60)", "Co-60", 1},
    {"'Energy/Content' gives all energy contents", &kPhysical, "Energy/Content",
     "Energy content of bituminous coal", "Energy content of", 10},
    {"'Coal' gives only the energy content of coal", &kPhysical, "Coal", "coal",
     "Energy content of", 1},
    {"basic data on the Moon", &kPhysical, "moon radius", "Mean radius of the Moon", nullptr, 1},
    {"basic data on the Earth", &kPhysical, "earth mass", "Mass of the Earth", nullptr, 1},
    {"basic data on the Sun", &kPhysical, "sun mass", "Mass of the Sun", nullptr, 1},
    {"noise words go in smart search", &kPhysical, "the radius of the moon",
     "Mean radius of the Moon", nullptr, 1},
    {"SUN gives extensive data", &kAstro, "SUN", "Effective temperature of the Sun", nullptr, 10},
    {"MOON gives extensive data", &kAstro, "MOON", "Length of the Moon's month", nullptr, 8},
    {"EARTH gives extensive data", &kAstro, "EARTH", "Length of the Earth's year", nullptr, 10},
    {"ASTEROID gives the names of asteroids", &kAstro, "ASTEROID", "Asteroids in this file:",
     "asteroid", 20},
    {"then an asteroid by name", &kAstro, "Vesta", "Vesta (4), asteroid", nullptr, 1},
    {"COMETS gives the list with instructions", &kAstro, "COMETS",
     "Search for a comet by its name", "Famous comets in this file", 1},
    {"then a comet by name", &kAstro, "Halley", "Comet 1P/Halley", nullptr, 1},
    {"CONSTELLATION FAMLIY gives the families", &kAstro, "CONSTELLATION FAMLIY",
     "eight families", nullptr, 1},
    {"then a family by name gives its members", &kAstro, "Heavenly Waters",
     "The Heavenly Waters family of constellations (9): Delphinus", nullptr, 1},
    {"then a constellation by name", &kAstro, "Cassiopeia", "Cassiopeia (Cas), constellation",
     nullptr, 1},
    {"GALAXY gives the types of galaxies", &kAstro, "GALAXY", "Types of galaxies in this file",
     "galax", 20},
    {"then a type gives the galaxies of that type", &kAstro, "elliptical",
     "Elliptical galaxies in this file", nullptr, 2},
    {"then a galaxy by name", &kAstro, "Andromeda", "Andromeda Galaxy (M31, NGC 224)", nullptr, 1},
    {"NEPTUNE MOON gives the moons of Neptune", &kAstro, "NEPTUNE MOON",
     "Moons of Neptune in this file", "Neptune", 2},
    {"a moon by name", &kAstro, "Triton", "Triton, moon of Neptune", nullptr, 1},
    {"STAR lists stars with magnitude and distance", &kAstro, "STAR",
     "apparent visual magnitude", "light-years", 100},
    {"'Star Sirius' from the search tab", &kAstro, "Star Sirius", "Sirius (alpha CMa", nullptr, 1},
    {"a planet by name", &kAstro, "Mars", "Mass of Mars", nullptr, 5},
};

TEST(DataFiles, SearchesOfTheHelpTextsFindWhatTheyPromise) {
  for (const Promise& p : kPromises) {
    SCOPED_TRACE(p.name);
    const std::vector<Record> hits = smartSearch(records(*p.file), QString::fromUtf8(p.query));
    EXPECT_GE(static_cast<int>(hits.size()), p.atLeast);
    const QString fact = QString::fromUtf8(p.someHitHolds);
    EXPECT_TRUE(std::any_of(hits.begin(), hits.end(),
                            [&](const Record& r) { return r.value.contains(fact, Qt::CaseInsensitive); }))
        << "no hit holds: " << p.someHitHolds;
    if (p.everyHitHolds) {
      const QString always = QString::fromUtf8(p.everyHitHolds);
      for (const Record& r : hits)
        EXPECT_TRUE(r.value.contains(always, Qt::CaseInsensitive)) << r.value.toStdString();
    }
  }
}

// The first record a list search finds is the list itself, so its hit comes first.
TEST(DataFiles, ListRecordsComeBeforeTheirMembers) {
  struct Case {
    const char* name;
    const char* query;
    const char* first;
  };
  const Case cases[] = {
      {"asteroids", "ASTEROID", "Asteroids in this file:"},
      {"galaxy types", "GALAXY", "Types of galaxies in this file"},
      {"constellation families", "constellation family", "eight families"},
      {"moons of Neptune", "NEPTUNE MOON", "Moons of Neptune in this file"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const std::vector<Record> hits = smartSearch(records(kAstro), QString::fromUtf8(c.query));
    ASSERT_FALSE(hits.empty());
    EXPECT_TRUE(hits.front().value.contains(QString::fromUtf8(c.first))) << hits.front().value.toStdString();
  }
}

TEST(DataFiles, EveryConstellationAndElementIsThere) {
  // "Element" also finds the elementary charge, whose name holds the word.
  const std::vector<Record> elements = smartSearch(records(kPhysical), QStringLiteral("Element"));
  const auto isElement = [](const Record& r) { return r.value.contains(QStringLiteral(", atomic number ")); };
  EXPECT_EQ(std::count_if(elements.begin(), elements.end(), isElement), 118);
  EXPECT_LE(elements.size(), 120u);
  int constellations = 0;
  for (const Record& r : records(kAstro))
    if (r.value.contains(QStringLiteral("), constellation of the "))) ++constellations;
  EXPECT_EQ(constellations, 88);
  for (int z = 1; z <= 118; ++z) {
    SCOPED_TRACE(z);
    const std::vector<Record> hits =
        smartSearch(records(kPhysical), QStringLiteral("element ") + QString::number(z));
    const QString marker = QStringLiteral("atomic number ") + QString::number(z) + QLatin1Char(':');
    EXPECT_TRUE(std::any_of(hits.begin(), hits.end(),
                            [&](const Record& r) { return r.value.contains(marker); }));
  }
}

const Menu* menuOf(const std::vector<Menu>& menus, const QString& primary) {
  for (const Menu& m : menus)
    if (m.primary == primary) return &m;
  return nullptr;
}

// The search tabs list the first words of the keys; they should read as a short list
// of subjects, and the menus hold what the directions describe.
TEST(DataFiles, PrimaryWordsReadAsSubjectsToBrowse) {
  struct Case {
    const char* name;
    const QString* file;
    QStringList mustList;
  };
  const Case cases[] = {
      {"physical subjects", &kPhysical,
       {"constant", "electron", "element", "energy/content", "isotope", "proton", "neutron", "sun",
        "earth", "moon"}},
      {"astronomical subjects", &kAstro,
       {"asteroid", "comet", "comets", "constellation", "galaxy", "star", "planet", "sun", "earth",
        "moon", "mercury", "venus", "mars", "jupiter", "saturn", "uranus", "neptune", "pluto"}},
  };
  const QRegularExpression word(QStringLiteral("^[a-z][a-z/-]*$"));
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const std::vector<Menu> menus = buildMenus(records(*c.file));
    EXPECT_LE(menus.size(), 40u) << "too many primary words to browse";
    for (const Menu& m : menus)
      EXPECT_TRUE(word.match(m.primary).hasMatch()) << m.primary.toStdString();
    for (const QString& primary : c.mustList) EXPECT_NE(menuOf(menus, primary), nullptr) << primary.toStdString();
  }
}

// A menu row chosen with the shift key is searched alone: for an element that is
// everything about the substance, for a star everything about the star.
TEST(DataFiles, MenusOfferWhatTheDirectionsDescribe) {
  struct Case {
    const char* name;
    const QString* file;
    const char* primary;
    const char* rowStart;
    QStringList shiftFinds;
  };
  const Case cases[] = {
      {"'element' then 'iron'", &kPhysical, "element", "iron ",
       {"Iron (Fe), atomic number 26", "Iron-56 (Fe-56)", "Specific heat capacity of iron"}},
      {"'Star' then 'Sirius'", &kAstro, "star", "sirius ", {"Sirius (alpha CMa"}},
      {"'electron' then 'mass m[e]'", &kPhysical, "electron", "mass m[e]", {"Electron mass m[e] ="}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const std::vector<Menu> menus = buildMenus(records(*c.file));
    const Menu* menu = menuOf(menus, QString::fromUtf8(c.primary));
    ASSERT_NE(menu, nullptr);
    const auto row = std::find_if(menu->rows.begin(), menu->rows.end(), [&](const QString& r) {
      return r.startsWith(QString::fromUtf8(c.rowStart));
    });
    ASSERT_NE(row, menu->rows.end());
    // Without shift the field reads the primary word and the row.
    const std::vector<Record> narrow =
        smartSearch(records(*c.file), QString::fromUtf8(c.primary) + QLatin1Char(' ') + *row);
    EXPECT_TRUE(std::any_of(narrow.begin(), narrow.end(), [&](const Record& r) {
      return r.value.contains(c.shiftFinds.front());
    }));
    const std::vector<Record> wide = smartSearch(records(*c.file), *row);
    for (const QString& fact : c.shiftFinds)
      EXPECT_TRUE(std::any_of(wide.begin(), wide.end(), [&](const Record& r) { return r.value.contains(fact); }))
          << "with shift, no hit holds: " << fact.toStdString();
  }
}

}  // namespace
}  // namespace datatest
