#include "engine/model_file.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "engine/fields.h"
#include "engine/import/row_layout.h"

namespace korventally::engine {
namespace {

// Of four bytes, the least significant first.
std::uint32_t numberAt(std::string_view bytes, std::size_t place) {
  std::uint32_t number = 0;
  for (std::size_t i = 4; i-- > 0;) {
    number = number << 8 | static_cast<unsigned char>(bytes[place + i]);
  }
  return number;
}

bool isDate(std::uint32_t yymmddhh) {
  const std::uint32_t hour = yymmddhh % 100, day = yymmddhh / 100 % 100;
  const std::uint32_t month = yymmddhh / 10000 % 100;
  return yymmddhh < 100000000 && hour >= 1 && hour <= 24 && day >= 1 && day <= 31 && month >= 1 &&
         month <= 12;
}

bool isHeader(std::string_view bytes) {
  if (!bytes.starts_with('*')) return false;
  const std::string_view top = bytes.substr(0, 4096);
  return top.find("SOURCE GROUP") != top.npos || top.find("MODELING OPTIONS") != top.npos;
}

// X, Y, values and heights, then the average ("1-HR"), the group, the date. A remark may have any
// words, such as the name of a group.
bool isRow(std::string_view line) {
  if (line.starts_with('#')) return false;
  constexpr std::size_t kFieldsBefore = 4, kFieldsBehind = 2;
  Fields fields(line);
  std::vector<bool> averages;
  for (std::string_view field; fields.next(field);) averages.push_back(isModelAverage(field));
  if (averages.size() < kFieldsBefore + 1 + kFieldsBehind) return false;
  return std::find(averages.begin() + kFieldsBefore, averages.end() - kFieldsBehind, true) !=
         averages.end() - kFieldsBehind;
}

}  // namespace

// A record: its length, a date, the hours of the average, a name of eight characters, numbers of
// eight bytes, its length again.
bool isUnformattedModelFile(std::string_view bytes) {
  constexpr std::size_t kHead = 16;
  if (bytes.size() < 4 + kHead) return false;
  const std::size_t length = numberAt(bytes, 0);
  if (length <= kHead || length % 8 != 0 || !isDate(numberAt(bytes, 4))) return false;
  const std::size_t second = 4 + length;
  return second + 4 > bytes.size() || numberAt(bytes, second) == length;
}

std::string objectionToModelFile(const std::string& name, std::string_view beginning) {
  const bool unformatted = isUnformattedModelFile(beginning);
  const std::string_view line = beginning.substr(0, beginning.find_first_of("\r\n"));
  if (!unformatted && !isHeader(beginning) && !isRow(line.substr(0, 1000))) return {};
  return "The file " + name + " is a dispersion model's own output, " +
         (unformatted ? "unformatted" : "formatted") +
         ". Make a case of the model's files first: korventally import.";
}

}  // namespace korventally::engine
