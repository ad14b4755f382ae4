#include "tests/study.h"

namespace korventally::testing {
namespace {

class AnalysisType : public StudyTest {
 protected:
  /// The sub-frames that are unlocked and the right arrows that are green, from left to right.
  static std::string state(const frmKORVENTALLY& w) {
    const AnalysisTypeStep& step = w.analysisType;
    std::string open, green;
    for (const Frame* frame : {&step.frameArea, &step.frameEPAStandard, &step.frameSpecies,
                               &step.frameAveragingPeriod}) {
      open += frame->enabled() ? '1' : '0';
    }
    for (const Button* arrow : {&step.cmdNextArrow1, &step.cmdNextArrow2, &step.cmdNextArrow3}) {
      // Only a graphical button shows its colour.
      const bool shows = arrow->style() == Button::Style::kGraphical;
      green += shows && arrow->backColor() == colors::kGreen ? 'g' : '-';
    }
    return open + " " + green;
  }
};

TEST_F(AnalysisType, TheArrowsUnlockOneSubFrameAtATime) {
  inWizard([&](frmKORVENTALLY& w) {
    AnalysisTypeStep& step = w.analysisType;
    walkToAnalysis(w);
    EXPECT_EQ(state(w), "1000 g--");
    EXPECT_EQ(step.optNAAQS.toolTip(), "National Ambient Air Quality Standards");
    EXPECT_EQ(step.optPSD.toolTip(), "Prevention of Significant Deterioration");
    const struct {
      Button& arrow;
      const char* after;
    } walk[] = {
        {step.cmdNextArrow1, "0100 -g-"}, {step.cmdNextArrow2, "0010 --g"},
        {step.cmdNextArrow3, "0001 ---"}, {step.cmdBackArrow3, "0010 --g"},
        {step.cmdBackArrow2, "0100 -g-"}, {step.cmdBackArrow1, "1000 g--"},
    };
    for (const auto& row : walk) {
      click(row.arrow);
      EXPECT_EQ(state(w), row.after);
    }
    click(step.cmdBackArrow3);
    EXPECT_EQ(state(w), "1000 g--") << "an arrow of a locked sub-frame does nothing";
  });
}

TEST_F(AnalysisType, KeepsItsArrowColoursAsEachWayOutLeavesThem) {
  inWizard([&](frmKORVENTALLY& w) {
    AnalysisTypeStep& step = w.analysisType;
    walkToAnalysis(w);
    click(step.cmdNextArrow1);
    click(step.cmdPrevious2);
    EXPECT_EQ(state(w), "0000 -g-");
    click(w.workingDirectory.cmdNext1);
    EXPECT_EQ(state(w), "1000 gg-");
    click(step.cmdNextArrow1);
    click(w.cmdBackToTop);
    click(w.workingDirectory.cmdNext1);
    EXPECT_EQ(state(w), "1100 gg-") << "two sub-frames after Back to Top";
    click(step.cmdNextArrow2);
    EXPECT_EQ(state(w), "1010 g-g");
    click(step.cmdNext2);
    EXPECT_EQ(state(w), "0000 ---");
    click(w.sourceGroups.cmdPrevious3);
    EXPECT_EQ(state(w), "1000 ---");
  });
}

TEST_F(AnalysisType, TheSpeciesLimitsTheAveragingPeriods) {
  inWizard([&](frmKORVENTALLY& w) {
    AnalysisTypeStep& step = w.analysisType;
    walkToAnalysis(w);
    click(step.cmdNextArrow1);
    click(step.cmdNextArrow2);
    const struct {
      OptionButton &species, &before, &after;
      const char* usable;
    } rows[] = {
        {step.optSO2, step.opt3hr, step.opt3hr, "111"},
        {step.optPM10, step.opt3hr, step.opt24hr, "011"},
        {step.optPM10, step.optAnnual, step.optAnnual, "011"},
        {step.optNOX, step.opt24hr, step.optAnnual, "001"},
        {step.optSO2, step.optAnnual, step.optAnnual, "111"},
    };
    for (const auto& row : rows) {
      click(row.species);
      row.before.select();
      click(step.cmdNextArrow3);
      EXPECT_TRUE(row.after.selected());
      std::string usable;
      for (const OptionButton* period : {&step.opt3hr, &step.opt24hr, &step.optAnnual}) {
        usable += period->usable() ? '1' : '0';
      }
      EXPECT_EQ(usable, row.usable);
      click(step.cmdBackArrow3);
    }
  });
}

TEST_F(AnalysisType, RefusesForbiddenCombinationsWhateverSubFrameIsOpen) {
  const std::string noPm10 = "PM10 may not be selected with a 3 HOUR averaging period.";
  const std::string noNox = "NOX must be selected with an ANNUAL averaging period.";
  inWizard([&](frmKORVENTALLY& w) {
    AnalysisTypeStep& step = w.analysisType;
    walkToAnalysis(w);
    const struct {
      OptionButton &species, &period;
      std::string refusal;
    } rows[] = {{step.optSO2, step.opt3hr, ""},    {step.optSO2, step.opt24hr, ""},
                {step.optSO2, step.optAnnual, ""}, {step.optPM10, step.opt3hr, noPm10},
                {step.optPM10, step.opt24hr, ""},  {step.optPM10, step.optAnnual, ""},
                {step.optNOX, step.opt3hr, noNox}, {step.optNOX, step.opt24hr, noNox},
                {step.optNOX, step.optAnnual, ""}};
    for (const auto& row : rows) {
      SCOPED_TRACE(row.species.text() + ' ' + row.period.text());
      row.species.select();
      row.period.select();
      // The combination is refused first, whatever the number of groups.
      paste(step.txtNumOfOthers, row.refusal.empty() ? "" : "nonsense");
      if (!row.refusal.empty()) expectError(row.refusal);
      theCase.GroupCount = 0;
      click(step.cmdNext2);
      EXPECT_EQ(w.sourceGroups.isOpen(), row.refusal.empty());
      EXPECT_EQ(theCase.GroupCount, row.refusal.empty() ? 2 : 0);
      EXPECT_NE(step.txtNumOfOthers.backColor(), colors::kYellow);
      if (row.refusal.empty()) click(w.sourceGroups.cmdPrevious3);
    }
  });
}

TEST_F(AnalysisType, EverySpeciesOfTheTableHasItsOptionAndItsWords) {
  inWizard([&](frmKORVENTALLY& w) {
    const auto& options = w.analysisType.frameSpecies.children();
    ASSERT_EQ(options.size(), kAllSpecies.size());
    for (std::size_t i = 0; i < options.size(); ++i) {
      const Species& species = *kAllSpecies.at(i);
      EXPECT_EQ(options[i]->text(), species.name);
      const bool everyPeriod = species.threeHours && species.day;
      EXPECT_EQ(std::string(species.refusal).empty(), everyPeriod) << species.name;
      static_cast<OptionButton*>(options[i])->select();
      AnalysisCase captured;
      w.analysisType.capture(captured);
      EXPECT_EQ(captured.Species, species.name);
    }
  });
}

TEST_F(AnalysisType, TakesAWholeNumberOfOtherGroupsFromNoneToFortyEight) {
  const struct {
    const char* typed;
    std::int32_t groups;  // 0: refused
  } rows[] = {{"", 2},    {"0", 2},   {"3", 5},          {" 48 ", 50},
              {"007", 9}, {"49", 0},  {"-1", 0},         {"+1", 0},
              {"2.0", 0}, {"1e1", 0}, {"x", 0},          {"  ", 0},
              {"1 2", 0}, {"\t3", 0}, {"4294967297", 0}, {"99999999999999999999", 0}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.typed);
    theCase.GroupCount = 0;
    inWizard([&](frmKORVENTALLY& w) {
      if (row.groups == 0) {
        expectError("The number of OTHER source groups must be a whole number from 0 to 48.");
      }
      walkToGroups(w, row.typed);
      EXPECT_EQ(theCase.GroupCount, row.groups);
      EXPECT_EQ(w.sourceGroups.isOpen(), row.groups != 0);
      if (row.groups != 0) return;
      TextBox& box = w.analysisType.txtNumOfOthers;
      EXPECT_EQ(box.backColor(), colors::kYellow);
      EXPECT_EQ(w.focused(), &box);
      // An emptied box is as good as "0" and loses its mark.
      paste(box, "");
      click(w.analysisType.cmdNext2);
      EXPECT_TRUE(w.sourceGroups.isOpen());
      EXPECT_EQ(w.sourceGroups.frameSourceGroupInfo.text(),
                "INPUT INFO FOR SOURCE GROUP \"ALL SOURCES\":");
      click(w.sourceGroups.cmdPrevious3);
      EXPECT_EQ(box.backColor(), colors::kWhite);
    });
  }
}

}  // namespace
}  // namespace korventally::testing
