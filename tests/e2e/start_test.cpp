#include <gtest/gtest.h>

#include "driver/program.h"
#include "tests/e2e/expected_layout.h"
#include "tests/e2e/installation.h"

namespace korventally::driver {
namespace {

void expectState(const Form& wizard, const Expected& expected) {
  SCOPED_TRACE(expected.name);
  HWND control = nullptr;
  ASSERT_NO_THROW(control = wizard.find(expected.name)) << "not in its place";
  EXPECT_EQ(textOf(control), expected.text);
  EXPECT_EQ(isUsable(control), expected.usable);
  if (classOf(control) == L"button") {
    EXPECT_EQ(ask(control, BM_GETCHECK) == BST_CHECKED, expected.checked);
  }
  if (classOf(control) != L"edit") return;
  constexpr LRESULT kAnyNumber = 30000;
  const LRESULT limit = ask(control, EM_GETLIMITTEXT);
  EXPECT_TRUE(expected.limit != 0 ? limit == expected.limit : limit >= kAnyNumber) << limit;
}

void expectThere(const Form& wizard, const ExpectedThere& expected) {
  SCOPED_TRACE(expected.sketch.name);
  HWND control = nullptr;
  ASSERT_NO_THROW(control = wizard.find(expected.sketch)) << "not in its place";
  EXPECT_EQ(textOf(control), expected.text);
  EXPECT_EQ(isUsable(control), expected.usable);
}

TEST(Start, ShowsEveryControlInItsPlaceAndState) {
  const Program program{installation()};
  const Form wizard = program.wizard();
  for (const Expected& expected : kExpectedControls) expectState(wizard, expected);
  for (const ExpectedThere& expected : kExpectedThere) expectThere(wizard, expected);
  RECT client;
  GetClientRect(wizard.window(), &client);
  EXPECT_EQ(client.right, 881);
  EXPECT_EQ(client.bottom, 685);
}

TEST(Start, TabGoesRoundWhatCanBeUsed) {
  const Program program{installation()};
  const Form wizard = program.wizard();
  ASSERT_TRUE(waitUntil([&] { return wizard.focused("txtWorkDir"); }));
  for (const char* next :
       {"cmdBrowseWorkDir", "cmdNext1", "cmdCancel", "cmdBackToTop", "txtWorkDir"}) {
    pressKey(VK_TAB);
    EXPECT_TRUE(waitUntil([&] { return wizard.focused(next); }, 3s)) << next;
  }
}

TEST(Start, OffersTheFolderOfTheConfigurationFileAndEndsByItsMenu) {
  const Installation installation;
  writeFile(installation.path() / "Movrix.cfg", "WorkingDirectory = C:\\Some study\r\nmore");
  const Program program(installation.path());
  EXPECT_EQ(program.wizard().text("txtWorkDir"), L"C:\\Some study");
  program.chooseMenu('F', 'X');
  EXPECT_TRUE(program.ended());
}

}  // namespace
}  // namespace korventally::driver
