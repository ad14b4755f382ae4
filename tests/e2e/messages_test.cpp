#include <gtest/gtest.h>

#include "tests/e2e/program_under_test.h"

namespace korventally::driver {
namespace {

/// Walks down the wizard and into every message on the way.
class Messages : public testing::Test {
 protected:
  void expectMessage(std::string_view button, const std::wstring& text,
                     const std::wstring& title = L"Error", const std::wstring& buttons = L"OK",
                     int reply = IDOK) {
    SCOPED_TRACE(fs::path(text).string());
    wizard.click(button);
    const Message message = waitForMessage(program, title);
    EXPECT_EQ(message.text, text);
    EXPECT_EQ(message.buttons, buttons);
    answer(message, reply);
  }

  /// After the message the box at fault has the focus, and its text is selected.
  void expectRefused(std::string_view button, std::string_view box, const std::wstring& text) {
    expectMessage(button, text);
    EXPECT_TRUE(waitUntil([&] { return wizard.focused(box); }, 2s)) << box;
    const LRESULT selection = ask(wizard.find(box), EM_GETSEL);
    EXPECT_EQ(selection, MAKELONG(0, wizard.text(box).size())) << "for another text to be typed";
  }

  void select(std::string_view option) {
    wizard.click(option);
    ASSERT_TRUE(waitUntil([&] { return wizard.checked(option); })) << option;
  }

  void pass(std::string_view button, std::string_view opened) {
    wizard.click(button);
    ASSERT_TRUE(waitUntil([&] { return wizard.usable(opened); })) << opened;
  }

  void fillGroups() {
    wizard.enter("txtConcFile", data);
    pass("cmdNextGroup", "cmdPrevGroup");
    wizard.enter("txtConcFile", data);
    pass("cmdNext3", "frameProcessingInfo");
  }

  TestFolder folder;
  const std::wstring data = folder.workDir() + L"a.con";
  const Program program{installation()};
  const Form wizard = program.wizard();
};

TEST_F(Messages, ComeInOrderWithTheirTextsTitlesAndButtons) {
  writeFile(data, "any bytes");
  expectRefused("cmdNext1", "txtWorkDir", L"Please select a Working Directory.");
  wizard.enter("txtWorkDir", folder.workDir() + L"gone");
  expectRefused("cmdNext1", "txtWorkDir", L"Selected Working Directory does not exist.");
  EXPECT_EQ(wizard.text("txtWorkDir"), folder.workDir() + L"gone\\");
  wizard.enter("txtWorkDir", folder.path().wstring());
  pass("cmdNext1", "frameAnalysisType");

  pass("cmdNextArrow1", "optPSD");
  pass("cmdNextArrow2", "optPM10");
  select("optPM10");
  expectMessage("cmdNext2", L"PM10 may not be selected with a 3 HOUR averaging period.");
  select("optNOX");
  expectMessage("cmdNext2", L"NOX must be selected with an ANNUAL averaging period.");
  select("optSO2");
  wizard.enter("txtNumOfOthers", L"49");
  expectRefused("cmdNext2", "txtNumOfOthers",
                L"The number of OTHER source groups must be a whole number from 0 to 48.");
  wizard.enter("txtNumOfOthers", L" 0 ");
  pass("cmdNext2", "frameSourceGroupInfo");

  expectRefused("cmdNextGroup", "txtConcFile", L"Please select a Concentration File.");
  wizard.enter("txtConcFile", folder.workDir() + L"gone.con");
  expectRefused("cmdNextGroup", "txtConcFile",
                L"The selected Concentration File can not be located.");
  fillGroups();

  const struct {
    const char *box, *good;
    std::wstring message;
  } entries[] = {
      {"txtReceptorDATFile", "", L"Please select an input Receptor Data file."},
      {"txtReceptorDATFile", "gone", L"Selected input Receptor Data file can not be located."},
      {"txtYear", "209", L"Please enter a Year for the start time."},
      {"txtYear", "2009", L"The Year must be in the format YYYY."},
      {"txtMonth", "1", L"Please enter a Month for the start time."},
      {"txtDay", "2", L"Please enter a Day for the start time."},
      {"txtHour", "3", L"Please enter an Hour for the start time."},
      {"txtRunLength", "24", L"Please enter a Run Length."},
  };
  for (const auto& [box, good, message] : entries) {
    expectRefused("cmdNext4", box, message);
    const std::string text = good;
    wizard.enter(box, message.starts_with(L"Selected") ? data
                      : box == entries[0].box          ? std::wstring(L"gone")
                                                       : std::wstring(text.begin(), text.end()));
  }
  pass("cmdNext4", "frameOutputFile");
  EXPECT_EQ(wizard.text("txtMonth"), L"01");

  wizard.enter("txtLSTFilename", L"");
  expectRefused("cmdRUN", "txtLSTFilename",
                L"Please enter a filename for the output KORVENTALLY results list file.");
  wizard.enter("txtLSTFilename", L"old.lst");
  writeFile(folder.path() / "old.lst", "RUN COMPLETED");
  const std::wstring question =
      L"The selected output filename already exists. Do you wish to overwrite it?";
  expectMessage("cmdRUN", question, L"Warning", L"Yes No", IDNO);
  EXPECT_TRUE(wizard.usable("cmdRUN"));
  expectMessage("cmdRUN", question, L"Warning", L"Yes No", IDYES);
  EXPECT_TRUE(IsWindowVisible(program.summary().window()));
  EXPECT_EQ(readFile(folder.path() / "old.lst"), "RUN COMPLETED");
}

}  // namespace
}  // namespace korventally::driver
