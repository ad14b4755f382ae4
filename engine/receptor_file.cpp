#include "engine/receptor_file.h"

#include <cmath>
#include <map>
#include <optional>
#include <string_view>

#include "engine/fault.h"
#include "engine/fields.h"
#include "engine/line_reader.h"
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

  Receptors Finish() {
    for (std::string_view line; reader_.Next(line);) {
      if (!reader_.complete()) Fail("has no line end; the file may be cut short");
      if (line.starts_with('#') && result_.list.empty()) continue;
      AddLine(line);
    }
    if (result_.list.empty()) throw Fault("The file " + file_.name() + " holds no receptor.");
    result_.bytes = file_.size();
    result_.lines = reader_.line_number();
    return std::move(result_);
  }

 private:
  [[noreturn]] void Fail(const std::string& what) const {
    throw Fault(file_.Named(reader_.line_number()) + " " + what + ".");
  }

  void AddLine(std::string_view line) {
    const std::vector<std::string_view> fields = Split(line);
    const std::size_t expected = ranked_ ? 5 : 3;
    if (fields.size() != expected) {
      Fail("holds " + Counted(fields.size(), "field") + " instead of " + std::to_string(expected) +
           (ranked_ ? ": rank, value, X, Y, ID" : ": X, Y, ID"));
    }
    if (ranked_) CheckRank(fields[0], fields[1]);
    const std::size_t place = expected - 3;
    Add({Coordinate("X", fields[place]), Coordinate("Y", fields[place + 1]),
         std::string(fields[place + 2])});
  }

  static std::vector<std::string_view> Split(std::string_view line) {
    Fields fields(line);
    std::vector<std::string_view> parts;
    for (std::string_view field; fields.Next(field);) parts.push_back(field);
    return parts;
  }

  void CheckRank(std::string_view rank, std::string_view value) const {
    if (ParseWhole(rank).value_or(0) < 1) {
      Fail("gives the rank as " + Quoted(rank) + "; it must be a whole number from 1 on");
    }
    if (!ParseDecimal(value)) Fail("gives the value as " + Quoted(value) + ", which is no number");
  }

  double Coordinate(std::string_view what, std::string_view field) const {
    const std::optional<double> number = ParseDecimal(field);
    if (!number || std::abs(*number) > kFarthest) {
      Fail("gives " + std::string(what) + " as " + Quoted(field) + ", which is no coordinate");
    }
    return *number;
  }

  void Add(const Receptor& receptor) {
    if (receptor.id.empty() || receptor.id.size() > kLongestId) {
      Fail("gives the ID " + Quoted(receptor.id) + "; it must have 1 to " +
           std::to_string(kLongestId) + " characters");
    }
    const auto [found, is_new] = places_.try_emplace(receptor.id, result_.list.size());
    if (is_new) {
      result_.list.push_back(receptor);
      return;
    }
    if (!ranked_) Fail("repeats the receptor " + Quoted(receptor.id));
    const Receptor& first = result_.list[found->second];
    if (first.x != receptor.x || first.y != receptor.y) {
      Fail("puts the receptor " + Quoted(receptor.id) + " at another place than before");
    }
  }

  InputFile& file_;
  LineReader reader_;
  const bool ranked_;
  std::map<std::string, std::size_t> places_;
  Receptors result_;
};

}  // namespace

Receptors ReadReceptors(InputFile& file, int format) { return Reading(file, format).Finish(); }

}  // namespace korventally::engine
