// The formula look-ups were planned as one method per field and kind of object; none
// was ever written, and nothing calls them. They stay, empty, under their names, so
// the dictionaries dict3, dict4 and dict5 have their future fillers named.

#include "app/window1.h"

namespace app {

void Window1::mathfor() {}
void Window1::physfor() {}
void Window1::physfor2() {}
void Window1::physfor3() {}
void Window1::physfor4() {}
void Window1::physfor5() {}
void Window1::astrofor() {}

void Window1::PartStars() {}
void Window1::PartStars1() {}
void Window1::Constellations() {}
void Window1::galaxy() {}
void Window1::planets() {}
void Window1::moons() {}
void Window1::asteroid() {}
void Window1::comets() {}
void Window1::stars() {}
void Window1::shapes() {}

QString Window1::evaluator(const QString&) { return QString(); }

}  // namespace app
