#include "calc/keypad.h"

namespace calc {

// The digit keys run from PushButton5 for "0", and "2" stands 5 pixels off the grid
// of its row; both are how the panel has always been laid out.
const std::vector<KeypadKey>& keypadTable() {
  static const std::vector<KeypadKey> keys = {
      {"PushButton23", "(", 392, 141, 26, 20, "("},
      {"PushButton5", "0", 427, 141, 26, 20, "0"},
      {"PushButton6", "1", 465, 141, 26, 20, "1"},
      {"PushButton7", "2", 498, 141, 26, 20, "2"},
      {"PushButton8", "3", 541, 141, 26, 20, "3"},
      {"PushButton9", "4", 579, 141, 26, 20, "4"},
      {"PushButton24", "sin", 617, 141, 40, 20, "sin("},
      {"PushButton26", "tan", 664, 141, 40, 20, "tan("},
      {"PushButton22", ")", 392, 173, 26, 20, ")"},
      {"PushButton10", "5", 427, 173, 26, 20, "5"},
      {"PushButton11", "6", 465, 173, 26, 20, "6"},
      {"PushButton12", "7", 503, 173, 26, 20, "7"},
      {"PushButton13", "8", 541, 173, 26, 20, "8"},
      {"PushButton14", "9", 579, 173, 26, 20, "9"},
      {"PushButton25", "cos", 617, 173, 40, 20, "cos("},
      {"PushButton27", "exp", 664, 173, 40, 20, "exp("},
      {"PushButton15", ".", 392, 204, 26, 20, "."},
      {"PushButton16", "+", 427, 204, 26, 20, "+"},
      {"PushButton17", "-", 465, 204, 26, 20, "-"},
      {"PushButton18", "*", 503, 204, 26, 20, "*"},
      {"PushButton19", "/", 541, 204, 26, 20, "/"},
      {"PushButton20", "^", 579, 204, 26, 20, "^"},
      {"PushButton21", "E", 617, 204, 26, 20, "E"},
      {"PushButton28", "sqr", 664, 204, 40, 20, "sqrt("},
      {"PushButton38", "de", 392, 236, 36, 20, ""},
      {"PushButton39", "pa", 430, 236, 36, 20, ""},
      {"PushButton33", "m", 470, 236, 36, 20, ""},
      {"PushButton34", "mr", 513, 236, 36, 20, ""},
      {"PushButton35", "clear", 561, 236, 54, 20, ""},
      {"PushButton30", QString(QChar(0x03C0)), 626, 236, 26, 20, "PI"},
      {"PushButton29", "log", 664, 236, 40, 20, "log("},
      {"PushButton40", "=", 630, 264, 54, 20, ""},
      {"PushButton32", ":", 392, 268, 26, 20, ":"},
      {"PushButton31", "x", 427, 268, 26, 20, "x"},
      {"PushButton37", ";", 465, 268, 26, 20, ";"},
      {"PushButton36", "y", 500, 268, 26, 20, "y"},
  };
  return keys;
}

}  // namespace calc
