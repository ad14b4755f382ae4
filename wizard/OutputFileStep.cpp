#include "wizard/OutputFileStep.h"

#include <algorithm>
#include <charconv>

#include "limits/limits.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "run/frmRunSummary.h"
#include "wizard/frmKORVENTALLY.h"
#include "wizard/list_file_name.h"

namespace korventally {
namespace {

constexpr const char* kDefaultListFile = "korventally.lst";
constexpr const char* kHoursOfLeapYear = "8784";
constexpr const char* kHoursOfYear = "8760";

AnalysisCase& theCase() { return basModule::analysisCase; }

bool allDigits(const std::string& text) {
  return !text.empty() &&
         std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// The engine counts every fourth year as a leap year, 1900 and 2100 too.
bool isLeapYear(const std::string& year) {
  unsigned number = 0;
  std::from_chars(year.data(), year.data() + year.size(), number);
  return number % 4 == 0;
}

}  // namespace

OutputFileStep::OutputFileStep(frmKORVENTALLY& owner)
    : WizardStep(owner),
      frameOutputFile(owner, {120, 8520, 11295, 855}, "OUTPUT RESULTS FILE:", fonts::kStepCaption,
                      colors::kNavy),
      Frame7(owner, {11640, 8520, 1455, 855}),
      OutputFileControls{&frameOutputFile, &lblLSTFilename, &cmdDefault_LST, &cmdPrevious5,
                         &owner.cmdRUN} {
  txtLSTFilename.setAccessibleName("List Filename");
  cmdDefault_LST.onClick = [this] { cmdDefault_LST_Click(); };
  cmdPrevious5.onClick = [this] { cmdPrevious5_Click(); };
  owner.cmdRUN.onClick = [this] { cmdRUN_Click(); };
  DisableStep(OutputFileControls, OutputFileFields);
}

void OutputFileStep::cmdDefault_LST_Click() { txtLSTFilename.setText(kDefaultListFile); }

void OutputFileStep::cmdPrevious5_Click() { switchTo(wizard.processingInfo); }

void OutputFileStep::cmdRUN_Click() {
  theCase().WorkDir = wizard.workingDirectory.txtWorkDir.text();
  if (!checkYear() || !checkListFile()) return;
  CaptureCase();
  DeriveLimits(theCase());
  frmRunSummary().show(&wizard);
}

bool OutputFileStep::checkListFile() {
  const std::string& name = txtLSTFilename.text();
  if (name.empty()) {
    refuse(txtLSTFilename, "Please enter a filename for the output KORVENTALLY results list file.");
    return false;
  }
  if (const std::string objection = objectionToListFile(theCase().WorkDir, name, inputFiles());
      !objection.empty()) {
    refuse(txtLSTFilename, objection);
    return false;
  }
  if (!fileExists(theCase().WorkDir + name)) return true;
  HighlightField(txtLSTFilename);
  const Answer overwrite = messageBox(
      &wizard, "The selected output filename already exists. Do you wish to overwrite it?",
      kWarningTitle, Buttons::kYesNo);
  if (overwrite == Answer::kNo) offerToCorrect(txtLSTFilename);
  return overwrite == Answer::kYes;
}

std::vector<std::string> OutputFileStep::inputFiles() const {
  const auto firstGroup = theCase().GroupConcFiles.begin() + 1;
  std::vector<std::string> files(firstGroup, firstGroup + theCase().GroupCount);
  files.push_back(wizard.processingInfo.txtReceptorDATFile.text());
  return files;
}

/// Only the annual period reads the year as a number. Digits are all that can be typed, but
/// anything can be pasted.
bool OutputFileStep::checkYear() {
  TextBox& txtYear = wizard.processingInfo.txtYear;
  if (!wizard.analysisType.optAnnual.selected() || allDigits(txtYear.text())) return true;
  // Its step is closed, so the mark takes the colour that turns yellow when the step opens again.
  HighlightField(txtYear);
  DisableField(txtYear);
  messageBox(&wizard, "The Year must be in the format YYYY.", kErrorTitle);
  return false;
}

void OutputFileStep::CaptureCase() {
  const AnalysisTypeStep& analysis = wizard.analysisType;
  const ProcessingInfoStep& processing = wizard.processingInfo;
  const std::string& background = wizard.sourceGroups.txtAmbientBckg.text();
  AnalysisCase& captured = theCase();

  // The case keeps the name's blanks; only the box loses them.
  captured.ListFile = txtLSTFilename.text();
  ClearFieldHighlight(txtLSTFilename);
  captured.AreaClass = analysis.optClassI.selected() ? "Class I" : "Class II";
  captured.Standard = analysis.optNAAQS.selected() ? "NAAQS" : "PSD";
  captured.Species = analysis.optSO2.selected()    ? "SO2"
                     : analysis.optPM10.selected() ? "PM10"
                                                   : "NOX";
  captured.AveragingHours = averagingHours();
  captured.AmbientBackground = background.empty() ? "0" : background;
  captured.ReceptorFormat = processing.optReceptor_TOLVREN.selected() ? "2" : "1";
  captured.Rank1Flag = processing.optRank1_Exclude.selected() ? "T" : "F";
  captured.ReceptorFile = processing.txtReceptorDATFile.text();
  captured.StartYear = processing.txtYear.text();
  captured.StartMonth = processing.txtMonth.text();
  captured.StartDay = processing.txtDay.text();
  captured.StartHour = processing.txtHour.text();
  captured.RunLength = processing.txtRunLength.text();
}

std::string OutputFileStep::averagingHours() const {
  if (wizard.analysisType.opt3hr.selected()) return "3";
  if (wizard.analysisType.opt24hr.selected()) return "24";
  return isLeapYear(wizard.processingInfo.txtYear.text()) ? kHoursOfLeapYear : kHoursOfYear;
}

}  // namespace korventally
