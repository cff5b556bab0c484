// abacon-drive answering one formula as a whole process: start, launch the program on
// a home with the shipped files, drop the formula, print the clipboard, quit.
// Target: 30 ms.

#include <benchmark/benchmark.h>

#include <QProcess>

#include "bench_home.h"

namespace {

void BM_DriverAnswersOneFormula(benchmark::State& state) {
  benchsupport::BenchHome home;
  const QString driver = QStringLiteral(ABACON_BENCH_BINARY_DIR "/abacon-drive");
  const QByteArray script = "launch\ndrop \"sin(30)*2^10+sqrt(2)\"\nclipboard\n";
  for (auto _ : state) {
    QProcess process;
    process.start(driver, {"--home", home.path()});
    process.write(script);
    process.closeWriteChannel();
    if (!process.waitForFinished(10000) || process.exitCode() != 0 ||
        !process.readAllStandardOutput().contains("513.4142")) {
      state.SkipWithError("abacon-drive did not answer");
      break;
    }
  }
}
BENCHMARK(BM_DriverAnswersOneFormula)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
