#include "tests/study.h"
#include "wizard/list_file_name.h"

namespace korventally::testing {
namespace {

class OutputFile : public StudyTest {
 protected:
  /// Walks to the last step, lets `arrange` change the window and presses "RUN" with the summary
  /// expected.
  void capture(const std::function<void(frmKORVENTALLY&)>& arrange) {
    inWizard([&](frmKORVENTALLY& w) {
      walkToOutput(w);
      arrange(w);
      expectSummary([](frmRunSummary&) {});
      click(w.cmdRUN);
      EXPECT_TRUE(w.outputFile.isOpen());
    });
  }
  using Fields = std::vector<std::string>;
  Fields captured() const {
    const AnalysisCase& c = theCase;
    return {c.WorkDir,           c.ListFile,      c.AreaClass, c.Standard,   c.Species,
            c.AveragingHours,    c.StandardLimit, c.SilLimit,  c.Rank1Flag,  c.ReceptorFormat,
            c.AmbientBackground, c.ReceptorFile,  c.StartYear, c.StartMonth, c.StartDay,
            c.StartHour,         c.RunLength};
  }
  static constexpr const char* kOverwrite =
      "The selected output filename already exists. Do you wish to overwrite it?";
  static constexpr const char* kInput =
      "This case reads a file of this name, and a run would delete it. Please choose another name.";
};

TEST_F(OutputFile, CapturesTheWindowAsItStands) {
  capture([](frmKORVENTALLY&) {});
  EXPECT_EQ(captured(),
            (Fields{kStudy, "korventally.lst", "Class I", "NAAQS", "SO2", "3", "1300.0", "1.0", "F",
                    "2", "0", kStudy + "recept.dat", "2009", "01", "02", "03", "8760"}));
}

TEST_F(OutputFile, CapturesTheOtherChoiceOfEveryOption) {
  capture([](frmKORVENTALLY& w) {
    w.analysisType.optClassII.select();
    w.analysisType.optPSD.select();
    w.analysisType.optPM10.select();
    w.analysisType.opt24hr.select();
    w.sourceGroups.txtAmbientBckg.setText(" 12.5 ");
    w.processingInfo.optReceptor_Generic.select();
    w.processingInfo.txtYear.setText("2008");
    w.processingInfo.optRank1_Exclude.select();
    w.outputFile.txtLSTFilename.setText("  my list.lst ");
  });
  EXPECT_EQ(captured(),
            (Fields{kStudy, "  my list.lst ", "Class II", "PSD", "PM10", "24", "30.0", "5.0", "T",
                    "1", " 12.5 ", kStudy + "recept.dat", "2008", "01", "02", "03", "8760"}));
}

TEST_F(OutputFile, CountsTheHoursOfTheYear) {
  const struct {
    const char *year, *hours;
  } rows[] = {{"2008", "8784"}, {"2009", "8760"}, {"1900", "8784"}, {"0000", "8784"}};
  for (const auto& row : rows) {
    capture([&](frmKORVENTALLY& w) {
      w.analysisType.optNOX.select();
      w.analysisType.optAnnual.select();
      w.processingInfo.txtYear.setText(row.year);
    });
    EXPECT_EQ(theCase.AveragingHours, row.hours) << row.year;
    EXPECT_EQ(theCase.Species, "NOX");
  }
}

TEST_F(OutputFile, RefusesAPastedYearThatIsNoNumberOnTheAnnualPathOnly) {
  inWizard([&](frmKORVENTALLY& w) {
    walkToOutput(w);
    w.processingInfo.txtYear.setText("20o8");
    w.analysisType.optAnnual.select();
    expectError("The Year must be in the format YYYY.");
    click(w.cmdRUN);
    EXPECT_EQ(theCase.WorkDir, kStudy) << "taken before any check";
    EXPECT_EQ(theCase.ListFile, "") << "and nothing else";
    EXPECT_TRUE(w.outputFile.isOpen());
    click(w.outputFile.cmdPrevious5);
    EXPECT_EQ(w.processingInfo.txtYear.backColor(), colors::kYellow);
    click(w.processingInfo.cmdNext4);
    w.analysisType.opt24hr.select();
    expectSummary([](frmRunSummary&) {});
    click(w.cmdRUN);
  });
}

TEST_F(OutputFile, AsksBeforeAnExistingListFileIsOverwritten) {
  desktop.putFile(kStudy + "korventally.lst", "old");
  inWizard([&](frmKORVENTALLY& w) {
    walkToOutput(w);
    TextBox& box = w.outputFile.txtLSTFilename;
    desktop.expectMessage(kOverwrite, "Warning", Answer::kNo);
    click(w.cmdRUN);
    EXPECT_EQ(box.backColor(), colors::kYellow);
    EXPECT_EQ(w.focused(), &box) << "for another name";
    EXPECT_EQ(theCase.WorkDir, kStudy) << "taken before any check";
    EXPECT_EQ(theCase.Species + theCase.RunLength + theCase.ListFile, "") << "and nothing else";
    desktop.expectMessage(kOverwrite, "Warning", Answer::kYes);
    theCase.StandardLimit = "edited";
    expectSummary([](frmRunSummary& s) { EXPECT_EQ(s.txtNAAQSPSDLimit.text(), "1300.0"); });
    click(w.cmdRUN);
    EXPECT_EQ(box.backColor(), colors::kWhite);
    EXPECT_EQ(desktop.fileBytes(kStudy + "korventally.lst"), "old");
  });
}

TEST_F(OutputFile, DefaultPutsTheNameBackAndLeavesTheMark) {
  inWizard([&](frmKORVENTALLY& w) {
    walkToOutput(w);
    TextBox& box = w.outputFile.txtLSTFilename;
    paste(box, "");
    expectError("Please enter a filename for the output KORVENTALLY results list file.");
    click(w.cmdRUN);
    click(w.outputFile.cmdDefault_LST);
    EXPECT_EQ(box.text(), "korventally.lst");
    EXPECT_EQ(box.backColor(), colors::kYellow);
    expectSummary([](frmRunSummary&) {});
    click(w.cmdRUN);
    EXPECT_EQ(box.backColor(), colors::kWhite);
  });
}

TEST_F(OutputFile, NameIsAPlainFileOfTheWorkingDirectoryThatNobodyElseUses) {
  const std::vector<std::string> inputs = {"C:/Study/.\\G1.con", "D:\\x\\other.con"};
  desktop.putFile(inputs[1], "");
  const std::string plain =
      "The list filename must be the name of a file in the working directory, without a path, "
      "without any of \\ / : * ? \" < > | and without a dot at its end.";
  const std::string device =
      "The list filename is the name of a Windows device. Please choose another name.";
  const std::string own =
      "A run writes a file of its own under this name. Please choose another name.";
  const struct {
    std::string objection;
    std::vector<std::string> names;
  } rows[] = {
      {"",
       {"korventally.lst", "a b.lst", " lead.lst", "trail.lst ", "console.lst", "com10.lst", "nul1",
        "g2.con", "other.con", ".lst", "a%b!&.lst"}},
      {plain,
       {"a:b", "..\\a.lst", "a/b", "\\\\pc\\pipe\\x", "C:\\a.lst", "a*.lst", "?", "a\"b", "a<b",
        "a|b", "a\tb", "\x7F", "dot.", "dot. ", "   ", ".", ".."}},
      {device,
       {"NUL", "nul.lst", "Aux .txt", "com1", "LPT9.lst", "COM\u00B9.lst", "con", "CONIN$"}},
      {own, {"KorvenTally.INP", "open_file.bat ", "run_korventally.bat", "korventally.lock"}},
      {kInput, {"g1.CON", "g1.con "}},
  };
  for (const auto& row : rows) {
    for (const std::string& name : row.names) {
      EXPECT_EQ(objectionToListFile("C:\\Study\\", name, inputs), row.objection) << name;
    }
  }
}

TEST_F(OutputFile, ABadNameIsRefusedBeforeAnythingIsAsked) {
  inWizard([&](frmKORVENTALLY& w) {
    walkToOutput(w);
    for (const char* name : {"recept.dat", "g1.con", "g2.con"}) {
      w.outputFile.txtLSTFilename.setText(name);
      expectError(kInput);
      click(w.cmdRUN);
      EXPECT_EQ(w.outputFile.txtLSTFilename.backColor(), colors::kYellow);
      EXPECT_EQ(theCase.ListFile, "");
    }
  });
}

}  // namespace
}  // namespace korventally::testing
