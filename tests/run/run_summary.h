#pragma once

#include <string>

#include "run/frmRunSummary.h"
#include "tests/study.h"

namespace korventally::testing {

inline constexpr const char* kStop = "The engine is still running. Stop it and close this window?";
inline constexpr const char* kDone = "RUN COMPLETED";
inline constexpr const char* kFailed = "RUN FAILED - SEE LIST FILE";

class RunSummary : public StudyTest {
 protected:
  const std::string list = kStudy + "korventally.lst";

  /// Texts of a question about a run that shows no verdict.
  std::string keepWaiting(const std::string& what) const {
    return what + "\n" + list +
           "\n\nKeep waiting for it? \"Yes\" waits another 30 seconds, \"No\" ends the run.";
  }
  static void expectIdle(const frmRunSummary& s, const std::string& status) {
    EXPECT_EQ(s.lblStatus.text(), status);
    EXPECT_EQ(s.lblRunning.text(), "");
    EXPECT_TRUE(s.cmdRUN.usable());
    EXPECT_TRUE(s.cmdBack.usable());
  }
};

}  // namespace korventally::testing
