// What one formula costs the program: a fresh host, Reset, Source, Run, and the
// print delivered to the host, as the runner does for every formula.

#include <benchmark/benchmark.h>

#include <QString>

#include "platform/script/rbscript.h"

namespace {

class CapturingHost : public platform::RbScript {
 public:
  QString last;

 protected:
  void Print(const QString& msg) override { last = msg; }
};

const QString kFormula = QStringLiteral("sin((3.1415926535897932384626433832795/180)*30)*2^10+sqrt(2)");

void RunFormula(benchmark::State& state, const QString& source, const QString& expected) {
  for (auto _ : state) {
    CapturingHost host;
    host.Reset();
    host.Source = source;
    host.Run();
    benchmark::DoNotOptimize(host.last);
    if (host.last != expected) {
      state.SkipWithError("wrong result");
      break;
    }
  }
}

void BM_NormalForm(benchmark::State& state) {
  RunFormula(state, QStringLiteral("Dim x As double\nx = ") + kFormula + QStringLiteral("\nprint Str(x)"),
             QStringLiteral("513.4142"));
}
BENCHMARK(BM_NormalForm)->Repetitions(9)->ReportAggregatesOnly(true);

void BM_ScientificForm(benchmark::State& state) {
  RunFormula(state,
             QStringLiteral("Dim x As double\nx = ") + kFormula +
                 QStringLiteral("\nprint Format(x,\"0.0#############e+##\")"),
             QStringLiteral("5.13414213562373e+2"));
}
BENCHMARK(BM_ScientificForm)->Repetitions(9)->ReportAggregatesOnly(true);

}  // namespace
