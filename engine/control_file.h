// The control file: the case that the engine is asked to compute, one value a line.
//
// Every line is 29 blanks and a colon, then the value, then CR LF (LF alone is accepted). A case
// with G groups has 16 + 2 G lines. Nothing is guessed: a line more or less, a blank too many or a
// fixed value that differs is a Fault that names the line.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "engine/calendar.h"
#include "engine/system_files.h"

namespace korventally::engine {

struct SourceGroup {
  std::string name;  ///< 1 to 13 characters
  std::string file;  ///< bytes of the ANSI code page, as everything textual here
  std::size_t fileLine = 0;
};

struct Case {
  std::string listFile;
  std::string species;
  Hour start = 0;
  HourCount startCount =
      HourCount::kFrom0To23;        ///< as line 3 gives the start: "24" is from 1 to 24
  std::int64_t runHours = 0;        ///< 1 to 999,999
  std::vector<SourceGroup> groups;  ///< 2 to 50: all sources, the facility, the others
  double scale = 0;                 ///< from g/m**3 to ug/m**3
  double offset = 0;                ///< ug/m**3
  double background = 0;            ///< ug/m**3, for the first group only
  std::int64_t averagingHours = 0;
  double standard = 0;     ///< ug/m**3, above 0
  double sil = 0;          ///< ug/m**3, above 0
  int receptorFormat = 1;  ///< 1: X, Y, ID; 2: rank, value, X, Y, ID
  std::string receptorFile;
  std::size_t receptorLine = 0;
  bool excludeRank1 = false;
  std::string backgroundText, standardText, silText;  ///< those numbers as they were given
};

/// The lines of a control file as they stand there, without their line ends.
struct ControlText {
  std::vector<std::string> lines;
  bool complete = true;  ///< false when the last line has no line end
};

/// Throws Fault when the file cannot be read or is far too long for a control file.
ControlText readControlText(const NativePath& path);

/// The path of the list file, from line 1, so that the other faults can be told there.
std::string listFileOf(const ControlText& text);

/// The case, or Fault with the number of the first line at fault.
Case parseControl(const ControlText& text);

/// What this file, given as text, is to the case already: "the control file", "named in line 6 of
/// the control file", or nothing.
std::string roleOf(const std::string& file, const ControlText& text, const NativePath& controlFile);

/// Throws Fault when the list file is the control file or any file that the control file names:
/// creating the list file would empty it.
void refuseListFileAmongInputs(const ControlText& text, const NativePath& controlFile);

}  // namespace korventally::engine
