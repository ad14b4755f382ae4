#include "tests/engine/model_files.h"

#include <cstddef>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace korventally::engine {
namespace {

std::ifstream open(const std::string& name) {
  std::ifstream file(std::string(KORVENTALLY_TEST_DATA) + "/" + name, std::ios::binary);
  if (!file) throw std::runtime_error("no test data " + name);
  return file;
}

// Of ten digits YYYYMMDDHH, hours 1 to 24.
Hour hourOf(long date) {
  return hourFromDate(date / 1000000, date / 10000 % 100, date / 100 % 100, date % 100).value();
}

// "2010 07 16 24": the name that the model gives the hour.
std::string nameOf(Hour hour) {
  std::string date = dateText(hour - 1);
  for (char& c : date) c = c == '-' ? ' ' : c;
  return date.substr(0, 11) + std::to_string(std::stoi(date.substr(11)) + 1);
}

}  // namespace

std::string readTestData(const std::string& name) {
  std::ifstream file = open(name);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<ModelRow> readModelRows(const std::string& name) {
  std::ifstream file = open(name);
  std::vector<ModelRow> rows;
  for (std::string line; std::getline(file, line);) {
    if (line.front() == '*') continue;
    std::istringstream fields(line);
    ModelRow row;
    std::string height, average, group;
    long date = 0;
    fields >> row.x >> row.y >> row.value >> height >> height >> height >> average >> group >> date;
    if (average != "PERIOD") row.hour = hourOf(2000000000 + date);
    rows.push_back(row);
  }
  return rows;
}

std::map<Hour, std::string> readMarks(const std::string& name) {
  std::ifstream file = open(name);
  std::map<Hour, std::string> marks;
  for (std::string line; std::getline(file, line);) {
    const bool calm = line.find(" I440 ") != line.npos;
    if (!calm && line.find(" I460 ") == line.npos) continue;
    marks[hourOf(std::stol(line.substr(line.find_last_of(' '))))] = calm ? "calm" : "missing";
  }
  return marks;
}

std::string concentrationText(const std::vector<ModelRow>& rows,
                              const std::map<Hour, std::string>& marks) {
  std::string text;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const bool begins = i == 0 || rows[i].hour != rows[i - 1].hour;
    const auto mark = marks.find(rows[i].hour);
    if (begins) text += (i == 0 ? "" : "\n") + nameOf(rows[i].hour);
    if (begins && mark != marks.end()) text += " " + mark->second;
    // The very digits, in g/m**3.
    if (mark == marks.end()) text += " " + rows[i].value + "E-06";
  }
  return text + "\n";
}

std::string receptorText(const std::vector<ModelRow>& rows) {
  std::string text;
  for (std::size_t i = 0; i < rows.size() && rows[i].hour == rows.front().hour; ++i) {
    text += rows[i].x + " " + rows[i].y + " R" + std::to_string(i + 1) + "\n";
  }
  return text;
}

}  // namespace korventally::engine
