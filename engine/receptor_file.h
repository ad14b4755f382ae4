// The receptor file: where the values of the concentration files belong.
//
// Format 1: a line per receptor with X, Y and ID. Format 2: a ranked list, a line per value with
// rank, value, X, Y and ID; a receptor may come up many times, its first appearance gives its
// place. Lines that begin with "#" at the top are a header.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "engine/system_files.h"

namespace korventally::engine {

struct Receptor {
  double x = 0;
  double y = 0;
  std::string id;  ///< 1 to 12 characters without blanks or commas
};

struct Receptors {
  std::vector<Receptor> list;  ///< at least one; in the order of the values of an hour
  std::uint64_t bytes = 0;
  std::uint64_t lines = 0;
};

/// Throws Fault with file and line for anything else: a field too many, a repeated ID in format 1,
/// an ID at two places in format 2.
Receptors readReceptors(InputFile& file, int format);

}  // namespace korventally::engine
