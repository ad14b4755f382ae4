#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "case/basModule.h"
#include "platform/headless/desktop.h"
#include "run/frmRunSummary.h"
#include "tests/user.h"
#include "wizard/frmKORVENTALLY.h"

namespace korventally::testing {

/// A desktop with the program installed in D:\Prog, a study in C:\Study, and an engine that
/// completes after two seconds.
class Study {
 public:
  Study();

  /// Opens the wizard, lets the visit happen and closes the wizard.
  void inWizard(const std::function<void(frmKORVENTALLY&)>& visit,
                std::vector<std::string> controlFiles = {});
  /// What the user does in the run summary when it opens next; it is closed afterwards.
  void expectSummary(const std::function<void(frmRunSummary&)>& visit);
  /// Shows the run summary of a captured case, without the wizard.
  void inSummary(const std::function<void(frmRunSummary&)>& visit);

  /// Walks forward from step 1 with good input, up to the step given.
  void walkToAnalysis(frmKORVENTALLY& wizard);
  void walkToGroups(frmKORVENTALLY& wizard, const std::string& others = "");
  void walkToProcessing(frmKORVENTALLY& wizard, const std::string& others = "");
  void walkToOutput(frmKORVENTALLY& wizard, const std::string& others = "");

  void expectError(const std::string& text) { desktop.expectMessage(text, "Error"); }
  /// The engine's listing: each line some milliseconds after its start.
  void engineWrites(std::vector<std::pair<std::uint32_t, std::string>> lines, std::uint32_t endsAt);
  /// The files of the study apart from its input: what a run has left.
  std::vector<std::string> leftovers() const;

  Desktop desktop;
  AnalysisCase& theCase = basModule::analysisCase;
};

/// The study as the fixture of a test.
class StudyTest : public ::testing::Test, protected Study {};

inline const std::string kStudy = "C:\\Study\\";

}  // namespace korventally::testing
