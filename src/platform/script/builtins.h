#pragma once
// The built-in functions of the language: one table of overloads. Each row is one
// form of a function with its argument types and result type; the checker picks a
// row at compile time and the evaluator calls it with arguments already converted.
// String and number semantics come from platform/strings, never from here.

#include <QString>
#include <QStringView>
#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "platform/script/ast.h"

namespace platform::script {

// One value at run time; the checked type says which member holds it (Boolean in i).
struct Value {
  double d = 0;
  std::int32_t i = 0;
  QString s;
};

constexpr int kMaxBuiltinArguments = 3;

// May throw RuntimeFault.
using BuiltinFn = void (*)(const Value* args, Value& result);

struct Overload {
  std::string_view name;  // lower case
  Type result;
  std::int8_t count;
  std::array<Type, kMaxBuiltinArguments> params;
  BuiltinFn fn;
};

// Every row, rows of one name adjacent; the checker keeps a row's index.
std::span<const Overload> Builtins();

// The rows for a name in any case; empty when the name is no built-in.
std::span<const Overload> FindBuiltin(QStringView name);

}  // namespace platform::script
