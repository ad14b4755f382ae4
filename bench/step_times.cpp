#include <cstdio>
#include <cstdlib>
#include <string>

#include "bench/window_bench.h"
#include "platform/button.h"
#include "platform/later.h"
#include "wizard/frmKORVENTALLY.h"
#include "wizard/processing_info_step.h"
#include "wizard/wizard_step.h"

namespace korventally::bench {
namespace {

/// A step that has not opened was refused, and its time would be that of nothing.
void timeNext(const char* name, const Button& button, const WizardStep& opens) {
  settle();
  const Milliseconds took = clickAndSettle(button);
  if (!opens.isOpen()) {
    std::fprintf(stderr, "%s opens no step\n", name);
    std::exit(1);
  }
  std::printf("%s %.3f\n", name, took.count());
}

void walk(frmKORVENTALLY& wizard, const std::string& folder) {
  const std::string data = folder + "any.dat";
  wizard.workingDirectory.setPath(folder);
  timeNext("1-2", wizard.workingDirectory.cmdNext1, wizard.analysisType);
  wizard.analysisType.txtNumOfOthers.setText("1");
  timeNext("2-3", wizard.analysisType.cmdNext2, wizard.sourceGroups);
  for (const char* page : {"page-1-2", "page-2-3"}) {
    wizard.sourceGroups.txtConcFile.setText(data);
    timeNext(page, wizard.sourceGroups.cmdNextGroup, wizard.sourceGroups);
  }
  wizard.sourceGroups.txtConcFile.setText(data);
  timeNext("3-4", wizard.sourceGroups.cmdNext3, wizard.processingInfo);
  ProcessingInfoStep& processing = wizard.processingInfo;
  processing.txtReceptorDATFile.setText(data);
  processing.txtYear.setText("2009");
  processing.txtMonth.setText("01");
  processing.txtDay.setText("12");
  processing.txtHour.setText("00");
  processing.txtRunLength.setText("168");
  timeNext("4-5", processing.cmdNext4, wizard.outputFile);
}

}  // namespace

void timeSteps(int runs, const std::string& folder) {
  for (int run = 0; run < runs; ++run) {
    frmKORVENTALLY wizard;
    runLater("walk", 0, [&] {
      walk(wizard, folder);
      wizard.unload();
    });
    wizard.show();
  }
}

}  // namespace korventally::bench
