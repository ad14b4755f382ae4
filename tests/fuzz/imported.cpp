#include "tests/fuzz/imported.h"

#include <cmath>
#include <fstream>

#include "engine/concentration_file.h"
#include "engine/control_file.h"
#include "engine/fault.h"
#include "engine/import/import.h"
#include "engine/receptor_file.h"
#include "platform/headless/desktop.h"
#include "run/control_file.h"
#include "tests/fuzz/workshop.h"

namespace korventally::fuzz {
namespace {

namespace fs = std::filesystem;
using engine::Hour;

/// The first hour of a concentration file, and how many there are.
engine::Blocks hoursOf(const fs::path& path) {
  std::ifstream file(path);
  engine::Blocks all{0, 0, 1, 0, false, engine::HourCount::kUnknown};
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with('#') || all.hours++ > 0) continue;
    all.start = *engine::hourFromDate(std::stoi(line), std::stoi(line.substr(5)),
                                      std::stoi(line.substr(8)), std::stoi(line.substr(11)));
  }
  return all;
}

double sumOf(const fs::path& path, const engine::Receptors& receptors) {
  const engine::Blocks all = hoursOf(path);
  engine::InputFile file(path);
  double sum = 0;
  const auto read = engine::readConcentrations(file, all, receptors, true, [] { return false; });
  for (const double value : read.sums) sum += value;
  return sum;
}

void requireCase(const fs::path& path) {
  const engine::ControlText text = engine::readControlText(path);
  static_cast<void>(engine::parseControl(text));
  std::string bytes;
  for (const std::string& line : text.lines) bytes += line + "\r\n";
  Desktop desktop;
  desktop.putFile("C:\\case.inp", bytes);
  const Result<AnalysisCase> read = readControlFile("C:\\case.inp");
  require(static_cast<bool>(read), read ? "" : "the wizard opens the case: " + read.error().text);
}

double readResults(const fs::path& folder) {
  engine::InputFile receptorFile(folder / "receptors.dat");
  const engine::Receptors receptors = engine::readReceptors(receptorFile, 1);
  double sum = 0;
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() == ".con") sum += sumOf(entry.path(), receptors);
  }
  if (fs::exists(folder / "case.inp")) requireCase(folder / "case.inp");
  return sum;
}

}  // namespace

engine::ImportOptions chosenOptions(std::string_view& bytes) {
  const unsigned choice = takeChoice(bytes, 6);
  engine::ImportOptions options;
  options.unit = choice % 2 == 0 ? engine::ValueUnit::kMicrograms : engine::ValueUnit::kGrams;
  options.zeroHours = static_cast<engine::ZeroHours>(choice / 2);
  options.folder = workshop() / "out";
  options.files = {fileWith(bytes)};
  return options;
}

void requireImport(const engine::ImportOptions& options, double (*total)(std::string_view bytes),
                   std::string_view bytes) {
  const fs::path folder = options.folder.native();
  fs::remove_all(folder);
  try {
    static_cast<void>(engine::importModel(options, {}));
  } catch (const engine::Fault&) {
    require(!fs::exists(folder), "an import that fails leaves nothing behind");
    return;
  }
  double sum = 0;
  try {
    sum = readResults(folder);
  } catch (const engine::Fault& fault) {
    throw Broken(std::string("the engine reads what the import wrote: ") + fault.what());
  }
  if (options.unit == engine::ValueUnit::kMicrograms) sum *= 1e6;
  const double expected = total(bytes);
  require(std::abs(sum - expected) <= 1e-9 * expected + 1e-300,
          "all values arrive: " + std::to_string(sum) + ", not " + std::to_string(expected));
}

}  // namespace korventally::fuzz
