#include "bench/make_study.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "engine/calendar.h"

namespace korventally::bench {

namespace {

const engine::Hour kStart = *engine::hourFromDate(2009, 1, 1, 0);

// "2009 01 31 07", as concentration files give a date.
std::string dateFields(engine::Hour hour) {
  std::string text = engine::dateText(hour);
  for (char& c : text) c = c == '-' ? ' ' : c;
  return text;
}

void addValue(std::string& line, double value) {
  char text[32];
  const auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::scientific, 5);
  line += ' ';
  for (const char* c = text; c != end.ptr; ++c) line += *c == 'e' ? 'E' : *c;
}

// Values spread over the decades as plumes spread them; a tenth are zero (upwind).
void writeGroup(const std::filesystem::path& path, const StudySize& size, std::size_t group) {
  std::ofstream out(path, std::ios::binary);
  std::minstd_rand random(static_cast<unsigned>(group + 1));
  std::vector<double> decades;
  for (int i = 0; i < 7; ++i) decades.push_back(i == 6 ? 0.0 : 1e-4 / std::pow(10.0, i));
  std::string line = "# hourly concentrations in g/m**3\n# receptors:";
  for (std::size_t i = 0; i < size.receptors; ++i) line += " R" + std::to_string(i + 1);
  line += '\n';
  for (std::size_t hour = 0; hour < size.hours; ++hour) {
    line += dateFields(kStart + static_cast<engine::Hour>(hour));
    for (std::size_t i = 0; i < size.receptors; ++i) {
      const auto draw = random();
      const double all = group == 0 ? static_cast<double>(size.groups) : 1.0;
      addValue(line, all * decades[draw % 7] * static_cast<double>(draw % 10000) * 1e-4);
    }
    out << line << '\n';
    line.clear();
  }
  if (!out.flush()) throw std::runtime_error("cannot write " + path.string());
}

void writeReceptors(const std::filesystem::path& path, std::size_t receptors) {
  std::ofstream out(path, std::ios::binary);
  for (std::size_t i = 0; i < receptors; ++i) {
    out << 100.0 * static_cast<double>(i % 100) << ' ' << 100.0 * static_cast<double>(i / 100)
        << " R" << i + 1 << '\n';
  }
}

void writeControl(const std::filesystem::path& folder, const StudySize& size) {
  std::ofstream out(folder / "korventally.inp", std::ios::binary);
  const auto line = [&](const std::string& value) {
    out << std::string(29, ' ') << ':' << value << "\r\n";
  };
  line((folder / "out.lst").string());
  for (const char* value : {"SO2", "2009,01,01,00"}) line(value);
  line(std::to_string(size.hours));
  line(std::to_string(size.groups));
  for (std::size_t group = 0; group < size.groups; ++group) {
    line((folder / concentrationName(group)).string());
    line(group == 0   ? "ALL_SOURCES"
         : group == 1 ? "FACILITY"
                      : "OTHER_" + std::to_string(group - 1));
  }
  for (const char* value : {"1000000.0,0.0", "0"}) line(value);
  line(std::to_string(size.averagingHours));
  for (const char* value : {"91.0", "1"}) line(value);
  line((folder / "receptors.dat").string());
  for (const char* value : {"1", "5.0", "2", "F", "0"}) line(value);
}

}  // namespace

std::string concentrationName(std::size_t group) {
  return group == 0 ? "all.con" : "group_" + std::to_string(group + 1) + ".con";
}

std::uintmax_t makeStudy(const std::filesystem::path& folder, const StudySize& size) {
  // The mark is written last: a study that was cut short is written again.
  const std::filesystem::path mark = folder / "complete";
  const bool there = std::filesystem::exists(mark);
  std::filesystem::create_directories(folder);
  std::uintmax_t bytes = 0;
  for (std::size_t group = 0; group < size.groups; ++group) {
    const std::filesystem::path path = folder / concentrationName(group);
    if (!there) writeGroup(path, size, group);
    bytes += std::filesystem::file_size(path);
  }
  writeReceptors(folder / "receptors.dat", size.receptors);
  writeControl(folder, size);
  std::ofstream(mark) << "all files above are whole\n";
  return bytes;
}

}  // namespace korventally::bench
