#include "engine/receptor_file.h"

#include <cmath>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/fault.h"
#include "engine/fields.h"
#include "engine/line_reader.h"
#include "engine/model_file.h"
#include "engine/system_files.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

constexpr std::size_t kLongestLine = 4096;
constexpr std::size_t kLongestId = 12;
constexpr double kFarthest = 1e9;  // a coordinate beyond it is none

class Reading {
 public:
  Reading(InputFile& file, int format)
      : file_(file), reader_(file, kLongestLine), ranked_(format == 2) {}

  Receptors finish() {
    const std::string objection = objectionToModelFile(file_.name(), reader_.peek());
    if (!objection.empty()) throw Fault(objection);
    for (std::string_view line; reader_.next(line);) {
      if (!reader_.complete()) fail("has no line end; the file may be cut short");
      if (line.starts_with('#') && result_.list.empty()) continue;
      addLine(line);
    }
    if (result_.list.empty()) throw Fault("The file " + file_.name() + " holds no receptor.");
    result_.isRanked = ranked_;
    result_.file = file_.name();
    result_.bytes = file_.size();
    result_.lines = reader_.lineNumber();
    return std::move(result_);
  }

 private:
  [[noreturn]] void fail(const std::string& what) const {
    throw Fault(file_.named(reader_.lineNumber()) + " " + what + ".");
  }

  void addLine(std::string_view line) {
    const std::vector<std::string_view> fields = split(line);
    const std::size_t expected = ranked_ ? 5 : 3;
    if (fields.size() != expected) {
      fail("holds " + counted(fields.size(), "field") + " instead of " + std::to_string(expected) +
           (ranked_ ? ": rank, value, X, Y, ID" : ": X, Y, ID"));
    }
    if (ranked_) checkRank(fields[0], fields[1]);
    const std::size_t place = expected - 3;
    add({coordinate("X", fields[place]), coordinate("Y", fields[place + 1]),
         std::string(fields[place + 2]), reader_.lineNumber()});
    if (!ranked_) return;
    const std::size_t receptor = places_.at(std::string(fields[place + 2]));
    result_.ranked.push_back({*parseModelNumber(fields[1]), receptor, reader_.lineNumber()});
  }

  static std::vector<std::string_view> split(std::string_view line) {
    Fields fields(line);
    std::vector<std::string_view> parts;
    for (std::string_view field; fields.next(field);) parts.push_back(field);
    return parts;
  }

  void checkRank(std::string_view rank, std::string_view value) const {
    if (parseWhole(rank).value_or(0) < 1) {
      fail("gives the rank as " + inQuotes(rank) + "; it must be a whole number from 1 on");
    }
    if (!parseModelNumber(value))
      fail("gives the value as " + inQuotes(value) + ", which is no number");
  }

  double coordinate(std::string_view what, std::string_view field) const {
    const std::optional<double> number = coordinateIn(field);
    if (!number) {
      fail("gives " + std::string(what) + " as " + inQuotes(field) + ", which is no coordinate");
    }
    return *number;
  }

  void add(const Receptor& receptor) {
    if (!isReceptorId(receptor.id)) {
      fail("gives the ID " + inQuotes(receptor.id) + "; " + kReceptorIdRule);
    }
    const auto [found, is_new] = places_.try_emplace(receptor.id, result_.list.size());
    if (is_new) {
      result_.list.push_back(receptor);
      return;
    }
    if (!ranked_) fail("repeats the receptor " + inQuotes(receptor.id));
    const Receptor& first = result_.list[found->second];
    if (first.x != receptor.x || first.y != receptor.y) {
      fail("puts the receptor " + inQuotes(receptor.id) + " at another place than before");
    }
  }

  InputFile& file_;
  LineReader reader_;
  const bool ranked_;
  std::map<std::string, std::size_t> places_;
  Receptors result_;
};

}  // namespace

bool isReceptorId(std::string_view text) {
  return !text.empty() && text.size() <= kLongestId && !hasControl(text);
}

std::optional<double> coordinateIn(std::string_view text) {
  const std::optional<double> number = parseDecimal(text);
  return number && std::abs(*number) <= kFarthest ? number : std::nullopt;
}

Receptors readReceptors(InputFile& file, int format) { return Reading(file, format).finish(); }

}  // namespace korventally::engine
