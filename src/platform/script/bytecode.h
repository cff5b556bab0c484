#pragma once
// The checked program: typed stack code. Numbers, Integers and Booleans live on one
// stack of cells, Strings on a stack of their own, so no value carries a type tag at
// run time; the compiler knows every type and how deep each stack can grow.

#include <QString>
#include <cstdint>
#include <vector>

namespace platform::script {

enum class OpCode : std::uint8_t {
  PushD,      // d
  PushI,      // i: an Integer or a Boolean (0, 1)
  PushS,      // i: index into Code::texts
  LoadD, LoadI, LoadS,     // i: the variable's slot in its store
  StoreD, StoreI, StoreS,  // i: the slot
  ToDouble,   // i: how many cells below the top the Integer to convert lies
  ToInteger,  // i: the same, for a Double; the conversion of an assignment
  NegD, NegI, NotB,
  AddD, SubD, MulD, DivD, PowD,
  AddI, SubI, MulI, DivI, ModI,  // wrap at 32 bits; DivI and ModI fault on 0
  Concat,
  CompareD, CompareI, CompareS,  // i: the Operator; leave a Boolean
  AndB, OrB,
  Call,       // i: index of the overload in Builtins()
  Print,
};

struct Instr {
  OpCode op;
  std::int32_t line;
  std::int32_t i = 0;
  double d = 0;
};

union Cell {
  double d;
  std::int32_t i;
};

struct Code {
  std::vector<Instr> instrs;
  std::vector<QString> texts;
  std::int32_t cellSlots = 0;    // variables of type Double, Integer, Boolean
  std::int32_t stringSlots = 0;  // variables of type String
  std::int32_t cellDepth = 0;    // the most values each stack holds at once
  std::int32_t stringDepth = 0;
};

}  // namespace platform::script
