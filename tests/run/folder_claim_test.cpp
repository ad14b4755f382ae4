#include "run/folder_claim.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/process.h"
#include "platform/result.h"
#include "platform/window.h"
#include "run/frmRunSummary.h"
#include "tests/study.h"
#include "tests/user.h"

namespace korventally::testing {
namespace {

class FolderClaim : public StudyTest {
 protected:
  const std::string list = kStudy + "korventally.lst";
  const std::string lock = kStudy + "korventally.lock";
};

TEST_F(FolderClaim, TheSecondRunSaysWhoHasTheDirectoryAndTouchesNothing) {
  for (const char* name : {"korventally.lst", "korventally.inp", "run_korventally.bat"}) {
    desktop.putFile(kStudy + name, "the other's");
  }
  auto other = claimFolder(kStudy);
  ASSERT_TRUE(other);
  inSummary([&](frmRunSummary& s) {
    expectError(
        "Another KorvenTally window is running a case in this working directory:\nC:\\Study\\\n\n"
        "It is " +
        thisProcess() +
        ".\n\nNothing of that run was touched. Please wait until it has ended, or choose another "
        "working directory, then press RUN again.");
    click(s.cmdRUN);
    EXPECT_EQ(desktop.enginesStarted(), 0);
    for (const char* name : {"korventally.lst", "korventally.inp", "run_korventally.bat"}) {
      EXPECT_EQ(desktop.fileBytes(kStudy + name), "the other's");
    }
    EXPECT_TRUE(s.cmdRUN.usable());
    other.value().reset();
    click(s.cmdRUN);
    EXPECT_EQ(s.lblStatus.text(), "RUN COMPLETED");
  });
}

TEST_F(FolderClaim, LastsAsLongAsTheRunHasFilesThere) {
  engineWrites({{500, "at it"}}, 0);
  // However it ends: by its verdict, by the user, or with a file that somebody still holds.
  for (const bool held : {false, true}) {
    inSummary([&](frmRunSummary& s) {
      desktop.at(3000, [&] {
        EXPECT_FALSE(claimFolder(kStudy));
        if (held) desktop.lockFile(kStudy + "korventally.inp", 1000);
        Window::unloadAll();
        EXPECT_EQ(claimFolder(kStudy).ok(), !held) << "what is left to delete is still this run's";
      });
      click(s.cmdRUN);
    });
    EXPECT_TRUE(claimFolder(kStudy));
    EXPECT_EQ(leftovers(), std::vector<std::string>{"korventally.lst"});
  }
}

TEST_F(FolderClaim, IsTakenOverFromNobodyButNotFromAnotherProgram) {
  { const auto claim = claimFolder(kStudy); }
  EXPECT_EQ(holderOfClaim(kStudy), "") << "nobody";
  desktop.putFile(lock, "KorvenTally is running a case in this directory.\r\nprocess 1\r\nmore");
  EXPECT_EQ(holderOfClaim(kStudy), "process 1");
  EXPECT_TRUE(claimFolder(kStudy)) << "left behind by a power cut";
  desktop.putFile(lock, "");
  EXPECT_TRUE(claimFolder(kStudy)) << "even before it had its text";
  desktop.putFile(lock, "my notes");
  desktop.putFile(list, "old");
  inSummary([&](frmRunSummary& s) {
    expectError(
        "The working directory could not be reserved for this run:\n" + lock +
        "\n\nThere is a file of this name that is not KorvenTally's.\n\nPlease check that the "
        "working directory can be written to and that no other program has the file open, then "
        "press RUN again.");
    click(s.cmdRUN);
  });
  desktop.failCall(Desktop::Operation::kOpen, desktop.calls(Desktop::Operation::kOpen) + 1,
                   {ErrorKind::kNotFound, 2, "The file was not found.", ""});
  EXPECT_EQ(claimFolder(kStudy).error().kind, ErrorKind::kBusy) << "one that came after the look";
  desktop.failCall(Desktop::Operation::kRead, desktop.calls(Desktop::Operation::kRead) + 1,
                   {ErrorKind::kOther, 5, "Access is denied.", ""});
  EXPECT_EQ(claimFolder(kStudy).error().code, 5) << "one that cannot be read now";
  EXPECT_EQ(desktop.fileBytes(lock), "my notes");
  EXPECT_EQ(desktop.fileBytes(list), "old");
}

}  // namespace
}  // namespace korventally::testing
