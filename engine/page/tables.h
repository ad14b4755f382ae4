// The tables of the list file, with its figures.
#pragma once

#include <cstddef>

#include "engine/page/results.h"
#include "engine/side_file.h"

namespace korventally::engine {

/// Rows of a table that has one for each receptor, or one for each and every year; the list file
/// has them all.
inline constexpr std::size_t kMostTableRows = 5000;

void writeTables(const Results& results, SideFile& file);

}  // namespace korventally::engine
