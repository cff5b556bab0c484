#include "platform/script/script_errors.h"

namespace platform::script {

namespace {

struct ErrorRow {
  ScriptError error;
  const char* message;
};

constexpr ErrorRow kErrorTable[] = {
    {ScriptError::Syntax, "syntax error"},
    {ScriptError::TypeMismatch, "type mismatch"},
    {ScriptError::NestingTooDeep, "expression nested too deeply"},
    {ScriptError::TooManyArguments, "too many arguments"},
    {ScriptError::TooFewArguments, "too few arguments"},
    {ScriptError::WrongArgumentCount, "no form of this function takes that many arguments"},
    {ScriptError::ArgumentType, "argument of the wrong type"},
    {ScriptError::AssignmentType, "value of the wrong type for this variable"},
    {ScriptError::UndefinedIdentifier, "unknown name"},
    {ScriptError::UndefinedOperator, "operator not defined for these types"},
    {ScriptError::LogicNeedsBoolean, "And, Or and Not need Boolean operands"},
    {ScriptError::NotAFunction, "not a function"},
    {ScriptError::DuplicateIdentifier, "name declared twice"},
    {ScriptError::ResultIgnored, "the result of a function call is not used"},
};

}  // namespace

QString ErrorMessage(ScriptError error) {
  for (const ErrorRow& row : kErrorTable) {
    if (row.error == error) return QString::fromLatin1(row.message);
  }
  return QStringLiteral("unknown error");
}

}  // namespace platform::script
