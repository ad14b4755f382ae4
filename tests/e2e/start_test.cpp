#include <gtest/gtest.h>

#include "tests/e2e/installation.h"

namespace korventally::demo {
namespace {

void expectAsSketched(const Form& form, const Sketch& sketch) {
  SCOPED_TRACE(sketch.name);
  HWND control = nullptr;
  ASSERT_NO_THROW(control = form.find(sketch)) << "not in its place";
  EXPECT_EQ(textOf(control), sketch.text);
  EXPECT_EQ(isUsable(control), sketch.usable);
  EXPECT_EQ(ask(control, BM_GETCHECK) == BST_CHECKED && sketch.kind == L"button", sketch.checked);
  if (sketch.kind != L"edit") return;
  constexpr LRESULT kAnyNumber = 30000;
  const LRESULT limit = ask(control, EM_GETLIMITTEXT);
  EXPECT_TRUE(sketch.limit != 0 ? limit == sketch.limit : limit >= kAnyNumber) << limit;
}

TEST(Start, ShowsEveryControlInItsPlaceAndState) {
  const Program program;
  const Form wizard = program.wizard();
  for (const Sketch& sketch : kWizard) expectAsSketched(wizard, sketch);
  RECT client;
  GetClientRect(wizard.window(), &client);
  EXPECT_EQ(client.right, 881);
  EXPECT_EQ(client.bottom, 685);
}

TEST(Start, TabGoesRoundWhatCanBeUsed) {
  const Program program;
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
}  // namespace korventally::demo
