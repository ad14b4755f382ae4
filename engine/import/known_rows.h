// What every row of a receptor has in common in a formatted file: its place, heights and network.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "engine/import/row_layout.h"

namespace korventally::engine {

/// Whether two texts of this size, at least eight bytes, are the same; the last eight may overlap
/// those before.
inline bool isEqual(const char* one, const char* other, std::size_t size) {
  std::uint64_t difference = 0, first, second;
  const auto compare = [&](std::size_t place) {
    std::memcpy(&first, one + place, sizeof first);
    std::memcpy(&second, other + place, sizeof second);
    difference |= first ^ second;
  };
  for (std::size_t place = 0; place + sizeof first < size; place += sizeof first) compare(place);
  compare(size - sizeof first);
  return difference == 0;
}

/// The rows of the first hour; memory: a row per receptor.
class KnownRows {
 public:
  void learn(std::string_view row) { rows_.emplace_back(row); }

  /// The bytes of every row, as long as none was stripped of its trailing blanks.
  std::size_t rowSize() const { return rows_.front().size(); }

  /// Whether this row is of that receptor.
  bool isAt(std::string_view row, std::size_t receptor, const RowLayout& layout) const {
    const std::string& known = rows_[receptor];
    const std::string_view heights = layout.heights(known);
    return isEqual(known.data(), row.data(), RowLayout::kPlace) &&
           isEqual(heights.data(), layout.heights(row).data(), heights.size()) &&
           isSameNetwork(layout.network(row), layout.network(known));
  }

 private:
  static bool isSameNetwork(std::string_view one, std::string_view other) {
    constexpr std::size_t kWhole = 10;
    if (one.size() == kWhole && other.size() == kWhole) {
      return isEqual(one.data(), other.data(), kWhole);
    }
    return withoutBlanks(one) == withoutBlanks(other);
  }

  std::vector<std::string> rows_;
};

}  // namespace korventally::engine
