// How fast the engine reads: whole runs, one file in one thread, and the cost of a value in files
// of one day to five years. The concentration files are written once and stay, below
// KORVENTALLY_BENCH_DIR or, if that is not set, the folder for temporary files; the five of whole
// runs take 530 MB.
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

Made make(const StudySize& size) {
  const char* chosen = std::getenv("KORVENTALLY_BENCH_DIR");
  const auto base = chosen ? std::filesystem::path(chosen)
                           : std::filesystem::temp_directory_path() / "korventally_bench";
  const auto folder = base / (std::to_string(size.hours) + "x" + std::to_string(size.receptors) +
                              "x" + std::to_string(size.groups));
  return {folder, static_cast<std::int64_t>(makeStudy(folder, size))};
}

engine::Blocks daysOf(const StudySize& size) {
  const auto days = static_cast<std::int64_t>(size.hours / 24);
  return {*engine::hourFromDate(2009, 1, 1, 0), 24, days, 0, false, {}};
}

// A year of 1,000 receptors and 5 groups, from the control file to the verdict. The argument is
// the averaging period in hours. Bytes per second count the time that passes, not the time of each
// thread: the engine reads its files in as many threads as there are processors.
void wholeRun(benchmark::State& state) {
  StudySize size;
  size.averagingHours = static_cast<std::size_t>(state.range(0));
  const Made study = make(size);
  for (auto _ : state) {
    if (!engine::runCase(study.folder / "korventally.inp").sentence.empty()) {
      state.SkipWithError("the run failed");
    }
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * study.bytes);
}
BENCHMARK(wholeRun)->Arg(24)->Arg(3)->Arg(8760)->UseRealTime()->Unit(benchmark::kMillisecond);

void readFile(const std::filesystem::path& path, const StudySize& size) {
  engine::InputFile file(path);
  engine::Receptors receptors;
  receptors.list.resize(size.receptors);
  const auto sums =
      engine::readConcentrations(file, daysOf(size), receptors, true, [] { return false; });
  benchmark::DoNotOptimize(sums.sums.data());
}

// One file of that year, in one thread.
void oneFile(benchmark::State& state) {
  const StudySize size;
  const Made study = make(size);
  for (auto _ : state) readFile(study.folder / concentrationName(0), size);
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * study.bytes / 5);
}
BENCHMARK(oneFile)->Unit(benchmark::kMillisecond);

// The same file cut into lines only: what is spent before a value is looked at.
void oneFileLinesOnly(benchmark::State& state) {
  const StudySize size;
  const Made study = make(size);
  for (auto _ : state) {
    engine::InputFile file(study.folder / concentrationName(0));
    engine::LineReader reader(file, 1 << 20);
    for (std::string_view line; reader.next(line);) benchmark::DoNotOptimize(line.data());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * study.bytes / 5);
}
BENCHMARK(oneFileLinesOnly)->Unit(benchmark::kMillisecond);

// The same file with nothing but std::from_chars: what the engine's own ways of reading a value
// save.
void oneFileFromChars(benchmark::State& state) {
  const StudySize size;
  const Made study = make(size);
  for (auto _ : state) {
    engine::InputFile file(study.folder / concentrationName(0));
    engine::LineReader reader(file, 1 << 20);
    std::vector<double> sums(size.receptors + 4);
    for (std::string_view line; reader.next(line);) {
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
BENCHMARK(oneFileFromChars)->Unit(benchmark::kMillisecond);

// From one day to five years of hours: per_value, the time for one value, is to stay the same.
void costOfAValue(benchmark::State& state) {
  StudySize size;
  size.hours = static_cast<std::size_t>(state.range(0));
  size.receptors = static_cast<std::size_t>(state.range(1));
  size.groups = 2;
  const Made study = make(size);
  for (auto _ : state) readFile(study.folder / concentrationName(0), size);
  const double values = static_cast<double>(size.hours) * static_cast<double>(size.receptors);
  state.counters["per_value"] = benchmark::Counter(
      values, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(costOfAValue)
    ->ArgsProduct({{24, 720, 8760, 43800}, {25, 250}})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace korventally::bench
