#pragma once
// The compile faults of the script engine: one table of numbers and messages, and the
// one exception every stage of the compiler raises through. The host picks its own
// texts by number, so the numbers are fixed; the messages here are the engine's own
// and only reach hosts that want more than the number.

#include <QString>
#include <cstdint>

namespace platform::script {

enum class ScriptError : int {
  Syntax = 1,                // text that reads as no statement or expression
  TypeMismatch = 2,          // a value of a type that cannot stand there (print of a number)
  NestingTooDeep = 5,        // the parser's depth guard fired
  TooManyArguments = 6,      // more than the function's only argument count
  TooFewArguments = 7,       // fewer than the function's only argument count
  WrongArgumentCount = 8,    // a function with forms of several counts, none of this count
  ArgumentType = 9,          // the count fits but an argument's type does not
  AssignmentType = 10,       // a String into a number, a number into a String, ...
  UndefinedIdentifier = 11,  // an unknown variable, function or type name
  UndefinedOperator = 12,    // arithmetic on a String, comparing a String with a number
  LogicNeedsBoolean = 13,    // And, Or, Not on anything but Booleans
  NotAFunction = 15,         // a variable used with an argument list
  DuplicateIdentifier = 22,  // a second Dim of a name, or a Dim of a built-in's name
  ResultIgnored = 31,        // a function call standing as a statement
};

// The engine's message for a number; "unknown error" for a number not in the table.
QString ErrorMessage(ScriptError error);

// Raised by the lexer, parser and checker; the first one ends the compilation, so
// a broken line never produces a cascade of follow-on faults.
struct CompileFault {
  std::int32_t line;
  ScriptError error;
  QString detail;  // what was seen, for the message; may be empty
};

// Raised while a script runs (integer division by zero, a string grown past its limit).
// Built-ins raise it without a line; the machine fills in the line of the instruction.
struct RuntimeFault {
  QString message;
  std::int32_t line = 0;
};

}  // namespace platform::script
