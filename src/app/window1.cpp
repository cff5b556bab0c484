#include "app/window1.h"

#include "app/app.h"
#include "app/window1_table.h"
#include "platform/strings/strings.h"

namespace app {

namespace {
// Scientific mode's mask, quotes included: it goes into the script as a string literal.
const QString kScientificMask = QStringLiteral("\"0.0#############e+##\"");
}  // namespace

Window1::Window1(App& app) : platform::Window(app.desktop()), app_(app) {
  fmt = kScientificMask;

  setTitle("ABACON");
  setMinWidth(64);
  setMinHeight(64);
  setMaxWidth(32000);
  setMaxHeight(32000);
  setWidth(800);
  setHeight(900);
  setResizeable(false);

  for (const platform::ControlSpec& row : window1ControlTable()) addControl(row);
  controlRefs_.bindAll(*this);
  ImageWell1->setImage(app_.target());

  registerProperties();
  wireEvents();
}

Window1::~Window1() = default;

void Window1::registerProperties() {
  registerProperty("unt", unt);
  registerProperty("fmt", fmt);
  registerProperty("wincon", wincon);
  registerProperty("placeit", placeit);
  registerProperty("placeit2", placeit2);
  registerProperty("pcconvert", pcconvert);
  registerProperty("popcon", popcon);
  registerProperty("choices", choices);
  registerProperty("changeit", changeit);
  registerProperty("convertit", convertit);
  registerProperty("iload", iload);
  registerProperty("formnumber", formnumber);
  registerProperty("quad", quad);
  registerProperty("twodim", twodim);
  registerProperty("tabclk", tabclk);
  registerProperty("knum3", knum3);
  registerProperty("knum4", knum4);
}

// The event wiring: which handler each control's event runs, by subsystem.
void Window1::wireEvents() {
  wireWorkbench();
  wireCalc();
  wireConvert();
  wireSolve();
  wireSearch();
  wireRecords();
  wireGuidance();
}

void Window1::open() {
  // The controls that have Open handlers, in the order the window raises them; each on
  // its own, so a fault in one (a broken data file) keeps neither the others nor
  // Event_Open from running.
  for (const char* name :
       {"BevelButton1", "TabPanel1", "PopupMenu2", "TabPanel2", "Listbox3", "PagePanel1"}) {
    platform::Control& opened = control(QString::fromLatin1(name));
    app_.guard([&opened] { opened.raiseOpen(); });
  }
  app_.guard([this] { Event_Open(); });
}

}  // namespace app
