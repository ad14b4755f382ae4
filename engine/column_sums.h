// Where the values of a line are added up: for each block and receptor.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "engine/blocks.h"
#include "engine/calendar.h"

namespace korventally::engine {

/// Columns in the order of the receptors are added up in place. Others are added up column by
/// column and brought to their receptors once a block: memory is one double per receptor and
/// block, and one per column, however many receptors the file has besides.
class ColumnSums {
 public:
  /// So many values in a line, and for each receptor the column with its value; an empty
  /// `columnOf` stands for columns that are the receptors one by one. `blocks` must outlive this.
  ColumnSums(const Blocks& blocks, std::size_t columns, std::vector<std::size_t> columnOf);

  std::size_t columns() const { return outside_.size(); }

  /// Where to add the values of this hour, one for each column; hours must follow each other. Those
  /// of an hour outside the blocks lead nowhere.
  std::span<double> of(Hour hour);

  /// The sums, [block][receptor]; to be called once, after the last hour.
  std::vector<double> take();

 private:
  void bringHome();

  const Blocks& blocks_;
  std::vector<std::size_t> columnOf_;
  std::size_t receptors_;
  std::vector<double> sums_;
  std::vector<double> outside_;  // of hours that belong to no block
  std::vector<double> row_;      // of the columns in `block_`, unless they are added up in place
  std::size_t block_ = 0;
};

}  // namespace korventally::engine
