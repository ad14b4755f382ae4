#include "engine/control_file.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "engine/calendar.h"
#include "engine/fault.h"
#include "engine/line_reader.h"
#include "engine/system_files.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

constexpr std::string_view kPrefix = "                             :";
constexpr std::size_t kLinesBesidesGroups = 16;
constexpr int kFewestGroups = 2;
constexpr int kMostGroups = 50;
constexpr std::size_t kLongestName = 13;
constexpr double kLargestConcentration = 1e15;  // ug/m**3; larger is no concentration

[[noreturn]] void failAt(std::size_t line, const std::string& what) {
  throw Fault("Line " + std::to_string(line) + " of the control file " + what + ".");
}

// Hands out the values in order and remembers where it is for the messages.
class Values {
 public:
  explicit Values(const ControlText& text) : text_(text) {}

  std::size_t line() const { return line_; }

  std::string_view next() {
    ++line_;
    if (line_ > text_.lines.size()) failAt(line_, "is missing");
    const std::string_view whole = text_.lines[line_ - 1];
    if (!whole.starts_with(kPrefix)) failAt(line_, "does not begin with 29 blanks and a colon");
    if (hasControl(whole)) failAt(line_, "holds a control character");
    return whole.substr(kPrefix.size());
  }

  std::string nextText(std::string_view what) {
    const std::string_view value = next();
    if (value.find_first_not_of(' ') == value.npos) failAt(line_, "gives no " + std::string(what));
    return std::string(value);
  }

  std::int32_t nextWhole(std::string_view what, std::int32_t least, std::int32_t most) {
    const std::string_view value = next();
    const std::optional<std::int32_t> number = parseWhole(value);
    if (!number || *number < least || *number > most) {
      failAt(line_, "gives the " + std::string(what) + " as " + inQuotes(value) +
                        "; it must be a whole number from " + std::to_string(least) + " to " +
                        std::to_string(most));
    }
    return *number;
  }

  double nextConcentration(std::string_view what, bool zeroAllowed, std::string& text) {
    const std::string_view value = next();
    text = value;
    const std::optional<double> number = parseDecimal(value);
    const bool fits = number && (*number > 0 || (zeroAllowed && *number == 0));
    if (!fits || *number > kLargestConcentration) {
      failAt(line_, "gives the " + std::string(what) + " as " + inQuotes(value) +
                        "; it must be a number " + (zeroAllowed ? "not below" : "above") + " 0" +
                        (number && *number > 0 ? " and at most 1e15" : ""));
    }
    return *number;
  }

  void nextFixed(std::string_view fixed) {
    const std::string_view value = next();
    if (value != fixed) failAt(line_, "is " + inQuotes(value) + " instead of " + inQuotes(fixed));
  }

  std::string_view nextOneOf(std::string_view what, std::string_view one, std::string_view other) {
    const std::string_view value = next();
    if (value != one && value != other) {
      failAt(line_, "gives the " + std::string(what) + " as " + inQuotes(value) + "; it must be " +
                        inQuotes(one) + " or " + inQuotes(other));
    }
    return value;
  }

 private:
  const ControlText& text_;
  std::size_t line_ = 0;
};

void parseStart(std::string_view value, std::size_t line, Case& theCase) {
  std::int64_t parts[4] = {};
  std::string_view rest = value;
  for (int i = 0; i < 4; ++i) {
    const std::size_t comma = i < 3 ? rest.find(',') : rest.size();
    const std::optional<std::int32_t> part = parseWhole(rest.substr(0, comma));
    if (comma == rest.npos || !part) {
      failAt(line, "gives the start as " + inQuotes(value) +
                       "; it must be year, month, day and hour joined by commas");
    }
    parts[i] = *part;
    rest.remove_prefix(std::min(comma + 1, rest.size()));
  }
  const std::optional<Hour> start = hourFromDate(parts[0], parts[1], parts[2], parts[3]);
  if (parts[0] < kEarliestYear) {
    failAt(line, "gives the start as " + inQuotes(value) + "; the year must be " +
                     std::to_string(kEarliestYear) + " or later, in four digits");
  }
  if (!start) failAt(line, "gives the start as " + inQuotes(value) + "; there is no such hour");
  theCase.start = *start;
  if (parts[3] == 24) theCase.startCount = HourCount::kFrom1To24;
}

SourceGroup nextGroup(Values& values) {
  SourceGroup group;
  group.file = values.nextText("concentration file");
  group.fileLine = values.line();
  group.name = values.nextText("group name");
  if (group.name.size() > kLongestName) {
    failAt(values.line(), "gives the group name " + inQuotes(group.name) + "; it may have " +
                              std::to_string(kLongestName) + " characters");
  }
  return group;
}

void requireLineCount(const ControlText& text, std::size_t groups) {
  const std::size_t expected = kLinesBesidesGroups + 2 * groups;
  if (text.lines.size() != expected) {
    throw Fault("The control file has " + counted(text.lines.size(), "line") + "; with " +
                std::to_string(groups) + " source groups (line 5) it must have " +
                std::to_string(expected) + ".");
  }
  if (!text.complete) failAt(expected, "has no line end; the file may be cut short");
}

}  // namespace

ControlText readControlText(const NativePath& path) {
  // Far more than the 116 lines of the largest case: beyond it the file is something else.
  constexpr std::size_t kMostLines = 1000;
  InputFile file(path);
  LineReader reader(file, 65536);
  ControlText text;
  // The rest of such a file is left unread; its number of lines is a fault of the case.
  for (std::string_view line; text.lines.size() <= kMostLines && reader.next(line);) {
    text.lines.emplace_back(line);
  }
  text.complete = reader.complete();
  return text;
}

std::string listFileOf(const ControlText& text) {
  if (text.lines.empty()) throw Fault("The control file is empty.");
  if (text.lines.size() == 1 && !text.complete) failAt(1, "has no line end");
  return Values(text).nextText("list file");
}

Case parseControl(const ControlText& text) {
  Case theCase;
  Values values(text);
  theCase.listFile = values.nextText("list file");
  theCase.species = values.nextText("species");
  const std::string_view start = values.next();
  parseStart(start, values.line(), theCase);
  theCase.runHours = values.nextWhole("run length in hours", 1, 999999);
  const int groups = values.nextWhole("number of source groups", kFewestGroups, kMostGroups);
  requireLineCount(text, static_cast<std::size_t>(groups));
  for (int i = 0; i < groups; ++i) theCase.groups.push_back(nextGroup(values));
  values.nextFixed("1000000.0,0.0");
  theCase.scale = 1000000.0;
  theCase.offset = 0.0;
  theCase.background = values.nextConcentration("ambient background", true, theCase.backgroundText);
  theCase.averagingHours = values.nextWhole("averaging period in hours", 1, 8784);
  theCase.standard = values.nextConcentration("standard or increment", false, theCase.standardText);
  theCase.receptorFormat = values.nextOneOf("receptor file format", "1", "2") == "1" ? 1 : 2;
  theCase.receptorFile = values.nextText("receptor file");
  theCase.receptorLine = values.line();
  values.nextFixed("1");
  theCase.sil = values.nextConcentration("significant impact level", false, theCase.silText);
  values.nextFixed("2");
  theCase.excludeRank1 = values.nextOneOf("rank 1 option", "T", "F") == "T";
  values.nextFixed("0");
  return theCase;
}

namespace {

// Whether a line, counted from 1, may name a file. In a sound case these are known; in any other
// every line may turn out to be a path, so every one of them counts.
bool mayNameAFile(const ControlText& text, std::size_t line) {
  constexpr std::size_t kGroupsLine = 5;
  const std::size_t lines = text.lines.size();
  if (lines < 16 + 2 * kFewestGroups || !text.lines[kGroupsLine - 1].starts_with(kPrefix))
    return true;
  const auto groups =
      parseWhole(std::string_view(text.lines[kGroupsLine - 1]).substr(kPrefix.size()));
  if (!groups || *groups < kFewestGroups || lines != 16 + 2 * static_cast<std::size_t>(*groups)) {
    return true;
  }
  const std::size_t past = kGroupsLine + 2 * static_cast<std::size_t>(*groups);
  const bool concentrations = line > kGroupsLine && line <= past && line % 2 == 0;
  return concentrations || line == past + 6;
}

}  // namespace

std::string roleOf(const std::string& file, const ControlText& text,
                   const NativePath& controlFile) {
  const NativePath path = pathFromText(file);
  if (sameFile(path, controlFile)) return "the control file";
  for (std::size_t i = 1; i < text.lines.size(); ++i) {
    if (!mayNameAFile(text, i + 1)) continue;
    const std::string_view line = text.lines[i];
    const std::size_t colon = line.find(':');
    const std::string_view value = colon == line.npos ? line : line.substr(colon + 1);
    if (value.empty() || value.find('\0') != value.npos) continue;
    if (value == file || sameFile(path, pathFromText(value))) {
      return "named in line " + std::to_string(i + 1) + " of the control file";
    }
  }
  return {};
}

void refuseListFileAmongInputs(const ControlText& text, const NativePath& controlFile) {
  const std::string listFile = listFileOf(text);
  const std::string role = roleOf(listFile, text, controlFile);
  if (role.empty()) return;
  throw Fault("The list file " + listFile + " is also " + role + "; it was left as it is.");
}

}  // namespace korventally::engine
