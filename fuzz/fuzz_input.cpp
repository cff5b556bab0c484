// Any text through the whole input path: dropped on the window, passed to the dispatcher
// as the search fields pass it, or typed into the calculation field and sent with "=",
// under any caption of the selector and any of the settings that steer the rewriting.

#include <QString>
#include <cstddef>
#include <cstdint>

#include "fuzz_support.h"

namespace {

const char* const kCaptions[] = {"Action",   "Calculate",        "Convert",         "Solve",
                                 "Physical Data", "Astro Data",  "Evaluate",        "Settings",
                                 "calculate", "Formulas (math)", "Formulas (phys)", "Formulas (astro)"};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 2) return 0;
  fuzzsupport::Program& p = fuzzsupport::program();
  app::Window1& w = *p.window;
  const uint8_t how = data[0], setting = data[1];
  const QString text =
      QString::fromUtf8(reinterpret_cast<const char*>(data + 2), static_cast<qsizetype>(size - 2));

  w.BevelButton1->setCaption(QString::fromLatin1(kCaptions[how % std::size(kCaptions)]));
  w.CheckBox1->setValue(setting & 1);
  w.CheckBox2->setValue(setting & 2);
  (setting & 4 ? w.RadioButton4 : w.RadioButton3)->setValue(true);
  (setting & 8 ? w.RadioButton1 : w.RadioButton2)->setValue(true);
  (setting & 16 ? w.scibutton1 : w.normbutton)->setValue(true);
  (setting & 32 ? w.RadioButton6 : w.RadioButton5)->setValue(true);
  if (w.PopupMenu2->ListCount() > 0) w.PopupMenu2->setListIndex((setting >> 6) % w.PopupMenu2->ListCount());

  switch ((how / std::size(kCaptions)) % 3) {
    case 0:
      p.app->guard([&] { w.userDrop(platform::DragItem{text}); });
      break;
    case 1:
      p.app->guard([&] { w.ButtonAct(text); });
      break;
    default:
      w.EditField4->setText(text);
      p.app->guard([&] { w.PushButton40->Push(); });
      break;
  }
  p.desktop.fireTimers();
  p.forget();
  return 0;
}
