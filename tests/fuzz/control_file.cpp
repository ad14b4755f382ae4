#include "run/control_file.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "engine/control_file.h"
#include "engine/fault.h"
#include "platform/files.h"
#include "platform/headless/desktop.h"
#include "tests/fuzz/targets.h"
#include "tests/fuzz/workshop.h"

namespace korventally::fuzz {
namespace {

/// Where a reader gave up: faults of the file as a whole are found behind line 5, the groups'
/// number.
constexpr int kWholeFile = 10 * 5 + 1;
constexpr int kNowhere = 1'000'000;

int placeOf(const std::string& fault) {
  if (fault.empty()) return kNowhere;
  if (fault == "The file is empty.") return 10;
  const bool ofLine = fault.starts_with("Line ") && !fault.ends_with(" may be cut short.");
  return ofLine ? 10 * std::atoi(fault.c_str() + 5) : kWholeFile;
}

bool isOneOf(const std::string& fault, const auto& kinds) {
  return std::any_of(kinds.begin(), kinds.end(),
                     [&](const char* kind) { return fault.find(kind) != fault.npos; });
}

/// What only the wizard asks: texts that fit its boxes, and choices that it offers.
constexpr std::array kOfWizard = {" gives the list file's name as ",
                                  " gives the species as ",
                                  " gives the start time as ",
                                  " gives the run length as ",
                                  " gives the concentration file as ",
                                  " gives the ambient background as ",
                                  " gives the averaging period in hours as ",
                                  " gives the receptor file as "};

/// What only the engine asks: that a text is there, and numbers. The wizard asks that at "NEXT" and
/// lets the user correct it.
constexpr std::array kOfEngine = {
    " gives no ",
    " gives the start as ",
    " gives the run length in hours as ",
    " gives the ambient background as ",
    " gives the averaging period in hours as ",
    " gives the standard or increment as ",
    " gives the significant impact level as ",
};

std::string ansi(const std::string& text) { return toAnsi(text).value(); }

void requireSameCase(const AnalysisCase& ours, const engine::Case& theirs) {
  const std::string listFile = ansi(ours.WorkDir + ours.ListFile);
  require(listFile.ends_with(theirs.listFile), "one list file");
  require(ours.Species == theirs.species, "one species");
  require(std::stoi(ours.RunLength) == theirs.runHours, "one run length");
  require(std::stoi(ours.AveragingHours) == theirs.averagingHours, "one averaging period");
  require(static_cast<std::size_t>(ours.GroupCount) == theirs.groups.size(), "as many groups");
  for (std::size_t i = 0; i < theirs.groups.size(); ++i) {
    require(ansi(ours.GroupNames[i + 1]) == theirs.groups[i].name, "one name of a group");
    require(ansi(ours.GroupConcFiles[i + 1]) == theirs.groups[i].file, "one file of a group");
  }
  require(ansi(ours.ReceptorFile) == theirs.receptorFile, "one receptor file");
  require((ours.ReceptorFormat == "2") == (theirs.receptorFormat == 2), "one receptor format");
  require((ours.Rank1Flag == "T") == theirs.excludeRank1, "one rank 1 option");
  require(ansi(ours.SilLimit) == theirs.silText && ansi(ours.StandardLimit) == theirs.standardText,
          "the same limits");
}

/// What the wizard would write of it, but for a list file that names no folder and for zeros in
/// front of the number of groups.
void requireWrittenAlike(const AnalysisCase& theCase, const engine::ControlText& text) {
  const std::vector<std::string> lines = controlFileLines(theCase);
  require(lines.size() == text.lines.size(), "as many lines as were read");
  for (std::size_t i = 1; i < lines.size(); ++i) {
    require(i == 4 || ansi(lines[i]) == text.lines[i], "each line comes back as it was read");
  }
}

/// A sound file but for some values: each line of `edits` is the number of one, from 0 on, and its
/// new value.
std::string edited(std::string_view edits) {
  std::istringstream sound(
      "C:\\S\\a.lst SO2 2009,1,2,3 8760 2 1.con ALL 2.con FACILITY 1000000.0,0.0 0 24 365.0 1 R 1 "
      "5.0 "
      "2 F 0");
  std::vector<std::string> values(std::istream_iterator<std::string>(sound), {});
  std::istringstream lines{std::string(edits)};
  for (std::string line; std::getline(lines, line);) {
    std::string_view value = line;
    const unsigned number = takeChoice(value, 20);
    values[number] = value;
  }
  std::string text;
  for (const std::string& value : values) text += std::string(29, ' ') + ":" + value + "\r\n";
  return text;
}

}  // namespace

void controlFile(std::string_view input) {
  const std::string bytes = takeChoice(input, 2) == 0 ? std::string(input) : edited(input);
  Desktop desktop;
  desktop.putFile("C:\\case.inp", bytes);
  const Result<AnalysisCase> ours = readControlFile("C:\\case.inp");
  const std::string ourFault = ours ? "" : ours.error().text;
  const auto path = fileWith(bytes);
  const engine::ControlText text = engine::readControlText(path);
  std::string theirFault;
  try {
    const engine::Case theirs = engine::parseControl(text);
    if (ours) requireSameCase(ours.value(), theirs);
    engine::refuseListFileAmongInputs(text, path);
  } catch (const engine::Fault& fault) {
    theirFault = fault.what();
  }
  if (ours) requireWrittenAlike(ours.value(), text);
  if (theirFault.starts_with("The list file ")) return;
  const int ourPlace = placeOf(ourFault), theirPlace = placeOf(theirFault);
  const std::string both = "\"" + ourFault + "\", \"" + theirFault + "\": ";
  require(ourPlace >= theirPlace || isOneOf(ourFault, kOfWizard), both + "the wizard alone minds");
  require(theirPlace >= ourPlace || isOneOf(theirFault, kOfEngine),
          both + "the engine alone minds");
}

}  // namespace korventally::fuzz
