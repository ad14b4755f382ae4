#include "tests/study.h"

#include "platform/files.h"

namespace korventally::testing {
namespace {

/// The first line of a control file names the list file, behind 30 characters.
std::string listFileOf(const Desktop::Engine& engine) {
  const std::string line = engine.controlBytes().substr(0, engine.controlBytes().find("\r\n"));
  return line.size() < 30 ? std::string() : fromAnsi(line.substr(30));
}

bool isInput(const std::string& name) { return name.ends_with(".con") || name == "recept.dat"; }

}  // namespace

Study::Study() {
  desktop.makeFolder(kStudy);
  desktop.makeFolder("D:\\Prog\\");
  desktop.setInstallationDirectory("D:\\Prog");
  desktop.putFile("D:\\Prog\\korventally.exe", "MZ");
  for (int group = 1; group <= 5; ++group) {
    desktop.putFile(kStudy + "g" + std::to_string(group) + ".con", "values\r\n");
  }
  desktop.putFile(kStudy + "recept.dat", "0 0 R1\r\n");
  engineWrites({{500, "KORVENTALLY listing"}, {2000, "  RUN COMPLETED  "}}, 2100);
  basModule::analysisCase = AnalysisCase{};
}

void Study::engineWrites(std::vector<std::pair<std::uint32_t, std::string>> lines,
                         std::uint32_t endsAt) {
  desktop.setEngine([lines, endsAt](Desktop::Engine& engine) {
    for (const auto& [when, line] : lines) engine.writeLine(when, listFileOf(engine), line);
    if (endsAt > 0) engine.end(endsAt);
  });
}

void Study::inWizard(const std::function<void(frmKORVENTALLY&)>& visit,
                     std::vector<std::string> controlFiles) {
  frmKORVENTALLY wizard(std::move(controlFiles));
  desktop.expectWindow([&](Window&) {
    visit(wizard);
    wizard.unload();
  });
  wizard.show();
}

void Study::expectSummary(const std::function<void(frmRunSummary&)>& visit) {
  desktop.expectWindow([visit](Window& window) {
    auto& summary = dynamic_cast<frmRunSummary&>(window);
    visit(summary);
    summary.requestClose();
  });
}

void Study::inSummary(const std::function<void(frmRunSummary&)>& visit) {
  initialiseCase();
  theCase.WorkDir = kStudy;
  theCase.ListFile = "korventally.lst";
  theCase.AreaClass = "Class II";
  theCase.Standard = "PSD";
  theCase.Species = "SO2";
  theCase.AveragingHours = "24";
  theCase.StandardLimit = "91.0";
  theCase.SilLimit = "5.0";
  theCase.AmbientBackground = "0";
  theCase.GroupCount = 2;
  expectSummary(visit);
  frmRunSummary().show();
}

void Study::walkToAnalysis(frmKORVENTALLY& wizard) {
  paste(wizard.workingDirectory.txtWorkDir, "C:\\Study");
  click(wizard.workingDirectory.cmdNext1);
}

void Study::walkToGroups(frmKORVENTALLY& wizard, const std::string& others) {
  walkToAnalysis(wizard);
  paste(wizard.analysisType.txtNumOfOthers, others);
  click(wizard.analysisType.cmdNext2);
}

void Study::walkToProcessing(frmKORVENTALLY& wizard, const std::string& others) {
  walkToGroups(wizard, others);
  SourceGroupsStep& step = wizard.sourceGroups;
  while (step.cmdNextGroup.usable()) {
    paste(step.txtConcFile, kStudy + "g" + std::to_string(step.CurrentGroup) + ".con");
    click(step.cmdNextGroup);
  }
  paste(step.txtConcFile, kStudy + "g" + std::to_string(step.CurrentGroup) + ".con");
  click(step.cmdNext3);
}

void Study::walkToOutput(frmKORVENTALLY& wizard, const std::string& others) {
  walkToProcessing(wizard, others);
  ProcessingInfoStep& step = wizard.processingInfo;
  paste(step.txtReceptorDATFile, kStudy + "recept.dat");
  type(step.txtYear, "2009");
  type(step.txtMonth, "1");
  type(step.txtDay, "02");
  type(step.txtHour, "3");
  type(step.txtRunLength, "8760");
  click(step.cmdNext4);
}

std::vector<std::string> Study::leftovers() const {
  std::vector<std::string> names = desktop.list(kStudy);
  std::erase_if(names, isInput);
  return names;
}

}  // namespace korventally::testing
