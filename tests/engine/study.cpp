#include "tests/engine/study.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>

#include "engine/calendar.h"

namespace korventally::engine {
namespace {

std::filesystem::path freshFolder() {
  static std::random_device device;
  const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
  const std::string name = std::string(test->name()).substr(0, 40);
  const auto base = std::filesystem::temp_directory_path();
  for (;;) {
    std::string leaf = "korventally " + name + " " + std::to_string(device());
    for (char& c : leaf) c = c == '/' ? '_' : c;
    if (std::filesystem::create_directory(base / leaf)) return base / leaf;
  }
}

std::string concentrationName(std::size_t group) {
  return group == 0 ? "all.con" : "group_" + std::to_string(group + 1) + ".con";
}

}  // namespace

Study::Study(std::size_t groups) : folder_(freshFolder()), groups_(groups) {
  control = {text("out.lst"), "SO2", "2009,01,01,00", "6", std::to_string(groups)};
  for (std::size_t i = 0; i < groups; ++i) {
    const std::string name = concentrationName(i);
    const std::string value = i == 0 ? "1.00000E-05" : "2.00000E-06";
    writeHours(name, std::vector<std::string>(6, value + " " + value));
    control.push_back(text(name));
    control.push_back(i == 0   ? "ALL_SOURCES"
                      : i == 1 ? "FACILITY"
                               : "OTHER_" + std::to_string(i - 1));
  }
  for (const char* value : {"1000000.0,0.0", "0", "3", "8.0", "1"}) control.emplace_back(value);
  control.push_back(text("receptors.dat"));
  for (const char* value : {"1", "1.0", "2", "F", "0"}) control.emplace_back(value);
  write("receptors.dat", "# X Y ID\n100.0 200.0 A\n300.5 -400 B\n");
}

Study::~Study() {
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

std::string Study::text(std::string_view name) const { return textFromPath(path(name)); }

void Study::write(std::string_view name, std::string_view bytes) const {
  std::ofstream(path(name), std::ios::binary) << bytes;
}

std::string Study::read(std::string_view name) const {
  std::ifstream file(path(name), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void Study::writeHours(std::string_view name, const std::vector<std::string>& hours) const {
  std::string text = "# hourly values\n";
  const Hour start = *hourFromDate(2009, 1, 1, 0);
  for (std::size_t i = 0; i < hours.size(); ++i) {
    std::string date = dateText(start + static_cast<Hour>(i));
    for (char& c : date) c = c == '-' ? ' ' : c;
    text += date + " " + hours[i] + "\n";
  }
  write(name, text);
}

void Study::writeControl() const {
  std::string text;
  for (const std::string& value : control) text += prefix + value + lineEnd;
  write("korventally.inp", text);
}

Result Study::run() const {
  writeControl();
  return korventally::engine::runCase(path("korventally.inp"));
}

std::vector<std::string> Study::list() const {
  std::istringstream text(read("out.lst"));
  std::vector<std::string> lines;
  for (std::string line; std::getline(text, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

std::string Study::lastLine() const {
  const std::vector<std::string> lines = list();
  return lines.empty() ? "" : lines.back();
}

namespace {

// Values in ug/m**3 that the files give in g/m**3.
std::string micro(const std::vector<double>& values) {
  std::string row;
  for (const double value : values) {
    char text[32];
    std::snprintf(text, sizeof text, "%.9E ", value * 1e-6);
    row += text;
  }
  return row;
}

}  // namespace

void writeMicro(const Study& study, const std::string& name,
                const std::vector<std::vector<double>>& hours) {
  std::vector<std::string> rows;
  for (const auto& hour : hours) rows.push_back(micro(hour));
  study.writeHours(name, rows);
}

std::string completedList(const Study& study) {
  const Result result = study.run();
  EXPECT_EQ(result.sentence, "");
  EXPECT_EQ(study.lastLine(), "RUN COMPLETED");
  return study.read("out.lst");
}

std::string warningsIn(const std::string& list) {
  const std::size_t begin = list.find("WARNINGS\r\n") + 10;
  std::string text;
  for (const char c : list.substr(begin, list.find("\r\n\r\n", begin) - begin)) {
    const bool blank = c == ' ' || c == '\r' || c == '\n';
    if (!blank || (!text.empty() && text.back() != ' ')) text += blank ? ' ' : c;
  }
  return text;
}

void expectSays(const std::string& list, const std::vector<std::string>& texts) {
  for (const std::string& text : texts) EXPECT_NE(list.find(text), list.npos) << text << list;
}

void expectSilent(const std::string& list, const std::string& text) {
  EXPECT_EQ(list.find(text), list.npos) << list;
}

}  // namespace korventally::engine
