#include "engine/import/row_layout.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace korventally::engine {
namespace {

constexpr std::array<std::string_view, 3> kLongAverages = {"MONTH", "PERIOD", "ANNUAL"};
constexpr std::size_t kHeight = 9;

bool isDate(std::string_view text) {
  return text.size() == 8 && text.find_first_not_of("0123456789") == text.npos;
}

bool isKey(std::string_view key) {
  return key.starts_with("  ") && isModelAverage(RowLayout::average(key)) &&
         isDate(RowLayout::date(key));
}

}  // namespace

std::optional<RowLayout> RowLayout::of(std::string_view row) {
  for (std::size_t values = 1; values <= 4; ++values) {
    for (const std::size_t heights : {1, 3}) {
      const std::size_t end = kPlace + kField * values + kHeight * heights;
      if (row.size() >= end + kKey && isKey(row.substr(end, kKey))) return RowLayout(values, end);
    }
  }
  return {};
}

std::string_view RowLayout::average(std::string_view key) {
  return withoutBlanks(key.substr(2, 6));
}

std::string_view RowLayout::group(std::string_view key) { return withoutBlanks(key.substr(10, 8)); }

std::string_view RowLayout::date(std::string_view key) { return withoutBlanks(key.substr(20, 8)); }

bool isModelAverage(std::string_view text) {
  return text.ends_with("-HR") || std::ranges::find(kLongAverages, text) != kLongAverages.end();
}

std::string_view withoutBlanks(std::string_view text) {
  const std::size_t begin = text.find_first_not_of(' ');
  if (begin == text.npos) return {};
  return text.substr(begin, text.find_last_not_of(' ') + 1 - begin);
}

}  // namespace korventally::engine
