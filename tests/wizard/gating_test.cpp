#include <algorithm>

#include "tests/study.h"

namespace korventally::testing {
namespace {

using Names = std::vector<std::string>;

class Gating : public StudyTest {
 protected:
  static std::vector<WizardStep*> steps(frmKORVENTALLY& w) {
    return {&w.workingDirectory, &w.analysisType, &w.sourceGroups, &w.processingInfo,
            &w.outputFile};
  }

  /// Exactly one step is open, counted from 1.
  static void expectOpen(frmKORVENTALLY& wizard, int expected) {
    int number = 0;
    for (WizardStep* step : steps(wizard)) {
      ++number;
      EXPECT_EQ(step->isOpen(), number == expected) << "step " << number;
      for (const Control* control : step->controls()) {
        EXPECT_EQ(control->enabled(), number == expected) << "step " << number;
      }
      for (const TextBox* field : step->fields()) {
        EXPECT_EQ(field->enabled(), number == expected) << "step " << number;
      }
    }
    EXPECT_EQ(wizard.cmdRUN.usable(), expected == 5);
    EXPECT_TRUE(wizard.cmdBackToTop.usable());
    EXPECT_TRUE(wizard.cmdCancel.usable());
  }

  static void expectPagingClosed(const frmKORVENTALLY& wizard) {
    for (const Button* button :
         {&wizard.sourceGroups.cmdPrevGroup, &wizard.sourceGroups.cmdNextGroup,
          &wizard.sourceGroups.cmdNext3}) {
      EXPECT_FALSE(button->enabled());
    }
  }
};

TEST_F(Gating, StartsWithStepOneAlone) {
  inWizard([&](frmKORVENTALLY& w) {
    EXPECT_EQ(w.focused(), &w.workingDirectory.txtWorkDir);
    expectOpen(w, 1);
    expectPagingClosed(w);
    EXPECT_EQ(w.workingDirectory.txtWorkDir.backColor(), colors::kWhite);
    for (WizardStep* step : steps(w)) {
      if (step == &w.workingDirectory) continue;
      for (const TextBox* field : step->fields()) {
        EXPECT_EQ(field->backColor(), colors::kButtonFace);
      }
    }
    for (const ControlGroup* group :
         {&w.analysisType.AreaControls, &w.analysisType.EPAStandardControls,
          &w.analysisType.SpeciesControls, &w.analysisType.AveragingPeriodControls}) {
      EXPECT_TRUE(std::none_of(group->begin(), group->end(),
                               [](const Control* control) { return control->enabled(); }));
    }
    click(w.cmdBackToTop);
    expectOpen(w, 1);
  });
}

TEST_F(Gating, TabLeadsForwardThroughTheOpenStepAndBackAtLast) {
  inWizard([&](frmKORVENTALLY& w) {
    const auto expectPath = [&](const std::vector<Control*>& path) {
      w.setFocus(*path.front());
      for (const Control* stop : path) {
        EXPECT_EQ(w.focused(), stop) << stop->text();
        press(w, Key::kTab);
      }
      EXPECT_EQ(w.focused(), path.front());
    };
    walkToAnalysis(w);
    AnalysisTypeStep& two = w.analysisType;
    expectPath({&two.optClassI, &two.cmdNextArrow1, &two.txtNumOfOthers, &two.cmdNext2,
                &w.cmdCancel, &two.cmdPrevious2, &w.cmdBackToTop});
    click(two.cmdPrevious2);
    walkToGroups(w, "1");
    SourceGroupsStep& three = w.sourceGroups;
    paste(three.txtConcFile, kStudy + "g1.con");
    expectPath({&three.txtConcFile, &three.cmdBrowseFile, &three.txtGroupName,
                &three.txtAmbientBckg, &three.cmdNextGroup, &w.cmdCancel, &three.cmdPrevious3,
                &w.cmdBackToTop});
    click(three.cmdNextGroup);
    paste(three.txtConcFile, kStudy + "g2.con");
    expectPath({&three.txtConcFile, &three.cmdBrowseFile, &three.txtGroupName, &three.cmdPrevGroup,
                &three.cmdNextGroup, &w.cmdCancel, &three.cmdPrevious3, &w.cmdBackToTop});
    click(w.cmdBackToTop);
    walkToOutput(w, "1");
    OutputFileStep& five = w.outputFile;
    expectPath({&w.cmdRUN, &w.cmdCancel, &five.txtLSTFilename, &five.cmdDefault_LST,
                &five.cmdPrevious5, &w.cmdBackToTop});
    click(five.cmdPrevious5);
    ProcessingInfoStep& four = w.processingInfo;
    expectPath({&four.txtReceptorDATFile, &four.cmdBrowseReceptorDAT, &four.optReceptor_TOLVREN,
                &four.txtYear, &four.txtMonth, &four.txtDay, &four.txtHour, &four.txtRunLength,
                &four.optRank1_Include, &four.cmdNext4, &w.cmdCancel, &four.cmdPrevious4,
                &w.cmdBackToTop});
  });
}

TEST_F(Gating, WalksForwardAndBack) {
  inWizard([&](frmKORVENTALLY& w) {
    walkToOutput(w);
    expectOpen(w, 5);
    EXPECT_EQ(w.focused(), &w.cmdRUN);
    click(w.outputFile.cmdPrevious5);
    expectOpen(w, 4);
    click(w.processingInfo.cmdPrevious4);
    expectOpen(w, 3);
    EXPECT_TRUE(w.sourceGroups.cmdPrevGroup.enabled());
    EXPECT_TRUE(w.sourceGroups.cmdNext3.enabled());
    EXPECT_FALSE(w.sourceGroups.cmdNextGroup.enabled());
    click(w.sourceGroups.cmdPrevious3);
    expectOpen(w, 2);
    expectPagingClosed(w);
    EXPECT_TRUE(w.analysisType.optClassI.usable());
    click(w.analysisType.cmdPrevious2);
    expectOpen(w, 1);
    EXPECT_FALSE(w.analysisType.optClassI.enabled());
  });
}

TEST_F(Gating, BackToTopLeadsToStepOneFromAnywhereAndKeepsEveryEntry) {
  for (int step = 2; step <= 5; ++step) {
    SCOPED_TRACE(step);
    inWizard([&](frmKORVENTALLY& w) {
      if (step == 2) walkToAnalysis(w);
      if (step == 3) walkToGroups(w, "1");
      if (step == 4) walkToProcessing(w, "1");
      if (step == 5) walkToOutput(w, "1");
      expectOpen(w, step);
      const std::string page = w.sourceGroups.frameSourceGroupInfo.text();
      click(w.cmdBackToTop);
      expectOpen(w, 1);
      expectPagingClosed(w);
      // Step 2 keeps its sub-frames as they were.
      EXPECT_EQ(w.analysisType.optClassI.enabled(), step == 2);
      click(w.workingDirectory.cmdNext1);
      expectOpen(w, 2);
      click(w.analysisType.cmdNext2);
      expectOpen(w, 3);
      EXPECT_EQ(w.sourceGroups.frameSourceGroupInfo.text(), page);
      EXPECT_EQ(w.processingInfo.txtMonth.text(), step == 5 ? "01" : "MM");
    });
  }
}

TEST_F(Gating, AHighlightSurvivesItsClosedStep) {
  inWizard([&](frmKORVENTALLY& w) {
    walkToProcessing(w);
    expectError("Please select an input Receptor Data file.");
    click(w.processingInfo.cmdNext4);
    TextBox& box = w.processingInfo.txtReceptorDATFile;
    EXPECT_EQ(box.backColor(), colors::kYellow);
    click(w.processingInfo.cmdPrevious4);
    EXPECT_EQ(box.backColor(), colors::kDarkYellow);
    click(w.sourceGroups.cmdNext3);
    EXPECT_EQ(box.backColor(), colors::kYellow);
  });
}

TEST_F(Gating, TheFocusGoesToTheFirstUsableControlOfTheStepThatOpens) {
  inWizard([&](frmKORVENTALLY& w) {
    walkToAnalysis(w);
    EXPECT_EQ(w.focused(), &w.analysisType.optClassI);
    click(w.analysisType.cmdNextArrow1);
    EXPECT_EQ(w.focused(), &w.analysisType.optNAAQS);
    click(w.analysisType.cmdBackArrow1);
    EXPECT_EQ(w.focused(), &w.analysisType.optClassI);
    click(w.analysisType.cmdNext2);
    EXPECT_EQ(w.focused(), &w.sourceGroups.txtConcFile);
    click(w.sourceGroups.cmdPrevious3);
    EXPECT_EQ(w.focused(), &w.analysisType.optClassI);
    click(w.analysisType.cmdPrevious2);
    EXPECT_EQ(w.focused(), &w.workingDirectory.txtWorkDir);
  });
}

/// The names of what has no caption to be read aloud, in the order of the window.
void collectNames(const Container& container, Names& names) {
  for (const Control* child : container.children()) {
    const bool arrow = child->text() == "\u00AE" || child->text() == "\u00AC";
    if (arrow || child->kind() == Control::Kind::kTextBox) names.push_back(child->accessibleName());
    if (child->kind() == Control::Kind::kFrame) {
      collectNames(static_cast<const Frame&>(*child), names);
    }
  }
}

TEST_F(Gating, WhatHasNoCaptionHasANameForScreenReaders) {
  Names names;
  inWizard([&](frmKORVENTALLY& w) { collectNames(w, names); });
  EXPECT_EQ(names, (Names{"WORKING DIRECTORY", "next: STANDARD", "back: AREA", "next: SPECIES",
                          "back: STANDARD", "next: AVERAGING PERIOD", "back: SPECIES",
                          "Number of OTHER Source Groups to Analyze", "Concentration File",
                          "Source Group Name", "Ambient Background, ug/m**3",
                          "File with Receptors to be Processed", "Year", "Day", "Month", "Hour",
                          "Run Length, hours", "List Filename"}));
  names.clear();
  inSummary([&](frmRunSummary& s) { collectNames(s, names); });
  EXPECT_EQ(names, (Names{"Species", "Averaging Period, hrs", "PSD Increment, ug/m**3",
                          "SIL Limit, ug/m**3"}));
}

TEST_F(Gating, EveryWayOfClosingEndsTheProgram) {
  const std::function<void(frmKORVENTALLY&)> ways[] = {
      [](frmKORVENTALLY& w) { click(w.cmdCancel); },
      [](frmKORVENTALLY& w) { w.mnuExit.onClick(); },
      [](frmKORVENTALLY& w) { clickCloseBox(w); },
  };
  for (const auto& close : ways) {
    inWizard([&](frmKORVENTALLY& w) {
      walkToGroups(w);
      close(w);
      EXPECT_FALSE(w.isOpen());
    });
  }
}

}  // namespace
}  // namespace korventally::testing
