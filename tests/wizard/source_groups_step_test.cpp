#include "tests/study.h"
#include "wizard/group_caption.h"

namespace korventally::testing {
namespace {

class SourceGroups : public StudyTest {
 protected:
  static std::string caption(const frmKORVENTALLY& w) {
    const std::string& text = w.sourceGroups.frameSourceGroupInfo.text();
    const std::string lead = "INPUT INFO FOR SOURCE GROUP ";
    EXPECT_TRUE(text.starts_with(lead));
    return text.substr(lead.size());
  }

  /// Only a graphical button shows its colour.
  static bool isGreen(const Button& button) {
    return button.style() == Button::Style::kGraphical && button.backColor() == colors::kGreen;
  }

  /// Which of PREVIOUS GROUP, NEXT GROUP and NEXT can be used.
  static std::string paging(const frmKORVENTALLY& w) {
    std::string usable;
    for (const Button* button :
         {&w.sourceGroups.cmdPrevGroup, &w.sourceGroups.cmdNextGroup, &w.sourceGroups.cmdNext3}) {
      usable += button->usable() ? '1' : '0';
    }
    return usable;
  }

  void fillAndTurn(frmKORVENTALLY& w) {
    paste(w.sourceGroups.txtConcFile, kStudy + "g1.con");
    click(w.sourceGroups.cmdNextGroup);
  }

  /// Changes the number of OTHER groups and comes back to the pages.
  void changeOthers(frmKORVENTALLY& w, const std::string& others) {
    click(w.sourceGroups.cmdPrevious3);
    paste(w.analysisType.txtNumOfOthers, others);
    click(w.analysisType.cmdNext2);
  }
};

TEST_F(SourceGroups, CaptionsReadBackAsTheyWereSet) {
  inWizard([&](frmKORVENTALLY& w) {
    Frame& frame = w.sourceGroups.frameSourceGroupInfo;
    for (std::int32_t slot = 1; slot <= 50; ++slot) {
      SetGroupCaption(frame, slot, 50);
      const GroupCaption read = readGroupCaption(frame.text());
      EXPECT_EQ(read.slot, slot);
      EXPECT_EQ(read.count, slot > 2 ? 50 : 0);
    }
    EXPECT_EQ(frame.text(), "INPUT INFO FOR SOURCE GROUP \"OTHER\" #48 of 48:");
  });
  for (const char* unknown : {"", "x", "x \"y\" #1 of 2:", "\"\""}) {
    EXPECT_EQ(readGroupCaption(unknown).slot, 0) << unknown;
  }
  EXPECT_EQ(readGroupCaption("x \" OTHER \" # 2 of  7 :").slot, 4);
  EXPECT_EQ(readGroupCaption("x \"OTHER\" # 2 of  7 :").count, 9);
}

TEST_F(SourceGroups, PagesRunFromTheFirstGroupToTheLast) {
  inWizard([&](frmKORVENTALLY& w) {
    walkToGroups(w, "2");
    const struct {
      const char *caption, *paging;
    } pages[] = {{"\"ALL SOURCES\":", "010"},
                 {"\"FACILITY\":", "110"},
                 {"\"OTHER\" #1 of 2:", "110"},
                 {"\"OTHER\" #2 of 2:", "101"}};
    for (const auto& page : pages) {
      EXPECT_EQ(caption(w), page.caption);
      EXPECT_EQ(paging(w), page.paging);
      const bool last = w.sourceGroups.CurrentGroup == 4;
      EXPECT_EQ(isGreen(w.sourceGroups.cmdNextGroup), !last);
      for (const Control* control : std::initializer_list<const Control*>{
               &w.sourceGroups.lblAmbientBckg, &w.sourceGroups.lblugm3, &w.sourceGroups.lblNote3,
               &w.sourceGroups.lblNote4, &w.sourceGroups.txtAmbientBckg}) {
        EXPECT_EQ(control->visible(), w.sourceGroups.CurrentGroup == 1) << control->text();
      }
      if (!last) fillAndTurn(w);
    }
    for (int page = 3; page >= 1; --page) {
      click(w.sourceGroups.cmdPrevGroup);
      EXPECT_EQ(caption(w), pages[page - 1].caption);
      EXPECT_EQ(paging(w), pages[page - 1].paging);
      EXPECT_TRUE(isGreen(w.sourceGroups.cmdNextGroup));
    }
    EXPECT_EQ(theCase.GroupConcFiles[4], "") << "stored without complaint on the way back";
    EXPECT_EQ(theCase.GroupConcFiles[3], kStudy + "g1.con");
  });
}

TEST_F(SourceGroups, AConcentrationFileMustExist) {
  desktop.putFile(kStudy + "hidden.con", "", Desktop::Attribute::kHidden);
  const char* missing = "The selected Concentration File can not be located.";
  const char* empty = "Please select a Concentration File.";
  const struct {
    std::string typed, shown, message;
  } rows[] = {{"", "", empty},
              {"   ", "", empty},
              {kStudy + "no.con", kStudy + "no.con", missing},
              {kStudy, kStudy, missing},
              {kStudy + "g*.con", kStudy + "g*.con", missing},
              {kStudy + "hidden.con", kStudy + "hidden.con", missing},
              {"  " + kStudy + "g1.con ", kStudy + "g1.con", ""}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.typed);
    inWizard([&](frmKORVENTALLY& w) {
      walkToGroups(w);
      SourceGroupsStep& step = w.sourceGroups;
      if (!row.message.empty()) expectError(row.message);
      step.txtConcFile.setText(row.typed);
      click(step.cmdNextGroup);
      EXPECT_EQ(step.CurrentGroup, row.message.empty() ? 2 : 1);
      if (row.message.empty()) {
        EXPECT_EQ(theCase.GroupConcFiles[1], row.shown);
        return;
      }
      EXPECT_EQ(step.txtConcFile.text(), row.shown);
      EXPECT_EQ(step.txtConcFile.backColor(), colors::kYellow);
      EXPECT_EQ(w.focused(), &step.txtConcFile);
      click(step.cmdPrevious3);
      EXPECT_EQ(step.txtConcFile.backColor(), colors::kButtonFace) << "no mark survives";
      click(w.analysisType.cmdNext2);
      fillAndTurn(w);
      EXPECT_EQ(step.CurrentGroup, 2) << "nor does the refusal";
    });
  }
}

TEST_F(SourceGroups, DefaultNamesMakeRoomForTyping) {
  inWizard([&](frmKORVENTALLY& w) {
    walkToGroups(w, "2");
    TextBox& name = w.sourceGroups.txtGroupName;
    const char* prepared[] = {"ALL", "", "", ""};
    for (const char* expected : prepared) {
      click(name);
      EXPECT_EQ(name.text(), expected);
      if (w.sourceGroups.cmdNextGroup.usable()) fillAndTurn(w);
    }
    click(w.sourceGroups.cmdPrevGroup);
    EXPECT_EQ(theCase.GroupNames[1], "ALL");
    EXPECT_EQ(theCase.GroupNames[2], "FACILITY") << "an empty name box keeps the stored name";
    EXPECT_EQ(theCase.GroupNames[4], "OTHER_2");
    paste(name, "  Mill ");
    for (int page = 3; page > 1; --page) click(w.sourceGroups.cmdPrevGroup);
    EXPECT_EQ(theCase.GroupNames[3], "Mill");
    click(name);
    EXPECT_EQ(name.text(), "ALL") << "a name that is no default is left alone";
    for (int page = 1; page < 3; ++page) fillAndTurn(w);
    paste(name, "OTHER_2");
    click(w.sourceGroups.txtConcFile);
    click(name);
    EXPECT_EQ(name.text(), "OTHER_2") << "nor is the default of another page";
  });
}

TEST_F(SourceGroups, BoxesAreTrimmedWhenLeftAndMarksStayBehind) {
  inWizard([&](frmKORVENTALLY& w) {
    walkToGroups(w);
    for (TextBox* box : w.sourceGroups.SourceGroupInfoFields) {
      HighlightField(*box);
      paste(*box, " x ");
      press(w, Key::kTab);
      EXPECT_EQ(box->text(), "x");
      EXPECT_EQ(box->backColor(), colors::kWhite);
    }
    fillAndTurn(w);
    expectError("Please select a Concentration File.");
    click(w.sourceGroups.cmdNext3);
    click(w.sourceGroups.cmdPrevGroup);
    EXPECT_EQ(w.sourceGroups.txtConcFile.backColor(), colors::kWhite);
  });
}

TEST_F(SourceGroups, ThePageComesBackUnlessItsGroupIsGone) {
  inWizard([&](frmKORVENTALLY& w) {
    TextBox& file = w.sourceGroups.txtConcFile;
    walkToGroups(w, "3");
    for (int page = 1; page <= 3; ++page) fillAndTurn(w);
    paste(file, "unstored");
    changeOthers(w, "5");
    EXPECT_EQ(caption(w), "\"OTHER\" #2 of 5:");
    EXPECT_EQ(file.text(), "unstored");
    EXPECT_EQ(paging(w), "110");
    for (int page = 1; page <= 2; ++page) click(w.sourceGroups.cmdPrevGroup);
    for (int page = 1; page <= 2; ++page) fillAndTurn(w);
    // Its group would still be there, but it is another one when fewer are counted.
    changeOthers(w, "4");
    EXPECT_EQ(caption(w), "\"ALL SOURCES\":");
    EXPECT_EQ(file.text(), kStudy + "g1.con");
    EXPECT_EQ(paging(w), "010");
    EXPECT_TRUE(w.sourceGroups.txtAmbientBckg.visible());
  });
}

TEST_F(SourceGroups, TheFacilityPageCanBecomeTheLast) {
  inWizard([&](frmKORVENTALLY& w) {
    walkToGroups(w, "2");
    fillAndTurn(w);
    changeOthers(w, "0");
    EXPECT_EQ(caption(w), "\"FACILITY\":");
    EXPECT_EQ(paging(w), "101");
    EXPECT_TRUE(isGreen(w.sourceGroups.cmdNextGroup));
  });
}

TEST_F(SourceGroups, FilesAreBrowsedInTheWorkingDirectory) {
  inWizard([&](frmKORVENTALLY& w) {
    walkToGroups(w);
    TextBox& file = w.sourceGroups.txtConcFile;
    HighlightField(file);
    const auto look = [](const CommonDialog& dialog) {
      EXPECT_EQ(dialog.Filter,
                "Concentration File (*.con) | *.con; |Concentration File (*.dat) | *.dat; |"
                "All Files (*.*) | *.*");
      EXPECT_EQ(dialog.FilterIndex, 1);
      EXPECT_EQ(dialog.InitDir, kStudy);
      EXPECT_EQ(dialog.FileName, "");
    };
    desktop.expectOpenFile("", look);
    click(w.sourceGroups.cmdBrowseFile);
    EXPECT_EQ(file.text(), "");
    EXPECT_EQ(file.backColor(), colors::kYellow) << "cancelled: nothing changes";
    desktop.expectOpenFile(kStudy + "g2.con", look);
    click(w.sourceGroups.cmdBrowseFile);
    EXPECT_EQ(file.text(), kStudy + "g2.con");
    EXPECT_EQ(file.backColor(), colors::kWhite);
  });
}

}  // namespace
}  // namespace korventally::testing
