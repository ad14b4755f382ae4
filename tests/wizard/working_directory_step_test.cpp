#include "platform/folder_browser.h"
#include "tests/study.h"

namespace korventally::testing {
namespace {

using WorkingDirectory = StudyTest;

TEST_F(WorkingDirectory, IsCheckedBeforeTheNextStepOpens) {
  desktop.putFile("C:\\file", "");
  const struct {
    std::string typed, shown, message;
  } rows[] = {
      {"", "", "Please select a Working Directory."},
      {"C:\\Nowhere", "C:\\Nowhere\\", "Selected Working Directory does not exist."},
      {"C:\\file", "C:\\file\\", "Selected Working Directory does not exist."},
      {"C:\\St*", "C:\\St*\\", "Selected Working Directory does not exist."},
      {"C:\\Study", "C:\\Study\\", ""},
      {"  C:\\Study\\", "C:\\Study\\", ""},
      {"   ", "\\", ""},
      {"D:\\", "D:\\", ""},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.typed);
    inWizard([&](frmKORVENTALLY& w) {
      TextBox& box = w.workingDirectory.txtWorkDir;
      if (!row.message.empty()) {
        desktop.expectMessage(row.message, "Error", Answer::kOk, [&] {
          EXPECT_EQ(box.backColor(), colors::kYellow) << "marked while the message is read";
        });
      }
      paste(box, row.typed);
      click(w.workingDirectory.cmdNext1);
      EXPECT_EQ(box.text(), row.shown);
      EXPECT_EQ(w.analysisType.isOpen(), row.message.empty());
      EXPECT_EQ(box.backColor(), row.message.empty() ? colors::kButtonFace : colors::kYellow);
      EXPECT_EQ(w.focused() == &box, !row.message.empty());
    });
  }
}

TEST_F(WorkingDirectory, ComesFromTheConfiguration) {
  desktop.putFile("D:\\Prog\\Movrix.cfg", "WorkDir = C:\\Study \r\n");
  inWizard([&](frmKORVENTALLY& w) {
    EXPECT_EQ(w.workingDirectory.txtWorkDir.text(), "C:\\Study");
    click(w.workingDirectory.cmdNext1);
    EXPECT_TRUE(w.analysisType.isOpen());
    EXPECT_EQ(w.analysisType.cmdNextArrow1.backColor(), colors::kGreen);
  });
}

TEST_F(WorkingDirectory, IsNormalisedWhenTheBoxIsLeft) {
  inWizard([&](frmKORVENTALLY& w) {
    TextBox& box = w.workingDirectory.txtWorkDir;
    expectError("Please select a Working Directory.");
    click(w.workingDirectory.cmdNext1);
    EXPECT_EQ(box.backColor(), colors::kYellow);
    type(box, " C:\\Study");
    press(w, Key::kTab);
    EXPECT_EQ(box.text(), "C:\\Study\\");
    EXPECT_EQ(box.backColor(), colors::kWhite);
    // Blanks at the end stay inside the path: the backslash comes behind them.
    paste(box, "C:\\Study  ");
    press(w, Key::kTab);
    EXPECT_EQ(box.text(), "C:\\Study  \\");
  });
}

TEST_F(WorkingDirectory, IsBrowsedWithTheTypedFolderPreselected) {
  desktop.makeFolder("C:\\Other\\");
  inWizard([&](frmKORVENTALLY& w) {
    TextBox& box = w.workingDirectory.txtWorkDir;
    const auto look = [](const Desktop::Browser& browser) {
      EXPECT_EQ(browser.title, "Select a Working Directory:");
      EXPECT_EQ(browser.flags, kBifNewDialogStyle);
      EXPECT_TRUE(browser.rootIsDrives);
      EXPECT_EQ(browser.preselected, "C:\\Study\\");
    };
    HighlightField(box);
    desktop.expectBrowser("C:\\Study");
    click(w.workingDirectory.cmdBrowseWorkDir);
    EXPECT_EQ(box.backColor(), colors::kWhite) << "what was empty is filled";
    paste(box, " C:\\Study");
    desktop.expectBrowser("C:\\Other", look);
    click(w.workingDirectory.cmdBrowseWorkDir);
    EXPECT_EQ(box.text(), "C:\\Other");
    for (const char* noFolder : {"", Desktop::kThisComputer}) {
      desktop.expectBrowser(noFolder);
      click(w.workingDirectory.cmdBrowseWorkDir);
      EXPECT_EQ(box.text(), "C:\\Other") << noFolder;
    }
  });
}

}  // namespace
}  // namespace korventally::testing
