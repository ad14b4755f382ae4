// How long the program itself takes for a case, on the simulated desktop: what costs a user nothing
// but shall not grow unseen.
#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <string>

#include "bench/case_in.h"
#include "case/basModule.h"
#include "limits/limits.h"
#include "platform/headless/desktop.h"
#include "run/control_file.h"
#include "run/verdict.h"
#include "wizard/frmKORVENTALLY.h"
#include "wizard/wizard_step.h"

namespace korventally::bench {
namespace {

constexpr std::size_t kPiece = std::size_t{256} * 1024;
const std::string kFolder = "C:\\Study of a plant\\2009\\";

void controlFileLines(benchmark::State& state) {
  const AnalysisCase theCase = caseIn(kFolder, static_cast<std::int32_t>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(korventally::controlFileLines(theCase));
}
BENCHMARK(controlFileLines)->Arg(2)->Arg(50);

void writeControlFile(benchmark::State& state) {
  Desktop desktop;
  desktop.makeFolder(kFolder);
  basModule::analysisCase = caseIn(kFolder, static_cast<std::int32_t>(state.range(0)));
  for (auto _ : state) {
    if (!WriteControlFile().ok()) state.SkipWithError("the control file was not written");
  }
}
BENCHMARK(writeControlFile)->Arg(2)->Arg(50);

void readControlFile(benchmark::State& state) {
  Desktop desktop;
  desktop.makeFolder(kFolder);
  basModule::analysisCase = caseIn(kFolder, static_cast<std::int32_t>(state.range(0)));
  const bool written = WriteControlFile().ok();
  const std::string path = controlFilePath(basModule::analysisCase);
  for (auto _ : state) {
    if (!written || !korventally::readControlFile(path)) state.SkipWithError("it cannot be read");
  }
}
BENCHMARK(readControlFile)->Arg(2)->Arg(50);

/// What "RUN" collects of the five steps.
void capture(benchmark::State& state) {
  Desktop desktop;
  desktop.makeFolder(kFolder);
  frmKORVENTALLY wizard;
  WizardStep* const steps[] = {&wizard.workingDirectory, &wizard.analysisType, &wizard.sourceGroups,
                               &wizard.processingInfo, &wizard.outputFile};
  const AnalysisCase theCase = caseIn(kFolder, static_cast<std::int32_t>(state.range(0)));
  for (WizardStep* step : steps) step->fill(theCase);
  for (auto _ : state) {
    AnalysisCase captured = theCase;
    for (WizardStep* step : steps) {
      if (!step->capture(captured)) state.SkipWithError("a step refuses");
    }
    benchmark::DoNotOptimize(captured);
  }
}
BENCHMARK(capture)->Arg(2)->Arg(50);

void deriveLimits(benchmark::State& state) {
  AnalysisCase theCase = caseIn(kFolder, 2);
  for (auto _ : state) {
    DeriveLimits(theCase);
    benchmark::DoNotOptimize(theCase);
  }
}
BENCHMARK(deriveLimits);

/// A piece of a list file as it is read; the argument is how many lines pass before one that looks
/// like the beginning of a verdict.
void scan(benchmark::State& state) {
  std::string piece;
  for (int line = 0; piece.size() < kPiece; ++line) {
    piece += line % state.range(0) == 0
                 ? "RUN of the model\r\n"
                 : "   17  R0123      1200.0   -600.0  2009-01-12 05   18    "
                   "221.9943    12.3456    5.6 yes\r\n";
  }
  for (auto _ : state) {
    VerdictScanner scanner;
    scanner.feed(piece);
    benchmark::DoNotOptimize(scanner.verdict());
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(piece.size()));
}
BENCHMARK(scan)->Arg(1)->Arg(10)->Arg(10000);

}  // namespace
}  // namespace korventally::bench
