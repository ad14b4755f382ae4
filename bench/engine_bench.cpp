// How fast the engine reads: whole runs, one file on one core, and the cost of a value from one
// day to five years. Studies are written once, below the system's folder for temporary files or,
// if it is set, KORVENTALLY_BENCH_DIR (a year takes 530 MB).
#include <benchmark/benchmark.h>

#include <charconv>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "bench/make_study.h"
#include "engine/blocks.h"
#include "engine/concentration_file.h"
#include "engine/engine.h"
#include "engine/line_reader.h"

namespace korventally::bench {
namespace {

struct Made {
  std::filesystem::path folder;
  std::int64_t bytes;
};

Made Make(const StudySize& size) {
  const char* chosen = std::getenv("KORVENTALLY_BENCH_DIR");
  const auto base = chosen ? std::filesystem::path(chosen)
                           : std::filesystem::temp_directory_path() / "korventally_bench";
  const auto folder = base / (std::to_string(size.hours) + "x" + std::to_string(size.receptors) +
                              "x" + std::to_string(size.groups));
  return {folder, static_cast<std::int64_t>(MakeStudy(folder, size))};
}

engine::Blocks DaysOf(const StudySize& size) {
  const auto days = static_cast<std::int64_t>(size.hours / 24);
  return {*engine::HourFromDate(2009, 1, 1, 0), 24, days, 0, false};
}

// A year of 1,000 receptors and 5 groups, from the control file to the verdict. The argument is
// the averaging period. Bytes per second are those of the clock, with as many threads as cores.
void WholeRun(benchmark::State& state) {
  StudySize size;
  size.averaging_hours = static_cast<std::size_t>(state.range(0));
  const Made study = Make(size);
  for (auto _ : state) {
    if (!engine::RunCase(study.folder / "korventally.inp").sentence.empty()) {
      state.SkipWithError("the run failed");
    }
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * study.bytes);
}
BENCHMARK(WholeRun)->Arg(24)->Arg(3)->Arg(8760)->UseRealTime()->Unit(benchmark::kMillisecond);

void ReadFile(const std::filesystem::path& path, const StudySize& size) {
  engine::InputFile file(path);
  const auto sums =
      engine::ReadConcentrations(file, DaysOf(size), size.receptors, [] { return false; });
  benchmark::DoNotOptimize(sums.sums.data());
}

// One file of that year on one core.
void OneFile(benchmark::State& state) {
  const StudySize size;
  const Made study = Make(size);
  for (auto _ : state) ReadFile(study.folder / ConcentrationName(0), size);
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * study.bytes / 5);
}
BENCHMARK(OneFile)->Unit(benchmark::kMillisecond);

// The same file cut into lines only: what the system's reading costs.
void OneFileLinesOnly(benchmark::State& state) {
  const StudySize size;
  const Made study = Make(size);
  for (auto _ : state) {
    engine::InputFile file(study.folder / ConcentrationName(0));
    engine::LineReader reader(file, 1 << 20);
    for (std::string_view line; reader.Next(line);) benchmark::DoNotOptimize(line.data());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * study.bytes / 5);
}
BENCHMARK(OneFileLinesOnly)->Unit(benchmark::kMillisecond);

// The same file with nothing but std::from_chars: what reading eight bytes at a time saves.
void OneFileFromChars(benchmark::State& state) {
  const StudySize size;
  const Made study = Make(size);
  for (auto _ : state) {
    engine::InputFile file(study.folder / ConcentrationName(0));
    engine::LineReader reader(file, 1 << 20);
    std::vector<double> sums(size.receptors + 4);
    for (std::string_view line; reader.Next(line);) {
      const char* at = line.data();
      for (double& sum : sums) {
        double value = 0;
        while (*at == ' ') ++at;
        at = std::from_chars(at, line.data() + line.size(), value).ptr;
        sum += value;
      }
    }
    benchmark::DoNotOptimize(sums.data());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * study.bytes / 5);
}
BENCHMARK(OneFileFromChars)->Unit(benchmark::kMillisecond);

// From one day to five years of hours: the cost of one value must stay flat.
void CostOfAValue(benchmark::State& state) {
  StudySize size;
  size.hours = static_cast<std::size_t>(state.range(0));
  size.receptors = static_cast<std::size_t>(state.range(1));
  size.groups = 2;
  const Made study = Make(size);
  for (auto _ : state) ReadFile(study.folder / ConcentrationName(0), size);
  const double values = static_cast<double>(size.hours) * static_cast<double>(size.receptors);
  state.counters["per_value"] = benchmark::Counter(
      values, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(CostOfAValue)
    ->ArgsProduct({{24, 720, 8760, 43800}, {25, 250}})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace korventally::bench
