#include "platform/script/machine.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

#include "platform/script/ast.h"
#include "platform/script/builtins.h"
#include "platform/script/script_errors.h"
#include "platform/strings/strings.h"

namespace platform::script {

namespace {

// Stacks and variables of a run. A one-line formula fits the inline part, so a run
// costs no allocation for them; anything bigger goes to the heap. Zero-filled: a
// variable starts as 0, 0.0, False or "".
template <typename T, std::size_t InlineSize>
class Scratch {
 public:
  explicit Scratch(std::int32_t size) {
    if (size > static_cast<std::int32_t>(InlineSize)) {
      heap_.resize(static_cast<std::size_t>(size));
      data_ = heap_.data();
    }
  }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;
  T* data() { return data_; }

 private:
  std::array<T, InlineSize> inline_{};
  std::vector<T> heap_;
  T* data_ = inline_.data();
};

std::int32_t wrap(std::int64_t v) { return static_cast<std::int32_t>(static_cast<std::uint32_t>(v)); }

template <typename T>
std::int32_t relate(std::int32_t op, T a, T b) {
  switch (static_cast<Operator>(op)) {
    case Operator::Equal: return a == b;
    case Operator::NotEqual: return a != b;
    case Operator::Less: return a < b;
    case Operator::Greater: return a > b;
    case Operator::LessEqual: return a <= b;
    case Operator::GreaterEqual: return a >= b;
    default: return 0;
  }
}

[[noreturn]] void divisionByZero() { throw RuntimeFault{QStringLiteral("integer division by zero")}; }

}  // namespace

void Execute(const Code& code, PrintSink sink) {
  Scratch<Cell, 32> cellStack(code.cellDepth);
  Scratch<QString, 8> stringStack(code.stringDepth);
  Scratch<Cell, 16> cellVars(code.cellSlots);
  Scratch<QString, 8> stringVars(code.stringSlots);

  Cell* sp = cellStack.data();       // the next free cell
  QString* ss = stringStack.data();  // the next free String
  Cell* cv = cellVars.data();
  QString* sv = stringVars.data();

  const Instr* ip = code.instrs.data();
  const Instr* const end = ip + code.instrs.size();
  try {
    for (; ip < end; ++ip) {
      switch (ip->op) {
        case OpCode::PushD: (sp++)->d = ip->d; break;
        case OpCode::PushI: (sp++)->i = ip->i; break;
        case OpCode::PushS: *ss++ = code.texts[static_cast<std::size_t>(ip->i)]; break;
        case OpCode::LoadD: (sp++)->d = cv[ip->i].d; break;
        case OpCode::LoadI: (sp++)->i = cv[ip->i].i; break;
        case OpCode::LoadS: *ss++ = sv[ip->i]; break;
        case OpCode::StoreD: cv[ip->i].d = (--sp)->d; break;
        case OpCode::StoreI: cv[ip->i].i = (--sp)->i; break;
        case OpCode::StoreS: sv[ip->i] = std::move(*--ss); break;
        case OpCode::ToDouble: {
          Cell& c = sp[-1 - ip->i];
          const std::int32_t v = c.i;
          c.d = v;
          break;
        }
        case OpCode::ToInteger: {
          Cell& c = sp[-1 - ip->i];
          const double v = c.d;
          c.i = platform::ToInt32(v);
          break;
        }
        case OpCode::NegD: sp[-1].d = -sp[-1].d; break;
        case OpCode::NegI: sp[-1].i = wrap(-static_cast<std::int64_t>(sp[-1].i)); break;
        case OpCode::NotB: sp[-1].i = !sp[-1].i; break;
        case OpCode::AddD: --sp; sp[-1].d += sp->d; break;
        case OpCode::SubD: --sp; sp[-1].d -= sp->d; break;
        case OpCode::MulD: --sp; sp[-1].d *= sp->d; break;
        case OpCode::DivD: --sp; sp[-1].d /= sp->d; break;
        case OpCode::PowD: --sp; sp[-1].d = std::pow(sp[-1].d, sp->d); break;
        case OpCode::AddI: --sp; sp[-1].i = wrap(std::int64_t{sp[-1].i} + sp->i); break;
        case OpCode::SubI: --sp; sp[-1].i = wrap(std::int64_t{sp[-1].i} - sp->i); break;
        case OpCode::MulI: --sp; sp[-1].i = wrap(std::int64_t{sp[-1].i} * sp->i); break;
        case OpCode::DivI:
          --sp;
          if (sp->i == 0) divisionByZero();
          // INT32_MIN \ -1 does not fit; it wraps like the other Integer operations.
          sp[-1].i = wrap(std::int64_t{sp[-1].i} / sp->i);
          break;
        case OpCode::ModI:
          --sp;
          if (sp->i == 0) divisionByZero();
          sp[-1].i = wrap(std::int64_t{sp[-1].i} % sp->i);
          break;
        case OpCode::Concat:
          --ss;
          if (ss[-1].size() + ss->size() > kMaxTextLength) {
            throw RuntimeFault{QStringLiteral("a String longer than %1 characters").arg(kMaxTextLength)};
          }
          ss[-1] += *ss;
          break;
        case OpCode::CompareD: --sp; sp[-1].i = relate(ip->i, sp[-1].d, sp->d); break;
        case OpCode::CompareI: --sp; sp[-1].i = relate(ip->i, sp[-1].i, sp->i); break;
        case OpCode::CompareS:
          ss -= 2;
          (sp++)->i = relate(ip->i, ss[0].compare(ss[1], Qt::CaseInsensitive), 0);
          break;
        case OpCode::AndB: --sp; sp[-1].i = sp[-1].i & sp->i; break;
        case OpCode::OrB: --sp; sp[-1].i = sp[-1].i | sp->i; break;
        case OpCode::Call: {
          const Overload& fn = Builtins()[static_cast<std::size_t>(ip->i)];
          std::int32_t cells = 0;
          for (std::int32_t k = 0; k < fn.count; ++k) cells += fn.params[static_cast<std::size_t>(k)] != Type::String;
          sp -= cells;
          ss -= fn.count - cells;
          Cell* cell = sp;
          QString* text = ss;
          Value args[kMaxBuiltinArguments];
          for (std::int32_t k = 0; k < fn.count; ++k) {
            switch (fn.params[static_cast<std::size_t>(k)]) {
              case Type::String: args[k].s = std::move(*text++); break;
              case Type::Double: args[k].d = (cell++)->d; break;
              default: args[k].i = (cell++)->i; break;
            }
          }
          Value result;
          fn.fn(args, result);
          switch (fn.result) {
            case Type::String: *ss++ = std::move(result.s); break;
            case Type::Double: (sp++)->d = result.d; break;
            default: (sp++)->i = result.i; break;
          }
          break;
        }
        case OpCode::Print:
          --ss;
          sink.print(sink.context, *ss);
          break;
      }
    }
  } catch (RuntimeFault& fault) {
    fault.line = ip->line;
    throw;
  }
}

}  // namespace platform::script
