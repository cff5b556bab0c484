// A smart search of each shipped data file, the parse included: the program reads the
// file again at every search, by design. Target: 1 ms each.

#include <benchmark/benchmark.h>

#include "app/window1.h"
#include "bench_home.h"

namespace {

using benchsupport::Launched;

void BM_PhysicalSmartSearch(benchmark::State& state) {
  Launched l;
  for (auto _ : state) {
    l.window->EditField1->setText("");
    l.window->physical(l.window->SmartParse("the mass of the electron"));
    if (l.window->EditField1->Text().isEmpty()) {
      state.SkipWithError("the search found nothing");
      break;
    }
  }
}
BENCHMARK(BM_PhysicalSmartSearch)->Unit(benchmark::kMicrosecond);

void BM_AstronomicalSmartSearch(benchmark::State& state) {
  Launched l;
  for (auto _ : state) {
    l.window->EditField1->setText("");
    l.window->astronomical(l.window->SmartParse("the moon of neptune"));
    if (l.window->EditField1->Text().isEmpty()) {
      state.SkipWithError("the search found nothing");
      break;
    }
  }
}
BENCHMARK(BM_AstronomicalSmartSearch)->Unit(benchmark::kMicrosecond);

}  // namespace
