#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "case/ModUtilities.h"
#include "case/basModule.h"
#include "limits/limits.h"
#include "limits/species.h"
#include "platform/files.h"
#include "platform/result.h"
#include "run/control_file.h"
#include "run/control_file_layout.h"
#include "run/control_file_lines.h"

namespace korventally {
namespace {

using control_file::Lines;

/// Far more than fifty groups with the longest paths take: a file of any other kind and size costs
/// nothing.
constexpr std::size_t kMostBytes = std::size_t{256} * 1024;

constexpr std::int32_t kMostGroups = kFixedGroups + kMostOtherGroups;
/// Of a whole number that the engine reads, zeros in front among them.
constexpr std::size_t kMostDigits = 9;

Result<std::string> bytesOf(const std::string& path) {
  auto file = openForReading(path);
  if (!file) return file.error();
  std::string bytes;
  std::array<char, 16384> buffer;
  while (bytes.size() <= kMostBytes) {
    const auto count = file.value()->read(buffer);
    if (!count) return count.error();
    if (count.value() == 0) break;
    bytes.append(buffer.data(), count.value());
  }
  return bytes;
}

void readListFile(Lines& lines, const std::string& controlFile, AnalysisCase& into) {
  const std::string path = lines.next("list file");
  const std::size_t name = path.find_last_of("\\/") + 1;  // 0 without a folder
  const std::size_t ownName = controlFile.find_last_of("\\/") + 1;
  into.WorkDir = name == 0 ? controlFile.substr(0, ownName) : path.substr(0, name);
  into.ListFile = path.substr(name);
  if (characterCount(into.ListFile) > kLongestText) {
    lines.refuse("gives the list file's name as " + control_file::shown(into.ListFile) +
                 "; its box takes " + std::to_string(kLongestText) + " characters");
  }
}

/// The value up to the next comma, which it takes away with it.
std::string takePart(std::string& value) {
  const std::size_t comma = value.find(',');
  std::string part = value.substr(0, comma);
  value.erase(0, comma == std::string::npos ? comma : comma + 1);
  return part;
}

void readStart(Lines& lines, AnalysisCase& into) {
  const std::string start = lines.next("start time");
  std::string rest = start;
  bool fits = std::count(start.begin(), start.end(), ',') == 3;
  const struct {
    std::string& part;
    std::size_t most;
  } parts[] = {{into.StartYear, kLongestYear},
               {into.StartMonth, kLongestTimePart},
               {into.StartDay, kLongestTimePart},
               {into.StartHour, kLongestTimePart}};
  for (const auto& [part, most] : parts) {
    part = takePart(rest);
    fits = fits && characterCount(part) <= most;
  }
  if (fits) return;
  lines.refuse("gives the start time as " + control_file::shown(start) +
               "; it must be a year of four digits and month, day and hour of two, joined by "
               "commas");
}

std::int32_t readGroupCount(Lines& lines) {
  const std::string text = lines.next("number of source groups");
  std::int32_t count = 0;
  const char* const end = text.data() + text.size();
  const bool whole =
      text.size() <= kMostDigits && std::from_chars(text.data(), end, count).ptr == end;
  if (whole && count >= kFixedGroups && count <= kMostGroups) return count;
  lines.refuse("gives the number of source groups as " + control_file::shown(text) +
               "; it must be a whole number from 2 to 50");
  return kFixedGroups;
}

void requireWhole(Lines& lines, std::int32_t groups) {
  const std::size_t expected =
      control_file::kLinesBesidesGroups + 2 * static_cast<std::size_t>(groups);
  if (lines.count() != expected) {
    lines.refuseFile("The file has " + std::to_string(lines.count()) + " lines; with " +
                     std::to_string(groups) + " source groups (line 5) it must have " +
                     std::to_string(expected) + ".");
  }
  if (!lines.complete()) {
    lines.refuseFile("Line " + std::to_string(expected) +
                     " has no line end; the file may be cut short.");
  }
}

std::vector<std::string> speciesNames() {
  std::vector<std::string> names(kAllSpecies.size());
  std::transform(kAllSpecies.begin(), kAllSpecies.end(), names.begin(),
                 [](const Species* species) { return species->name; });
  return names;
}

void readValues(Lines& lines, const std::string& controlFile, AnalysisCase& into) {
  const auto readFixed = [&](const char* value) { lines.nextOneOf("fixed value", {value}); };
  readListFile(lines, controlFile, into);
  into.Species = lines.nextOneOf("species", speciesNames());
  readStart(lines, into);
  into.RunLength = lines.next("run length", kLongestRunLength);
  into.GroupCount = readGroupCount(lines);
  requireWhole(lines, into.GroupCount);
  for (std::size_t slot = 1; slot <= static_cast<std::size_t>(into.GroupCount); ++slot) {
    into.GroupConcFiles.at(slot) = lines.next("concentration file", kLongestText);
    into.GroupNames.at(slot) = lines.next("group name", kLongestGroupName);
  }
  readFixed(control_file::kScaleAndOffset);
  into.AmbientBackground = lines.next("ambient background", kLongestText);
  into.AveragingHours =
      lines.nextOneOf("averaging period in hours",
                      {kThreeHours.hours, kDay.hours, kAnnual.hours, kHoursOfLeapYear});
  into.StandardLimit = lines.next("standard or increment");
  into.ReceptorFormat = lines.nextOneOf("receptor file format", {kGenericFormat, kTolvrenFormat});
  into.ReceptorFile = lines.next("receptor file", kLongestText);
  readFixed(control_file::kFixedOne);
  into.SilLimit = lines.next("significant impact level");
  readFixed(control_file::kFixedTwo);
  into.Rank1Flag = lines.nextOneOf("rank 1 option", {kRank1Excluded, kRank1Included});
  readFixed(control_file::kFixedZero);
}

}  // namespace

Result<AnalysisCase> readControlFile(const std::string& path) {
  const std::string fullPath = absolutePath(path);
  const Result<std::string> bytes = bytesOf(fullPath);
  if (!bytes) return bytes.error();
  Lines lines(bytes.value());
  AnalysisCase read;
  nameGroups(read);
  read.openedFrom = fullPath;
  if (bytes.value().size() > kMostBytes) lines.refuseFile("The file is far too long for one.");
  if (bytes.value().empty()) lines.refuseFile("The file is empty.");
  readValues(lines, fullPath, read);
  if (!lines.fault().empty()) return Error{ErrorKind::kOther, 0, lines.fault(), fullPath};
  recogniseLimits(read);
  return read;
}

}  // namespace korventally
