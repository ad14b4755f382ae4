#include "engine/column_names.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "engine/fault.h"
#include "engine/fields.h"
#include "engine/receptor_file.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

// In any case of letters: a line that was meant to name receptors must not be taken for a remark.
constexpr std::string_view kKey = "receptors:";

bool beginsWithKey(std::string_view text) {
  const auto alike = [](char one, char other) {
    return one == (other >= 'A' && other <= 'Z' ? other - 'A' + 'a' : other);
  };
  return text.size() >= kKey.size() && std::equal(kKey.begin(), kKey.end(), text.begin(), alike);
}

}  // namespace

std::string ColumnNames::take(std::string_view line) {
  line.remove_prefix(std::min(line.find_first_not_of("# \t"), line.size()));
  if (!beginsWithKey(line)) return {};
  Fields names(line.substr(kKey.size()));
  std::string_view name;
  if (!names.next(name)) return " names no receptor behind " + inQuotes(kKey);
  do {
    if (!isReceptorId(name))
      return " names the receptor " + inQuotes(name) + "; " + kReceptorIdRule;
    const bool isNew = columns_.try_emplace(std::string(name), columns_.size()).second;
    if (!isNew) return " names the receptor " + inQuotes(name) + " twice";
  } while (names.next(name));
  return {};
}

std::vector<std::size_t> ColumnNames::columnsOf(const Receptors& receptors,
                                                const std::string& file) const {
  std::vector<std::size_t> columns;
  columns.reserve(receptors.list.size());
  for (const Receptor& receptor : receptors.list) {
    const auto found = columns_.find(receptor.id);
    if (found == columns_.end()) {
      throw Fault("The file " + receptors.file + ", line " + std::to_string(receptor.line) +
                  " lists the receptor " + inQuotes(receptor.id) + ", which is not among the " +
                  counted(count(), "receptor") + " that the file " + file + " names.");
    }
    columns.push_back(found->second);
  }
  return columns;
}

}  // namespace korventally::engine
