#include "engine/control_file.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "engine/fault.h"
#include "engine/line_reader.h"
#include "engine/text.h"

namespace korventally::engine {

namespace {

constexpr std::string_view kPrefix = "                             :";
constexpr std::size_t kLinesBesidesGroups = 16;
constexpr int kFewestGroups = 2;
constexpr int kMostGroups = 50;
constexpr std::size_t kLongestName = 13;
constexpr double kLargestConcentration = 1e15;  // ug/m**3; larger is no concentration

[[noreturn]] void FailAt(std::size_t line, const std::string& what) {
  throw Fault("Line " + std::to_string(line) + " of the control file " + what + ".");
}

// Hands out the values in order and remembers where it is for the messages.
class Values {
 public:
  explicit Values(const ControlText& text) : text_(text) {}

  std::size_t line() const { return line_; }

  std::string_view Next() {
    ++line_;
    if (line_ > text_.lines.size()) FailAt(line_, "is missing");
    const std::string_view whole = text_.lines[line_ - 1];
    if (!whole.starts_with(kPrefix)) FailAt(line_, "does not begin with 29 blanks and a colon");
    const auto is_control = [](char c) { return static_cast<unsigned char>(c) < 0x20; };
    if (std::ranges::any_of(whole, is_control)) FailAt(line_, "holds a control character");
    return whole.substr(kPrefix.size());
  }

  std::string NextText(std::string_view what) {
    const std::string_view value = Next();
    if (value.find_first_not_of(' ') == value.npos) FailAt(line_, "gives no " + std::string(what));
    return std::string(value);
  }

  std::int32_t NextWhole(std::string_view what, std::int32_t least, std::int32_t most) {
    const std::string_view value = Next();
    const std::optional<std::int32_t> number = ParseWhole(value);
    if (!number || *number < least || *number > most) {
      FailAt(line_, "gives the " + std::string(what) + " as " + Quoted(value) +
                        "; it must be a whole number from " + std::to_string(least) + " to " +
                        std::to_string(most));
    }
    return *number;
  }

  double NextConcentration(std::string_view what, bool zero_allowed) {
    const std::string_view value = Next();
    const std::optional<double> number = ParseDecimal(value);
    const bool fits = number && (*number > 0 || (zero_allowed && *number == 0));
    if (!fits || *number > kLargestConcentration) {
      FailAt(line_, "gives the " + std::string(what) + " as " + Quoted(value) +
                        "; it must be a number " + (zero_allowed ? "not below" : "above") + " 0" +
                        (number && *number > 0 ? " and at most 1e15" : ""));
    }
    return *number;
  }

  void NextFixed(std::string_view fixed) {
    const std::string_view value = Next();
    if (value != fixed) FailAt(line_, "is " + Quoted(value) + " instead of " + Quoted(fixed));
  }

  std::string_view NextOneOf(std::string_view what, std::string_view one, std::string_view other) {
    const std::string_view value = Next();
    if (value != one && value != other) {
      FailAt(line_, "gives the " + std::string(what) + " as " + Quoted(value) + "; it must be " +
                        Quoted(one) + " or " + Quoted(other));
    }
    return value;
  }

 private:
  const ControlText& text_;
  std::size_t line_ = 0;
};

Hour ParseStart(std::string_view value, std::size_t line) {
  std::int64_t parts[4] = {};
  std::string_view rest = value;
  for (int i = 0; i < 4; ++i) {
    const std::size_t comma = i < 3 ? rest.find(',') : rest.size();
    const std::optional<std::int32_t> part = ParseWhole(rest.substr(0, comma));
    if (comma == rest.npos || !part) {
      FailAt(line, "gives the start as " + Quoted(value) +
                       "; it must be year, month, day and hour joined by commas");
    }
    parts[i] = *part;
    rest.remove_prefix(std::min(comma + 1, rest.size()));
  }
  const std::optional<Hour> start = HourFromDate(parts[0], parts[1], parts[2], parts[3]);
  if (!start) FailAt(line, "gives the start as " + Quoted(value) + "; there is no such hour");
  return *start;
}

SourceGroup NextGroup(Values& values) {
  SourceGroup group;
  group.file = values.NextText("concentration file");
  group.file_line = values.line();
  group.name = values.NextText("group name");
  if (group.name.size() > kLongestName) {
    FailAt(values.line(), "gives the group name " + Quoted(group.name) + "; it may have " +
                              std::to_string(kLongestName) + " characters");
  }
  return group;
}

void RequireLineCount(const ControlText& text, std::size_t groups) {
  const std::size_t expected = kLinesBesidesGroups + 2 * groups;
  if (text.lines.size() != expected) {
    throw Fault("The control file has " + Counted(text.lines.size(), "line") + "; with " +
                std::to_string(groups) + " source groups (line 5) it must have " +
                std::to_string(expected) + ".");
  }
  if (!text.complete) FailAt(expected, "has no line end; the file may be cut short");
}

}  // namespace

ControlText ReadControlText(const NativePath& path) {
  // Far more than the 116 lines of the largest case: beyond it the file is something else.
  constexpr std::size_t kMostLines = 1000;
  InputFile file(path);
  LineReader reader(file, 65536);
  ControlText text;
  // The rest of such a file is left unread; its number of lines is a fault of the case.
  for (std::string_view line; text.lines.size() <= kMostLines && reader.Next(line);) {
    text.lines.emplace_back(line);
  }
  text.complete = reader.complete();
  return text;
}

std::string ListFileOf(const ControlText& text) {
  if (text.lines.empty()) throw Fault("The control file is empty.");
  if (text.lines.size() == 1 && !text.complete) FailAt(1, "has no line end");
  return Values(text).NextText("list file");
}

Case ParseControl(const ControlText& text) {
  Case the_case;
  Values values(text);
  the_case.list_file = values.NextText("list file");
  the_case.species = values.NextText("species");
  const std::string_view start = values.Next();
  the_case.start = ParseStart(start, values.line());
  the_case.run_hours = values.NextWhole("run length in hours", 1, 999999);
  const int groups = values.NextWhole("number of source groups", kFewestGroups, kMostGroups);
  RequireLineCount(text, static_cast<std::size_t>(groups));
  for (int i = 0; i < groups; ++i) the_case.groups.push_back(NextGroup(values));
  values.NextFixed("1000000.0,0.0");
  the_case.scale = 1000000.0;
  the_case.offset = 0.0;
  the_case.background = values.NextConcentration("ambient background", true);
  the_case.averaging_hours = values.NextWhole("averaging period in hours", 1, 8784);
  the_case.standard = values.NextConcentration("standard or increment", false);
  the_case.receptor_format = values.NextOneOf("receptor file format", "1", "2") == "1" ? 1 : 2;
  the_case.receptor_file = values.NextText("receptor file");
  the_case.receptor_line = values.line();
  values.NextFixed("1");
  the_case.sil = values.NextConcentration("significant impact level", false);
  values.NextFixed("2");
  the_case.exclude_rank1 = values.NextOneOf("rank 1 option", "T", "F") == "T";
  values.NextFixed("0");
  return the_case;
}

namespace {

// Whether a line, counted from 1, may name a file. In a sound case these are known; in any other
// every line may turn out to be a path, so every one of them counts.
bool MayNameAFile(const ControlText& text, std::size_t line) {
  constexpr std::size_t kGroupsLine = 5;
  const std::size_t lines = text.lines.size();
  if (lines < 16 + 2 * kFewestGroups || !text.lines[kGroupsLine - 1].starts_with(kPrefix))
    return true;
  const auto groups =
      ParseWhole(std::string_view(text.lines[kGroupsLine - 1]).substr(kPrefix.size()));
  if (!groups || *groups < kFewestGroups || lines != 16 + 2 * static_cast<std::size_t>(*groups)) {
    return true;
  }
  const std::size_t past = kGroupsLine + 2 * static_cast<std::size_t>(*groups);
  const bool concentrations = line > kGroupsLine && line <= past && line % 2 == 0;
  return concentrations || line == past + 6;
}

}  // namespace

void RefuseListFileAmongInputs(const ControlText& text, const NativePath& control_file) {
  const std::string list_text = ListFileOf(text);
  const NativePath list_file = PathFromText(list_text);
  const auto refuse = [&](const std::string& what) {
    throw Fault("The list file " + list_text + " is also " + what + "; it was left as it is.");
  };
  if (SameFile(list_file, control_file)) refuse("the control file");
  for (std::size_t i = 1; i < text.lines.size(); ++i) {
    if (!MayNameAFile(text, i + 1)) continue;
    const std::string_view line = text.lines[i];
    const std::size_t colon = line.find(':');
    const std::string_view value = colon == line.npos ? line : line.substr(colon + 1);
    if (value.empty() || value.find('\0') != value.npos) continue;
    if (value == list_text || SameFile(list_file, PathFromText(value))) {
      refuse("named in line " + std::to_string(i + 1) + " of the control file");
    }
  }
}

}  // namespace korventally::engine
