#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace korventally {

/// Slots 1 to 50 hold source groups; slot 0 is never used.
inline constexpr std::size_t kGroupSlots = 51;
/// A case always has the all-sources and the facility group, and at most 48 OTHER groups.
inline constexpr std::int32_t kFixedGroups = 2;
inline constexpr std::int32_t kMostOtherGroups = 48;

/// The most characters of a text that a user can type, paths and names of files among them; of the
/// name of a group, of the run length, and of the parts of the start time.
inline constexpr int kLongestText = 132;
inline constexpr int kLongestGroupName = 13;
inline constexpr int kLongestRunLength = 6;
inline constexpr int kLongestYear = 4;
inline constexpr int kLongestTimePart = 2;

/// The texts of area class and standard, in the case and on the screen.
inline constexpr const char* kClassI = "Class I";
inline constexpr const char* kClassII = "Class II";
inline constexpr const char* kNaaqs = "NAAQS";
inline constexpr const char* kPsd = "PSD";

/// The values of the receptor file's format and of the rank 1 option.
inline constexpr const char* kGenericFormat = "1";
inline constexpr const char* kTolvrenFormat = "2";
inline constexpr const char* kRank1Excluded = "T";
inline constexpr const char* kRank1Included = "F";

/// The regulatory case being prepared. Every step of the wizard fills its part, the summary may
/// change some of it, the run reads it. Values are text as the user typed it, up to the control
/// file; of their form is said what can be typed, but anything can be pasted. Concentrations are in
/// ug/m**3.
struct AnalysisCase {
  std::string WorkDir;            ///< working directory, ends with "\"
  std::string AreaClass;          ///< "Class I" or "Class II"
  std::string Standard;           ///< "NAAQS" or "PSD"
  std::string Species;            ///< "SO2", "PM10" or "NOX"
  std::string AveragingHours;     ///< "3", "24", or for annual "8760" or "8784" (leap start year)
  std::string AmbientBackground;  ///< constant background in ug/m**3; "0" when none was given
  std::int32_t GroupCount = 0;    ///< source groups in use, 2 to 50; 0 before step 2
  std::array<std::string, kGroupSlots> GroupConcFiles;  ///< path of each group's concentrations
  std::array<std::string, kGroupSlots> GroupNames;      ///< name of each group, up to 13 characters
  std::string ReceptorFormat;  ///< "1" generic X,Y,ID file, "2" TOLVREN output ranked file
  std::string ReceptorFile;    ///< path of the receptor file
  std::string StartYear;       ///< four digits
  std::string StartMonth;      ///< two digits, as are day and hour
  std::string StartDay;
  std::string StartHour;
  std::string RunLength;      ///< hours, up to 6 digits
  std::string Rank1Flag;      ///< "T": each receptor's highest value is left out, "F": it counts
  std::string ListFile;       ///< name of the engine's list file in `WorkDir`, exactly as typed
  std::string StandardLimit;  ///< NAAQS standard or PSD increment, ug/m**3
  std::string SilLimit;       ///< significant impact level, ug/m**3
  std::string openedFrom;     ///< full path of the control file last opened, which is the user's
  bool DebugMode = false;     ///< keeps the run's files and shows the engine's console
};

/// The one case of the process.
namespace basModule {
extern AnalysisCase analysisCase;
}

/// Prepares the case when the program starts: the default names of all groups. Returns the default
/// working directory from `Movrix.cfg` in the installation directory, or the empty text when the
/// file is missing, unreadable or names none.
std::string initialiseCase();

/// Empties the tables of the groups, but for the default names of all slots.
void nameGroups(AnalysisCase& theCase);

/// The default name of the OTHER group in a slot from 3 to 50: slot 3 is OTHER_1.
std::string defaultOtherName(std::int32_t slot);

}  // namespace korventally
