#include "tests/study.h"

namespace korventally::testing {
namespace {

using ProcessingInfo = StudyTest;

TEST_F(ProcessingInfo, ChecksItsBoxesInOrderOneAtATime) {
  inWizard([&](frmKORVENTALLY& w) {
    walkToProcessing(w);
    ProcessingInfoStep& step = w.processingInfo;
    const struct {
      TextBox& box;
      std::string text, message;
    } rows[] = {
        {step.txtReceptorDATFile, "", "Please select an input Receptor Data file."},
        {step.txtReceptorDATFile, kStudy + "no.dat",
         "Selected input Receptor Data file can not be located."},
        {step.txtReceptorDATFile, kStudy, "Selected input Receptor Data file can not be located."},
        {step.txtReceptorDATFile, kStudy + "recept.dat", ""},
        {step.txtYear, "YYYY", "Please enter a Year for the start time."},
        {step.txtYear, "", "Please enter a Year for the start time."},
        {step.txtYear, "208", "The Year must be in the format YYYY."},
        {step.txtYear, "20ä", "The Year must be in the format YYYY."},
        {step.txtYear, "0000", ""},
        {step.txtMonth, "MM", "Please enter a Month for the start time."},
        {step.txtMonth, "", "Please enter a Month for the start time."},
        {step.txtMonth, "13", ""},
        {step.txtDay, "DD", "Please enter a Day for the start time."},
        {step.txtDay, "99", ""},
        {step.txtHour, "", "Please enter an Hour for the start time."},
        {step.txtHour, "HH", "Please enter an Hour for the start time."},
        {step.txtHour, "00", ""},
        {step.txtRunLength, "", "Please enter a Run Length."},
    };
    for (const auto& row : rows) {
      SCOPED_TRACE(row.message + row.text);
      row.box.setText(row.text);
      if (row.message.empty()) continue;
      expectError(row.message);
      click(step.cmdNext4);
      EXPECT_TRUE(step.isOpen());
      for (const TextBox* field : step.ProcessingInfoFields) {
        EXPECT_EQ(field->backColor(), field == &row.box ? colors::kYellow : colors::kWhite);
      }
      EXPECT_EQ(w.focused(), &row.box);
      const bool placeholder = std::string("YYYY MM DD HH").find(row.text) != std::string::npos;
      EXPECT_EQ(row.box.text(), placeholder ? "" : row.text) << "a placeholder makes room";
    }
    type(step.txtRunLength, "0");
    click(step.cmdNext4);
    EXPECT_TRUE(w.outputFile.isOpen());
    EXPECT_EQ(step.txtRunLength.backColor(), colors::kButtonFace) << "no mark is left";
  });
}

TEST_F(ProcessingInfo, TakesDigitsOnlyAndPadsThem) {
  inWizard([&](frmKORVENTALLY& w) {
    walkToProcessing(w);
    ProcessingInfoStep& step = w.processingInfo;
    const struct {
      TextBox& box;
      const char *keys, *typed, *left;
    } rows[] = {
        {step.txtYear, "2", "2", "2"},
        {step.txtYear, "a0-0.9x8", "2009", "2009"},
        {step.txtMonth, "7", "7", "07"},
        {step.txtDay, "1 2 3", "12", "12"},
        {step.txtHour, "x", "", ""},
        {step.txtRunLength, "8", "8", "8"},
        {step.txtRunLength, ",76.0", "8760", "8760"},
    };
    for (const auto& row : rows) {
      type(row.box, row.keys);
      EXPECT_EQ(row.box.text(), row.typed);
      press(w, Key::kTab);
      EXPECT_EQ(row.box.text(), row.left);
    }
  });
}

TEST_F(ProcessingInfo, EnterMovesOnAsTabDoes) {
  inWizard([&](frmKORVENTALLY& w) {
    walkToProcessing(w);
    ProcessingInfoStep& step = w.processingInfo;
    const Control* path[] = {&step.txtYear, &step.txtMonth,     &step.txtDay,
                             &step.txtHour, &step.txtRunLength, &step.optRank1_Include};
    w.setFocus(step.txtYear);
    for (const Control* expected : path) {
      EXPECT_EQ(w.focused(), expected);
      press(w, Key::kEnter);
    }
    std::int16_t key = 13;
    step.txtYear_KeyPress(key);
    EXPECT_EQ(key, 0) << "Windows beeps at an Enter that reaches a box";
    w.setFocus(step.txtReceptorDATFile);
    EXPECT_EQ(step.txtMonth.text(), "") << "a placeholder that is gone does not come back";
  });
}

TEST_F(ProcessingInfo, ACancelledReceptorDialogEmptiesTheBox) {
  inWizard([&](frmKORVENTALLY& w) {
    walkToProcessing(w);
    TextBox& box = w.processingInfo.txtReceptorDATFile;
    HighlightField(box);
    desktop.expectOpenFile(kStudy + "recept.dat", [](const CommonDialog& dialog) {
      EXPECT_EQ(dialog.Filter, "Receptor DAT File (*.dat) | *.dat; |All Files (*.*) | *.*");
      EXPECT_EQ(dialog.FilterIndex, 1);
      EXPECT_EQ(dialog.InitDir, kStudy);
    });
    click(w.processingInfo.cmdBrowseReceptorDAT);
    EXPECT_EQ(box.text(), kStudy + "recept.dat");
    EXPECT_EQ(box.backColor(), colors::kWhite);
    desktop.expectOpenFile("");
    click(w.processingInfo.cmdBrowseReceptorDAT);
    EXPECT_EQ(box.text(), "");
  });
}

}  // namespace
}  // namespace korventally::testing
