#include <gtest/gtest.h>

#include "tests/e2e/program_under_test.h"

namespace korventally::driver {
namespace {

constexpr int kFilterList = 0x470;  // cmb1 of the system's dialog

/// The system's own dialogs, as they open over the wizard.
class Dialogs : public testing::Test {
 protected:
  Dialogs() { writeFile(folder.path() / "b.dat", "any bytes"); }

  HWND open(std::string_view button, const std::wstring& caption) const {
    wizard.click(button);
    HWND dialog = program.windowNamed(caption);
    expectSoon([&] { return GetForegroundWindow() == dialog && focusIn(dialog) != nullptr; },
               "the dialog has the focus");
    return dialog;
  }

  void press(HWND dialog, WORD key) const {
    pressKey(key);
    expectSoon([&] { return !IsWindow(dialog); }, "the dialog is gone");
  }

  std::vector<std::wstring> filters(HWND dialog) const {
    HWND list = GetDlgItem(dialog, kFilterList);
    std::vector<std::wstring> entries;
    for (LRESULT i = 0; i < ask(list, CB_GETCOUNT); ++i) {
      std::wstring text(static_cast<std::size_t>(ask(list, CB_GETLBTEXTLEN, i)) + 1, L'\0');
      text.resize(static_cast<std::size_t>(
          ask(list, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(text.data()))));
      entries.push_back(text.substr(0, text.find_last_not_of(L' ') + 1));
    }
    return entries;
  }

  TestFolder folder;
  const std::wstring file = folder.workDir() + L"b.dat";
  const Program program{installation()};
  const Form wizard = program.wizard();
};

TEST_F(Dialogs, FilesArePickedFromTheWorkingDirectory) {
  using Filters = std::vector<std::wstring>;
  wizard.enter("txtWorkDir", folder.workDir());
  wizard.click("cmdNext1");
  wizard.click("cmdNext2");
  HWND dialog = open("cmdBrowseFile", L"Open");
  EXPECT_EQ(filters(dialog), (Filters{L"Concentration File (*.con)", L"Concentration File (*.dat)",
                                      L"All Files (*.*)"}));
  EXPECT_EQ(ask(GetDlgItem(dialog, kFilterList), CB_GETCURSEL), 0);
  typeText(L"b.dat");
  press(dialog, VK_RETURN);
  EXPECT_TRUE(waitUntil([&] { return wizard.text("txtConcFile") == file; }));

  press(open("cmdBrowseFile", L"Open"), VK_ESCAPE);
  EXPECT_EQ(wizard.text("txtConcFile"), file);

  wizard.click("cmdNextGroup");
  wizard.enter("txtConcFile", file);
  wizard.click("cmdNext3");
  wizard.enter("txtReceptorDATFile", file);
  dialog = open("cmdBrowseReceptorDAT", L"Open");
  EXPECT_EQ(filters(dialog), (Filters{L"Receptor DAT File (*.dat)", L"All Files (*.*)"}));
  press(dialog, VK_ESCAPE);
  EXPECT_TRUE(waitUntil([&] { return wizard.text("txtReceptorDATFile").empty(); }));
}

TEST_F(Dialogs, TheFolderBrowserBeginsAtTheFolderGiven) {
  fs::create_directory(folder.path() / "inner");
  wizard.enter("txtWorkDir", folder.path().wstring());
  press(open("cmdBrowseWorkDir", L"Browse"), VK_ESCAPE);
  EXPECT_EQ(wizard.text("txtWorkDir"), folder.workDir());  // leaving the box has added the "\"

  // "OK" without a choice: the path comes from the dialog, which writes none at its end.
  press(open("cmdBrowseWorkDir", L"Browse"), VK_RETURN);
  EXPECT_TRUE(waitUntil([&] { return wizard.text("txtWorkDir") == folder.path(); }));

  // The folder inside is the one below in the opened tree.
  HWND dialog = open("cmdBrowseWorkDir", L"Browse");
  pressKey(VK_RIGHT);
  pressKey(VK_DOWN);
  press(dialog, VK_RETURN);
  EXPECT_TRUE(waitUntil([&] { return wizard.text("txtWorkDir") == folder.path() / "inner"; }));
}

}  // namespace
}  // namespace korventally::driver
