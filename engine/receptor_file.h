// The receptor file: where the values of the concentration files belong.
//
// Format 1: a line per receptor with X, Y and ID. Format 2: a ranked list, a line per value with
// rank, value, X, Y and ID; a receptor may come up many times, its first appearance gives its
// place. Lines that begin with "#" at the top are a header.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/system_files.h"

namespace korventally::engine {

struct Receptor {
  double x = 0;
  double y = 0;
  std::string id;          ///< see isReceptorId()
  std::uint64_t line = 0;  ///< of its first appearance
};

/// Whether a text without blanks and commas can name a receptor, and what is asked of it.
bool isReceptorId(std::string_view text);
inline constexpr const char* kReceptorIdRule =
    "it must have 1 to 12 characters and no control character";

/// The coordinate that a text without blanks is, in metres; nothing when it is none.
std::optional<double> coordinateIn(std::string_view text);

/// A line of a ranked list: this receptor has this value, in ug/m**3 as far as the list tells.
struct RankedValue {
  double value = 0;
  std::size_t receptor = 0;  ///< its place in Receptors::list
  std::uint64_t line = 0;
};

struct Receptors {
  std::vector<Receptor> list;       ///< at least one, in the order of their first appearance
  std::vector<RankedValue> ranked;  ///< every line of a ranked list
  bool isRanked = false;
  std::string file;  ///< its name, for messages
  std::uint64_t bytes = 0;
  std::uint64_t lines = 0;
};

/// Throws Fault with file and line for anything else: a field too many, a repeated ID in format 1,
/// an ID at two places in format 2.
Receptors readReceptors(InputFile& file, int format);

}  // namespace korventally::engine
