#include "calc/evalit.h"

#include <array>

#include "app/window1.h"
#include "platform/desktop/desktop.h"

namespace calc {

namespace {

struct CompilerErrorText {
  int number;
  const char* text;
};

// What the log says for each compiler error; the engine's own message is never shown.
constexpr std::array<CompilerErrorText, 38> kCompilerErrors = {{
    {1, "Syntax does not make sense."},
    {2, "Type mismatch."},
    {3, "Select Case does not support that type of expression."},
    {4, "The compiler is not implemented (obsolete)."},
    {5, "The parser's internal stack has overflowed."},
    {6, "Too many parameters for this function."},
    {7, "Not enough parameters for this function call."},
    {8, "Wrong number of parameters for this function call."},
    {9, "Parameters are incompatible with this function."},
    {10, "Assignment of an incompatible data type."},
    {11, "Undefined identifier."},
    {12, "Undefined operator."},
    {13, "Logic operations require Boolean operands."},
    {14, "Array bounds must be integers."},
    {15, "Can't call a non-function."},
    {16, "Can't get an element from something that isn't an array."},
    {17, "Not enough subscripts for this array's dimensions."},
    {18, "Too many subscripts for this array's dimensions."},
    {19, "Can't assign an entire array."},
    {20, "Can't use an entire array in an expression."},
    {21, "Can't pass an expression as a ByRef parameter."},
    {22, "Duplicate identifier."},
    {23, "The backend code generator failed."},
    {24, "Ambiguous call to overloaded method."},
    {25, "Multiple inheritance is not allowed."},
    {26, "Cannot create an instance of an interface."},
    {27, "Cannot implement a class as though it were an interface."},
    {28, "Cannot inherit from something that is not a class."},
    {29, "This class does not fully implement the specified interface."},
    {30, "Event handlers cannot live outside of a class."},
    {31, "It is not legal to ignore the result of a function call."},
    {32, "Can't use 'Self' keyword outside of a class."},
    {33, "Can't use 'Me' keyword outside of a class."},
    {34, "Can't return a value from a Sub."},
    {35, "An exception object required here."},
    {40, "Destructors can't have parameters."},
    {41, "Can't use 'Super' keyword outside of a class."},
    {42, "Can't use 'Super' keyword in a class that has no parent."},
}};

}  // namespace

QString compilerErrorText(int errorNumber) {
  for (const CompilerErrorText& row : kCompilerErrors) {
    if (row.number == errorNumber) return QString::fromLatin1(row.text);
  }
  return QStringLiteral("unknown error");
}

void EvalIt::Print(const QString& msg) {
  app::Window1& w = window_;
  platform::Clipboard clipboard(w.desktop());
  if (w.quad != 1 && w.twodim != 1) w.blink();
  clipboard.setText(msg + w.unt);
  if (w.quad == 1) {
    w.EditField9->setText(w.EditField9->Text() + ", " + msg);
  } else if (w.twodim == 1) {
    w.TextField2->setText(w.TextField2->Text() + ", " + msg);
  }
  w.EditField5->setText(msg + w.unt);
  w.log("Output:" + msg + w.unt);
  clipboard.Close();
  w.desktop().beep();
  w.quad = 0;
  w.twodim = 0;
}

// Every kind of run-time fault is the same line.
void EvalIt::RuntimeError(int, const platform::ScriptException&) { window_.log("ERROR: 109"); }

void EvalIt::CompilerError(int, int errorNumber, const QString&) {
  window_.log("ERROR: " + compilerErrorText(errorNumber));
}

}  // namespace calc
