#include "engine/concentration_file.h"

#include <sstream>
#include <string>
#include <vector>

#include "engine/fault.h"
#include "engine/line_reader.h"
#include "tests/fuzz/targets.h"
#include "tests/fuzz/workshop.h"

namespace korventally::fuzz {
namespace {

const engine::Hour kStart = *engine::hourFromDate(2009, 1, 1, 0);

/// R1, R2, ... as a receptor file lists them.
engine::Receptors receptorsNamed(unsigned count) {
  engine::Receptors receptors;
  for (unsigned i = 1; i <= count; ++i)
    receptors.list.push_back({0, 0, "R" + std::to_string(i), i});
  return receptors;
}

/// Lines of values get their dates here, which are hard to come by at random.
std::string dated(std::string_view values) {
  std::istringstream lines{std::string(values)};
  std::string text, line;
  for (engine::Hour hour = kStart; std::getline(lines, line); ++hour) {
    std::string date = engine::dateText(hour);
    for (char& c : date) c = c == '-' ? ' ' : c;
    text += date + line + "\n";
  }
  return text;
}

/// The sums of a file that is sound and names no receptors, number by number.
std::vector<double> plainSums(const std::string& text, const engine::Blocks& blocks,
                              std::size_t columns) {
  std::vector<double> sums(columns * static_cast<std::size_t>(blocks.count));
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with('#')) continue;
    for (char& c : line) c = c == ',' || c == '\r' ? ' ' : c;
    std::istringstream fields(line);
    std::int64_t year = 0, month = 0, day = 0, hour = 0;
    fields >> year >> month >> day >> hour;
    const engine::Hour at = *engine::hourFromDate(year, month, day, hour) - blocks.start;
    const bool inside = at >= 0 && at < blocks.hours * blocks.count;
    std::size_t place = inside ? static_cast<std::size_t>(at / blocks.hours) * columns : 0;
    for (std::string value; fields >> value && inside && value != "calm" && value != "missing";) {
      sums.at(place++) += numberIn(value);
    }
  }
  return sums;
}

}  // namespace

void concentrationFile(std::string_view bytes) {
  const unsigned count = takeChoice(bytes, 20) + 1;
  const bool isDated = takeChoice(bytes, 2) == 1, isLate = takeChoice(bytes, 10) == 9;
  const std::string text = isDated ? dated(bytes) : std::string(bytes);
  // Where the first block of bytes ends, lines are cut and put together again.
  const std::string remark = "#" + std::string(engine::LineReader::kBlock - 60, ' ') + "\n";
  const engine::Receptors receptors = receptorsNamed(count);
  const engine::Blocks blocks{kStart, 2, 1, 0, false, engine::HourCount::kUnknown};
  engine::InputFile file(fileWith((isLate ? remark : "") + text));
  try {
    const engine::GroupSums sums =
        engine::readConcentrations(file, blocks, receptors, true, [] { return false; });
    require(sums.last - sums.first + 1 == static_cast<engine::Hour>(sums.hours), "no gap");
    require(sums.kinds.size() == 2 && sums.sums.size() == count, "all averages");
    if (sums.namesReceptors) return;
    require(sums.sums == plainSums(text, blocks, count), "the very sums of plain arithmetic");
  } catch (const engine::Fault&) {
  }
}

}  // namespace korventally::fuzz
