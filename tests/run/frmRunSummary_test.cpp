#include "run/frmRunSummary.h"

#include <new>

#include "platform/later.h"
#include "tests/run/run_summary.h"

namespace korventally::testing {
namespace {

TEST_F(RunSummary, ShowsTheCase) {
  inSummary([](frmRunSummary& s) {
    EXPECT_EQ(s.lblAnalysisType.text(), "Class II PSD/SIL");
    EXPECT_EQ(s.lblNAAQSPSDLimit.text(), "PSD Increment:");
    EXPECT_EQ(s.txtNAAQSPSDLimit.text() + s.lblNAAQSPSDLimitValue.text(), "91.0ug/m**3");
    EXPECT_EQ(s.txtSILLimit.text() + s.lblSILLimitValue.text(), "5.0ug/m**3");
    EXPECT_EQ(s.txtSpecies.text(), "SO2");
    EXPECT_EQ(s.txtAvePeriod.text(), "24");
    EXPECT_FALSE(s.lblAmbientBckg.visible());
    EXPECT_FALSE(s.lblAmbientConc.visible());
    EXPECT_EQ(s.lblRank1_YesNo.text(), "Included");
    EXPECT_TRUE(s.chkAutoOpen.checked());
    EXPECT_EQ(s.focused(), &s.cmdRUN);
    EXPECT_EQ(s.lblStatus.foreColor(), colors::kBlue);
    expectIdle(s, "");
  });
  theCase.Standard = "NAAQS";
  theCase.AreaClass = "Class I";
  theCase.AmbientBackground = "12.5";
  theCase.Rank1Flag = "T";
  expectSummary([](frmRunSummary& s) {
    EXPECT_EQ(s.lblAnalysisType.text(), "Class I NAAQS/SIL");
    EXPECT_EQ(s.lblNAAQSPSDLimit.text(), "NAAQS Standard:");
    EXPECT_TRUE(s.lblAmbientBckg.visible());
    EXPECT_EQ(s.lblAmbientConc.text(), "12.5 ug/m**3");
    EXPECT_EQ(s.lblRank1_YesNo.text(), "Excluded");
  });
  frmRunSummary().show();
}

TEST_F(RunSummary, LimitsTakeDecimalsAndEnterMovesOn) {
  inSummary([](frmRunSummary& s) {
    s.txtNAAQSPSDLimit.setText("");
    s.txtSpecies.setText("");
    type(s.txtNAAQSPSDLimit, "-1 2.a5.0123456789");
    EXPECT_EQ(s.txtNAAQSPSDLimit.text(), "12.5.0123456789");
    press(s, Key::kEnter);
    EXPECT_EQ(s.focused(), &s.txtSILLimit);
    press(s, Key::kEnter);
    EXPECT_EQ(s.focused(), &s.cmdBack);
    type(s.txtSpecies, "a -1");
    EXPECT_EQ(s.txtSpecies.text(), "a -1");
  });
}

TEST_F(RunSummary, RunsTheEngineToItsVerdictAndTidiesUp) {
  inSummary([&](frmRunSummary& s) {
    desktop.putFile(list, "RUN FAILED\r\n");
    std::vector<std::string> running;
    for (const std::uint32_t when : {60u, 1200u, 1700u, 2200u}) {
      desktop.at(when, [&] {
        EXPECT_FALSE(s.cmdRUN.enabled());
        EXPECT_FALSE(s.cmdBack.enabled());
        EXPECT_TRUE(s.txtSpecies.usable());
        EXPECT_EQ(s.lblStatus.text(), "");
        // The wait is busy, and the engine must not pay for it.
        EXPECT_TRUE(desktop.belowNormalPriority());
        running.push_back(s.lblRunning.text());
      });
    }
    desktop.at(45, [&] {
      EXPECT_EQ(leftovers(), (std::vector<std::string>{"korventally.inp", "korventally.lock"}));
    });
    s.txtSILLimit.setText("7.5");
    for (TextBox* box : {&s.txtSpecies, &s.txtAvePeriod, &s.txtNAAQSPSDLimit, &s.txtSILLimit}) {
      box->setText("  " + box->text() + " ");
    }
    const std::uint32_t start = desktop.now();
    click(s.cmdRUN);
    // Before the batch file and the first look; twice a scan and its animation; the verdict.
    EXPECT_EQ(desktop.now() - start, 50u + 1000 + 2 * (50 + 1500) + 50);
    EXPECT_EQ(running, (std::vector<std::string>{"", "Running.", "Running..", "Running..."}));
    expectIdle(s, kDone);
    EXPECT_FALSE(desktop.belowNormalPriority());
    EXPECT_EQ(desktop.announcements(), std::vector<std::string>{kDone});
    EXPECT_EQ(desktop.startStyles().front(), WindowStyle::kHidden);
    EXPECT_EQ(theCase.Species + theCase.AveragingHours, "SO224");
    EXPECT_EQ(theCase.StandardLimit + "," + theCase.SilLimit, "91.0,7.5");
    EXPECT_EQ(desktop.filesInNotepad(), std::vector<std::string>{list});
    EXPECT_EQ(leftovers(), (std::vector<std::string>{"korventally.lst", "open_file.bat"}));
    desktop.advance(5000);
    EXPECT_EQ(leftovers(), std::vector<std::string>{"korventally.lst"});
  });
}

TEST_F(RunSummary, HandsTheEngineTheControlFileOfTheCase) {
  std::string path, bytes;
  desktop.setEngine([&](Desktop::Engine& engine) {
    path = engine.controlFile();
    bytes = engine.controlBytes();
    engine.writeLine(10, list, "RUN FAILED");
  });
  inSummary([&](frmRunSummary& s) {
    s.chkAutoOpen.setChecked(false);
    s.txtSpecies.setText(" NOX ");
    click(s.cmdRUN);
    expectIdle(s, kFailed);
    EXPECT_TRUE(desktop.filesInNotepad().empty());
    EXPECT_EQ(leftovers(), std::vector<std::string>{"korventally.lst"});
    s.chkAutoOpen.setChecked(true);
    click(s.cmdRUN);
    EXPECT_EQ(desktop.filesInNotepad(), std::vector<std::string>{list}) << "whatever the verdict";
  });
  EXPECT_EQ(path, kStudy + "korventally.inp");
  EXPECT_NE(bytes.find(":NOX\r\n"), std::string::npos);
}

TEST_F(RunSummary, AnEngineThatLivesOnIsNoObstacleToTheNextRun) {
  engineWrites({{100, "RUN COMPLETED"}}, 4000);
  inSummary([&](frmRunSummary& s) {
    s.chkAutoOpen.setChecked(false);
    for (int run = 1; run <= 2; ++run) {
      click(s.cmdRUN);
      expectIdle(s, kDone);
      EXPECT_EQ(leftovers(), std::vector<std::string>{"korventally.lst"});
      EXPECT_TRUE(desktop.enginesRunning()) << "it is not ended either";
    }
    desktop.advance(8000);
    EXPECT_FALSE(desktop.enginesRunning());
  });
}

TEST_F(RunSummary, DebugModeKeepsTheFilesAndPauses) {
  inSummary([&](frmRunSummary& s) {
    theCase.DebugMode = true;
    s.chkAutoOpen.setChecked(false);
    click(s.cmdRUN);
    expectIdle(s, kDone);
    EXPECT_EQ(desktop.fileBytes(kStudy + "run_korventally.bat"),
              "\"D:\\Prog\\korventally.exe\" \"C:\\Study\\korventally.inp\"\r\npause\r\n");
    EXPECT_TRUE(desktop.fileBytes(kStudy + "korventally.inp"));
    EXPECT_EQ(desktop.startStyles().front(), WindowStyle::kNormalFocus);
    click(s.cmdRUN);
    expectIdle(s, kDone);
  });
}

TEST_F(RunSummary, ASecondRunFitsIntoTheEditorsFiveSeconds) {
  inSummary([&](frmRunSummary& s) {
    click(s.cmdRUN);
    desktop.advance(1000);
    click(s.cmdRUN);
    expectIdle(s, kDone);
    EXPECT_EQ(desktop.enginesStarted(), 2);
    EXPECT_EQ(desktop.filesInNotepad().size(), 2u);
  });
  EXPECT_EQ(leftovers(), (std::vector<std::string>{"korventally.lst", "open_file.bat"}));
  finishLater();
  EXPECT_EQ(leftovers(), std::vector<std::string>{"korventally.lst"});
}

TEST_F(RunSummary, ANewRunOvertakesTheEditorOfTheLastOne) {
  inSummary([&](frmRunSummary& s) {
    desktop.putFile(kStudy + "open_file.bat", "");
    desktop.lockFile(kStudy + "open_file.bat", 5500);
    // The first run is over, and its editor waits for the file.
    desktop.at(5000, [&] { click(s.cmdRUN); });
    click(s.cmdRUN);
    EXPECT_EQ(s.lblStatus.text(), "RUN COMPLETED");
    EXPECT_EQ(desktop.enginesStarted(), 2);
    EXPECT_EQ(desktop.filesInNotepad().size(), 1u);
  });
}

TEST_F(RunSummary, NoEditorOpensBehindAWindowThatWasClosed) {
  desktop.putFile(kStudy + "open_file.bat", "");
  // While the editor waits for its batch file, or the run for its own to be deleted.
  for (const char* awaited : {"open_file.bat", "korventally.inp"}) {
    inSummary([&](frmRunSummary& s) {
      desktop.at(4100, [&] { desktop.lockFile(kStudy + awaited, 1300); });
      desktop.at(5000, [&] { s.requestClose(); });
      click(s.cmdRUN);
    });
    EXPECT_TRUE(desktop.filesInNotepad().empty()) << awaited;
  }
}

TEST_F(RunSummary, OnePressStartsOneRun) {
  inSummary([&](frmRunSummary& s) {
    // While the first press still prepares its files, the button can be pressed again.
    desktop.at(20, [&] { s.cmdRUN.press(); });
    click(s.cmdRUN);
    EXPECT_EQ(desktop.enginesStarted(), 1);
    expectIdle(s, kDone);
  });
}

TEST_F(RunSummary, ClosingDuringARunStopsTheEngineIfTheUserSaysSo) {
  engineWrites({{500, "still at it"}, {9000, "RUN COMPLETED"}}, 0);
  inSummary([&](frmRunSummary& s) {
    desktop.at(1500, [&] {
      desktop.expectMessage(kStop, "Warning", Answer::kNo);
      s.requestClose();
      EXPECT_TRUE(s.isOpen());
      EXPECT_TRUE(desktop.enginesRunning());
    });
    desktop.at(4000, [&] {
      desktop.expectMessage(kStop, "Warning", Answer::kYes);
      s.requestClose();
      EXPECT_FALSE(s.isOpen());
      EXPECT_FALSE(desktop.enginesRunning());
    });
    click(s.cmdRUN);
    EXPECT_EQ(s.RunStatus, std::nullopt);
  });
  EXPECT_EQ(leftovers(), std::vector<std::string>{"korventally.lst"});
  EXPECT_TRUE(desktop.filesInNotepad().empty());
}

TEST_F(RunSummary, TheSessionCanEndDuringARun) {
  engineWrites({}, 0);
  inSummary([&](frmRunSummary& s) {
    EXPECT_EQ(s.sessionEndObjection(), "");
    desktop.at(1500, [&] {
      EXPECT_NE(s.sessionEndObjection(), "");
      s.sessionEnds();
      EXPECT_TRUE(leftovers().empty()) << "at once: there is no time left";
      Window::unloadAll();
    });
    click(s.cmdRUN);
  });
  EXPECT_FALSE(desktop.enginesRunning());
}

TEST_F(RunSummary, AnOldVerdictGoesWhenTheNextRunCannotStart) {
  inSummary([&](frmRunSummary& s) {
    click(s.cmdRUN);
    expectIdle(s, kDone);
    desktop.removeFile("D:\\Prog\\korventally.exe");
    expectError(
        "The engine could not be found:\nD:\\Prog\\korventally.exe\n\nPlease copy korventally.exe "
        "into this folder, then press RUN again.");
    click(s.cmdRUN);
    expectIdle(s, "");
    EXPECT_TRUE(desktop.fileBytes(list)) << "nothing was deleted";
  });
}

TEST_F(RunSummary, TextThatTheCodePageLacksCostsNothing) {
  inSummary([&](frmRunSummary& s) {
    desktop.putFile(list, "old");
    theCase.GroupConcFiles[2] = "C:\\\u0421\u0442\\a.con";
    expectError(
        "This text contains characters that cannot be written in this system's code "
        "page:\nC:\\\u0421\u0442\\a.con\n\n"
        "The engine could not read it. Please use another name for the file, folder or group.");
    click(s.cmdRUN);
    EXPECT_EQ(leftovers(), std::vector<std::string>{"korventally.lst"});
    EXPECT_EQ(desktop.fileBytes(list), "old");
  });
}

TEST_F(RunSummary, AQuitEndsTheRunWithItsWindow) {
  engineWrites({{100, "at it"}, {600'000, "RUN COMPLETED"}}, 0);
  inSummary([&](frmRunSummary& s) {
    desktop.at(3000, [&] {
      Window::unloadAll();
      EXPECT_FALSE(desktop.enginesRunning());
      EXPECT_EQ(leftovers(), std::vector<std::string>{"korventally.lst"});
    });
    click(s.cmdRUN);
    EXPECT_LT(desktop.now(), 10'000u);
  });
  EXPECT_TRUE(desktop.filesInNotepad().empty());
}

TEST_F(RunSummary, NothingHappensBehindAWindowThatWasClosedDuringThePreparation) {
  desktop.putFile(list, "old");
  desktop.putFile(kStudy + "run_korventally.bat", "old");
  desktop.lockFile(kStudy + "run_korventally.bat", 300);
  inSummary([&](frmRunSummary& s) {
    desktop.at(20, [&] { s.requestClose(); });
    click(s.cmdRUN);
  });
  EXPECT_EQ(desktop.fileBytes(list), "old");
  EXPECT_EQ(desktop.calls(Desktop::Operation::kWrite), 0);
}

TEST_F(RunSummary, AnExceptionLeavesAUsableWindowAndNothingElse) {
  engineWrites({{100, "at it"}}, 0);
  inSummary([&](frmRunSummary& s) {
    desktop.at(2000, [] { throw std::bad_alloc(); });
    expectError("There is not enough memory to finish this.");
    click(s.cmdRUN);
    expectIdle(s, "");
    EXPECT_FALSE(desktop.enginesRunning());
    EXPECT_EQ(leftovers(), std::vector<std::string>{"korventally.lst"});
  });
}

TEST_F(RunSummary, TheFocusReturnsToRunUnlessTheUserMovesItOrUsesTheCheckBox) {
  // Esc does nothing during a run, neither to the window nor to the focus.
  for (const Key key : {Key::kEscape, Key::kSpace, Key::kTab}) {
    inSummary([&](frmRunSummary& s) {
      desktop.at(1500, [&] {
        EXPECT_EQ(s.focused(), &s.chkAutoOpen);
        press(s, key);
      });
      click(s.cmdRUN);
      EXPECT_EQ(s.focused() == &s.cmdRUN, key == Key::kEscape);
    });
  }
}

}  // namespace
}  // namespace korventally::testing
