#include <cstdio>
#include <string>

#include "bench/case_in.h"
#include "bench/window_bench.h"
#include "case/basModule.h"
#include "platform/later.h"
#include "run/control_file.h"
#include "run/frmRunSummary.h"

namespace korventally::bench {
namespace {

/// The click returns when the run is over, because its waits are in the handler.
void timeRun(const std::string& folder) {
  basModule::analysisCase = caseIn(folder, kMostOtherGroups + kFixedGroups);
  frmRunSummary summary;
  runLater("run", 0, [&] {
    summary.chkAutoOpen.setChecked(false);
    settle();
    const Milliseconds took = clickAndSettle(summary.cmdRUN);
    const bool completed = summary.lblStatus.text() == "RUN COMPLETED";
    std::printf("%s %.3f\n", completed ? "run" : "failed", took.count());
    summary.unload();
  });
  summary.show();
}

}  // namespace

void timeRuns(int runs, const std::string& folder) {
  for (int run = 0; run < runs; ++run) {
    timeRun(folder);
    const auto begin = Clock::now();
    const bool written = WriteControlFile().ok();
    std::printf("%s %.3f\n", written ? "control" : "failed",
                Milliseconds(Clock::now() - begin).count());
  }
}

}  // namespace korventally::bench
