#include "engine/column_sums.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>
#include <vector>

#include "engine/blocks.h"
#include "engine/calendar.h"

namespace korventally::engine {
namespace {

bool areInOrder(const std::vector<std::size_t>& columnOf, std::size_t columns) {
  for (std::size_t i = 0; i < columnOf.size(); ++i) {
    if (columnOf[i] != i) return false;
  }
  return columnOf.size() == columns;
}

}  // namespace

ColumnSums::ColumnSums(const Blocks& blocks, std::size_t columns, std::vector<std::size_t> columnOf)
    : blocks_(blocks),
      columnOf_(areInOrder(columnOf, columns) ? std::vector<std::size_t>() : std::move(columnOf)),
      receptors_(columnOf_.empty() ? columns : columnOf_.size()),
      sums_(static_cast<std::size_t>(blocks.count) * receptors_),
      outside_(columns),
      row_(columnOf_.empty() ? 0 : columns) {}

std::span<double> ColumnSums::of(Hour hour) {
  if (hour < blocks_.start || hour >= blocks_.end()) return outside_;
  const auto block = static_cast<std::size_t>((hour - blocks_.start) / blocks_.hours);
  if (columnOf_.empty()) return std::span(sums_).subspan(block * receptors_, receptors_);
  if (block != block_) bringHome();
  block_ = block;
  return row_;
}

void ColumnSums::bringHome() {
  for (std::size_t i = 0; i < columnOf_.size(); ++i) {
    sums_[block_ * receptors_ + i] += row_[columnOf_[i]];
  }
  std::ranges::fill(row_, 0);
}

std::vector<double> ColumnSums::take() {
  bringHome();
  return std::move(sums_);
}

}  // namespace korventally::engine
