#include "platform/script/builtins.h"

#include <algorithm>
#include <cmath>

#include "platform/script/script_errors.h"
#include "platform/strings/strings.h"

namespace platform::script {

namespace {

constexpr Type D = Type::Double;
constexpr Type I = Type::Integer;
constexpr Type S = Type::String;
constexpr Type B = Type::Boolean;
constexpr Type N = Type::None;

// Unicode stops here; Chr of anything beyond (or negative) is a run-time fault.
constexpr std::int32_t kLastCodePoint = 0x10FFFF;

std::int32_t firstCodePoint(const QString& s) {
  if (s.isEmpty()) return 0;
  const QChar c = s.at(0);
  if (c.isHighSurrogate() && s.size() > 1 && s.at(1).isLowSurrogate()) {
    return static_cast<std::int32_t>(QChar::surrogateToUcs4(c, s.at(1)));
  }
  return c.unicode();
}

// Sorted by name; a name with several forms has adjacent rows, the preferred first
// (an argument that fits a row's type exactly wins over one that needs converting).
constexpr Overload kBuiltins[] = {
    {"abs", D, 1, {D, N, N}, [](const Value* a, Value& r) { r.d = std::fabs(a[0].d); }},
    {"acos", D, 1, {D, N, N}, [](const Value* a, Value& r) { r.d = std::acos(a[0].d); }},
    {"asc", I, 1, {S, N, N}, [](const Value* a, Value& r) { r.i = firstCodePoint(a[0].s); }},
    {"asin", D, 1, {D, N, N}, [](const Value* a, Value& r) { r.d = std::asin(a[0].d); }},
    {"atan", D, 1, {D, N, N}, [](const Value* a, Value& r) { r.d = std::atan(a[0].d); }},
    {"atan2", D, 2, {D, D, N}, [](const Value* a, Value& r) { r.d = std::atan2(a[0].d, a[1].d); }},
    {"bin", S, 1, {I, N, N}, [](const Value* a, Value& r) { r.s = platform::Bin(a[0].i); }},
    {"cdbl", D, 1, {S, N, N}, [](const Value* a, Value& r) { r.d = platform::Val(a[0].s); }},
    {"cdbl", D, 1, {D, N, N}, [](const Value* a, Value& r) { r.d = a[0].d; }},
    {"ceil", D, 1, {D, N, N}, [](const Value* a, Value& r) { r.d = std::ceil(a[0].d); }},
    {"chr", S, 1, {I, N, N},
     [](const Value* a, Value& r) {
       if (a[0].i < 0 || a[0].i > kLastCodePoint) {
         throw RuntimeFault{QStringLiteral("Chr of %1, which is no character").arg(a[0].i)};
       }
       r.s = platform::Chr(static_cast<std::uint32_t>(a[0].i));
     }},
    {"cos", D, 1, {D, N, N}, [](const Value* a, Value& r) { r.d = std::cos(a[0].d); }},
    {"exp", D, 1, {D, N, N}, [](const Value* a, Value& r) { r.d = std::exp(a[0].d); }},
    {"floor", D, 1, {D, N, N}, [](const Value* a, Value& r) { r.d = std::floor(a[0].d); }},
    {"format", S, 2, {D, S, N}, [](const Value* a, Value& r) { r.s = platform::Format(a[0].d, a[1].s); }},
    {"hex", S, 1, {I, N, N}, [](const Value* a, Value& r) { r.s = platform::Hex(a[0].i); }},
    {"instr", I, 2, {S, S, N}, [](const Value* a, Value& r) { r.i = platform::InStr(a[0].s, a[1].s); }},
    {"instr", I, 3, {I, S, S}, [](const Value* a, Value& r) { r.i = platform::InStr(a[0].i, a[1].s, a[2].s); }},
    {"left", S, 2, {S, I, N}, [](const Value* a, Value& r) { r.s = platform::Left(a[0].s, a[1].i); }},
    {"len", I, 1, {S, N, N}, [](const Value* a, Value& r) { r.i = platform::Len(a[0].s); }},
    {"log", D, 1, {D, N, N}, [](const Value* a, Value& r) { r.d = std::log(a[0].d); }},
    {"log10", D, 1, {D, N, N}, [](const Value* a, Value& r) { r.d = std::log10(a[0].d); }},
    {"lowercase", S, 1, {S, N, N}, [](const Value* a, Value& r) { r.s = platform::Lowercase(a[0].s); }},
    {"ltrim", S, 1, {S, N, N}, [](const Value* a, Value& r) { r.s = platform::LTrim(a[0].s); }},
    {"max", D, 2, {D, D, N}, [](const Value* a, Value& r) { r.d = std::max(a[0].d, a[1].d); }},
    {"mid", S, 2, {S, I, N}, [](const Value* a, Value& r) { r.s = platform::Mid(a[0].s, a[1].i); }},
    {"mid", S, 3, {S, I, I}, [](const Value* a, Value& r) { r.s = platform::Mid(a[0].s, a[1].i, a[2].i); }},
    {"min", D, 2, {D, D, N}, [](const Value* a, Value& r) { r.d = std::min(a[0].d, a[1].d); }},
    {"oct", S, 1, {I, N, N}, [](const Value* a, Value& r) { r.s = platform::Oct(a[0].i); }},
    {"pow", D, 2, {D, D, N}, [](const Value* a, Value& r) { r.d = std::pow(a[0].d, a[1].d); }},
    {"right", S, 2, {S, I, N}, [](const Value* a, Value& r) { r.s = platform::Right(a[0].s, a[1].i); }},
    {"round", D, 1, {D, N, N}, [](const Value* a, Value& r) { r.d = platform::Round(a[0].d); }},
    {"rtrim", S, 1, {S, N, N}, [](const Value* a, Value& r) { r.s = platform::RTrim(a[0].s); }},
    {"sign", I, 1, {D, N, N}, [](const Value* a, Value& r) { r.i = (a[0].d > 0) - (a[0].d < 0); }},
    {"sin", D, 1, {D, N, N}, [](const Value* a, Value& r) { r.d = std::sin(a[0].d); }},
    {"sqrt", D, 1, {D, N, N}, [](const Value* a, Value& r) { r.d = std::sqrt(a[0].d); }},
    {"str", S, 1, {I, N, N}, [](const Value* a, Value& r) { r.s = platform::Str(a[0].i); }},
    {"str", S, 1, {D, N, N}, [](const Value* a, Value& r) { r.s = platform::Str(a[0].d); }},
    {"str", S, 1, {B, N, N},
     [](const Value* a, Value& r) { r.s = a[0].i ? QStringLiteral("True") : QStringLiteral("False"); }},
    {"tan", D, 1, {D, N, N}, [](const Value* a, Value& r) { r.d = std::tan(a[0].d); }},
    {"trim", S, 1, {S, N, N}, [](const Value* a, Value& r) { r.s = platform::Trim(a[0].s); }},
    {"uppercase", S, 1, {S, N, N}, [](const Value* a, Value& r) { r.s = platform::Uppercase(a[0].s); }},
    {"val", D, 1, {S, N, N}, [](const Value* a, Value& r) { r.d = platform::Val(a[0].s); }},
};
static_assert(std::is_sorted(std::begin(kBuiltins), std::end(kBuiltins),
                             [](const Overload& a, const Overload& b) { return a.name < b.name; }));

constexpr std::size_t kLongestName = 9;  // "lowercase", "uppercase"

}  // namespace

std::span<const Overload> Builtins() { return kBuiltins; }

std::span<const Overload> FindBuiltin(QStringView name) {
  if (name.size() > static_cast<qsizetype>(kLongestName)) return {};
  char lower[kLongestName];
  for (qsizetype i = 0; i < name.size(); ++i) {
    const char16_t c = name[i].unicode();
    if (c >= 0x80) return {};
    lower[i] = (c >= u'A' && c <= u'Z') ? static_cast<char>(c - u'A' + u'a') : static_cast<char>(c);
  }
  const std::string_view key(lower, static_cast<std::size_t>(name.size()));
  struct ByName {
    bool operator()(const Overload& row, std::string_view k) const { return row.name < k; }
    bool operator()(std::string_view k, const Overload& row) const { return k < row.name; }
  };
  auto [first, last] = std::equal_range(std::begin(kBuiltins), std::end(kBuiltins), key, ByName{});
  return {first, last};
}

}  // namespace platform::script
