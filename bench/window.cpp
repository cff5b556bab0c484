// Window1 made and opened headless, as a launch makes it: the controls from the table,
// the conversion table, both search word lists and Event_Open. Target: 20 ms.

#include <benchmark/benchmark.h>

#include "app/app.h"
#include "app/window1.h"
#include "bench_home.h"
#include "platform/desktop/recording_desktop.h"

namespace {

void BM_Window1CreatedAndOpened(benchmark::State& state) {
  benchsupport::BenchHome home;
  for (auto _ : state) {
    platform::RecordingDesktop desktop;
    app::App program(desktop);
    program._Startup();
    benchmark::DoNotOptimize(program.window1());
    if (!program.window1() || program.window1()->choices.isEmpty()) {
      state.SkipWithError("Window1 did not open with its conversion table");
      break;
    }
  }
}
BENCHMARK(BM_Window1CreatedAndOpened)->Unit(benchmark::kMillisecond)->MinTime(2.0);

}  // namespace
