#include <algorithm>

#include "platform/files.h"
#include "run/control_file.h"
#include "tests/study.h"

namespace korventally::testing {
namespace {

class Opening : public StudyTest {
 protected:
  /// A case of that many groups, with every option another than the first.
  static AnalysisCase caseOf(std::int32_t groups, const std::string& species = "NOX",
                             const std::string& hours = "8784",
                             const std::string& standard = "25.0") {
    AnalysisCase made;
    made.WorkDir = kStudy;
    made.Species = species;
    made.AveragingHours = hours;
    made.StandardLimit = standard;
    made.SilLimit = "1.0";
    made.AmbientBackground = "12.5";
    made.GroupCount = groups;
    made.ReceptorFormat = made.StartMonth = "1";
    made.ReceptorFile = kStudy + "recept.dat";
    made.StartYear = "2008";
    made.StartDay = made.StartHour = "02";
    made.RunLength = "8784";
    made.Rank1Flag = "T";
    made.ListFile = "my list.lst";
    nameGroups(made);
    made.GroupConcFiles.fill(kStudy + "g1.con");
    made.GroupConcFiles[2] = kStudy + "g2.con";
    made.GroupNames[2] = "M\u00FCll 2";
    return made;
  }

  /// The case as a control file of that name; its bytes.
  std::string save(const AnalysisCase& saved, const std::string& path = kFile) {
    EXPECT_TRUE(writeTextFile(path, controlFileLines(saved)));
    return desktop.fileBytes(path).value();
  }

  /// "NEXT" through all steps, "RUN", and "RUN" on the summary.
  void runUntouched(frmKORVENTALLY& w) {
    click(w.workingDirectory.cmdNext1);
    click(w.analysisType.cmdNext2);
    while (w.sourceGroups.cmdNextGroup.usable()) click(w.sourceGroups.cmdNextGroup);
    click(w.sourceGroups.cmdNext3);
    click(w.processingInfo.cmdNext4);
    expectSummary([](frmRunSummary& s) { click(s.cmdRUN); });
    click(w.cmdRUN);
  }

  void expectRefusal(const std::string& path, const std::string& reason,
                     std::function<void()> meanwhile = {}) {
    desktop.expectMessage("The wizard cannot be filled from this file:\n" + path + "\n\n" + reason +
                              "\n\nNothing has been filled in. Please open a control file as "
                              "KorvenTally writes it: a copy of the korventally.inp that a run in "
                              "debug mode keeps.",
                          "Error", Answer::kOk, std::move(meanwhile));
  }

  static constexpr const char* kFile = "C:\\case.inp";
};

TEST_F(Opening, AndRunningUntouchedWritesTheSameFileAgain) {
  AnalysisCase plain = caseOf(2, "SO2", "3", "1300.0");
  plain.AmbientBackground = "0";
  plain.ReceptorFormat = "2";
  plain.Rank1Flag = "F";
  AnalysisCase common = caseOf(3, "PM10", "8760", "17.0");
  common.StartYear = "2009";
  theCase.DebugMode = true;
  for (const AnalysisCase& each : {plain, common, caseOf(4), caseOf(50)}) {
    const std::string bytes = save(each);
    desktop.removeFile(kStudy + "korventally.inp");
    desktop.removeFile(kStudy + "my list.lst");
    const int written = desktop.calls(Desktop::Operation::kWrite);
    inWizard(
        [&](frmKORVENTALLY& w) {
          EXPECT_TRUE(w.workingDirectory.isOpen());
          EXPECT_EQ(w.focused(), &w.workingDirectory.txtWorkDir);
          EXPECT_EQ(w.sourceGroups.txtAmbientBckg.text(), each.GroupCount == 2 ? "" : "12.5");
          EXPECT_EQ(theCase.GroupNames[50], "OTHER_48") << "offered where the file has no group";
          EXPECT_EQ(desktop.calls(Desktop::Operation::kWrite), written)
              << "opening changes no file";
          runUntouched(w);
        },
        {"case.inp"});
    EXPECT_EQ(desktop.fileBytes(kStudy + "korventally.inp"), bytes);
    EXPECT_EQ(desktop.fileBytes(kFile), bytes);
  }
}

TEST_F(Opening, RefusesOverTheEmptyWindow) {
  desktop.putFile("D:\\Prog\\Movrix.cfg", "x=C:\\Old\r\n");
  desktop.putFile("C:\\a.txt", "text\r\n");
  const struct {
    std::vector<std::string> files;
    std::string path, reason;
  } rows[] = {
      {{"no.inp"}, "C:\\no.inp", "The system cannot find the file specified. (2)"},
      {{"a.txt"}, "C:\\a.txt", "Line 1 does not begin with 29 blanks and a colon."},
      {{"C:\\My", "case.inp"},
       "C:\\My",
       "It is the first of 2 names, and only one file can be opened at a time. On a command line, "
       "a "
       "name with blanks belongs into double quotes."},
  };
  for (const auto& row : rows) {
    expectRefusal(row.path, row.reason, [] {
      ASSERT_EQ(Window::openWindows().size(), 1u) << "the message stands over the window";
      EXPECT_NE(Window::openWindows().front()->focused(), nullptr);
    });
    inWizard(
        [&](frmKORVENTALLY& w) {
          EXPECT_EQ(w.workingDirectory.path(), "C:\\Old");
          EXPECT_EQ(w.analysisType.txtNumOfOthers.text(), "");
          EXPECT_EQ(w.processingInfo.txtYear.text(), "YYYY");
        },
        row.files);
  }
}

TEST_F(Opening, SaysWhatFollowsFromOtherValuesThanTheFiles) {
  AnalysisCase some = caseOf(2, "NOX", "8760");
  some.SilLimit = "0.9";
  save(some);
  desktop.expectMessage(
      "All steps are filled, but not all of the control file fits them.\n\nIts limits, \"25.0\" "
      "and "
      "\"0.9\" ug/m**3, are those of no area class and standard for NOX over 8760 hours. Please "
      "choose both in step 2, which shows Class I and NAAQS now, and enter the limits on the run "
      "summary.\n\nIts averaging period is 8760 hours, but the year \"2008\" has "
      "8784. If the period is right, please enter it on the run summary.",
      "Warning");
  inWizard(
      [&](frmKORVENTALLY& w) {
        EXPECT_TRUE(w.analysisType.optClassI.selected() && w.analysisType.optNAAQS.selected());
        EXPECT_TRUE(w.analysisType.optNOX.selected());
        EXPECT_EQ(w.outputFile.txtLSTFilename.text(), "my list.lst");
      },
      {kFile});
}

TEST_F(Opening, TakesADropWhileStepOneIsOpen) {
  theCase.DebugMode = true;
  const std::string bytes = save(caseOf(50));
  desktop.putFile("C:\\a.txt", "text\r\n");
  inWizard([&](frmKORVENTALLY& w) {
    TextBox& box = w.workingDirectory.txtWorkDir;
    walkToOutput(w, "3");
    w.outputFile.txtLSTFilename.setText("");
    expectError("Please enter a filename for the output KORVENTALLY results list file.");
    click(w.cmdRUN);
    drop(w, {kFile});
    EXPECT_EQ(w.processingInfo.txtYear.text(), "2009") << "not while another step is open";
    click(w.cmdBackToTop);
    click(w.workingDirectory.cmdNext1);
    for (Button* arrow : {&w.analysisType.cmdNextArrow1, &w.analysisType.cmdNextArrow2,
                          &w.analysisType.cmdNextArrow3}) {
      click(*arrow);
    }
    click(w.cmdBackToTop);
    drop(box, {"C:\\Study"});
    EXPECT_EQ(box.text(), "C:\\Study") << "a folder is for the box";
    expectRefusal("C:\\a.txt", "Line 1 does not begin with 29 blanks and a colon.");
    drop(box, {"C:\\a.txt"});
    EXPECT_EQ(box.text(), "C:\\Study");
    EXPECT_EQ(w.processingInfo.txtYear.text(), "2009");
    for (Control* on : std::initializer_list<Control*>{&box, &w}) {
      w.processingInfo.txtYear.setText("1999");
      drop(*on, {kFile});
      EXPECT_EQ(w.processingInfo.txtYear.text(), "2008");
    }
    EXPECT_EQ(w.outputFile.txtLSTFilename.backColor(), colors::kButtonFace) << "no old mark";
    EXPECT_TRUE(w.sourceGroups.txtAmbientBckg.visible()) << "the first page";
    click(w.workingDirectory.cmdNext1);
    EXPECT_FALSE(w.analysisType.opt3hr.usable()) << "of the species before";
    EXPECT_EQ(w.analysisType.cmdNextArrow1.backColor(), colors::kGreen);
    click(w.analysisType.cmdPrevious2);
    runUntouched(w);
    EXPECT_EQ(desktop.fileBytes(kStudy + "korventally.inp"), bytes) << "nothing typed is left";
  });
}

TEST_F(Opening, KeepsTheUsersFileWhereARunDeletesItsOwn) {
  const struct {
    std::string file;
    bool kept;
  } rows[] = {{kStudy + "KorvenTally.INP", true}, {kFile, false}};
  for (const auto& row : rows) {
    const std::string bytes = save(caseOf(2), row.file);
    inWizard([&](frmKORVENTALLY& w) { runUntouched(w); }, {row.file});
    EXPECT_EQ(desktop.fileBytes(kStudy + "korventally.inp").has_value(), row.kept) << row.file;
    EXPECT_EQ(desktop.fileBytes(row.file), bytes);
    desktop.removeFile(kStudy + "korventally.inp");
    desktop.removeFile(kStudy + "my list.lst");
  }
}

}  // namespace
}  // namespace korventally::testing
