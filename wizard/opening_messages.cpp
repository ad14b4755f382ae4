#include "wizard/opening_messages.h"

#include <string>
#include <vector>

#include "case/basModule.h"
#include "case/failures.h"
#include "limits/limits.h"
#include "limits/species.h"
#include "platform/dialogs.h"
#include "platform/result.h"
#include "platform/window.h"
#include "run/control_file_lines.h"

namespace korventally {
namespace {

using control_file::shown;

std::string unknownLimits(const AnalysisCase& opened) {
  if (!opened.Standard.empty()) return {};
  return "\n\nIts limits, " + shown(opened.StandardLimit) + " and " + shown(opened.SilLimit) +
         " ug/m**3, are those of no area class and standard for " + opened.Species + " over " +
         opened.AveragingHours + " hours. Please choose both in step 2, which shows " + kClassI +
         " and " + kNaaqs + " now, and enter the limits on the run summary.";
}

std::string hoursOfAnotherYear(const AnalysisCase& opened) {
  if (&periodOf(opened.AveragingHours) != &kAnnual) return {};
  const std::string hours = annualHours(opened.StartYear);
  if (hours == opened.AveragingHours) return {};
  return "\n\nIts averaging period is " + opened.AveragingHours + " hours, but the year " +
         shown(opened.StartYear) + " has " + hours +
         ". If the period is right, please enter it on the run summary.";
}

}  // namespace

Error tooManyFiles(const std::vector<std::string>& paths) {
  return {ErrorKind::kOther, 0,
          "It is the first of " + std::to_string(paths.size()) +
              " names, and only one file can be opened at a time. On a command line, a name with "
              "blanks belongs into double quotes.",
          paths.front()};
}

void sayWhyNotOpened(Window& owner, const Error& error) {
  showFailure(
      &owner, "The wizard cannot be filled from this file:", error,
      "Nothing has been filled in. Please open a control file as KorvenTally writes it: a copy "
      "of the korventally.inp that a run in debug mode keeps.");
}

void sayWhatCouldNotBeFilled(Window& owner, const AnalysisCase& opened) {
  const std::string what = unknownLimits(opened) + hoursOfAnotherYear(opened);
  if (what.empty()) return;
  messageBox(&owner, "All steps are filled, but not all of the control file fits them." + what,
             kWarningTitle);
}

}  // namespace korventally
