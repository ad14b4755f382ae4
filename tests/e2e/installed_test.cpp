#include <gtest/gtest.h>

#include "tests/e2e/program_under_test.h"

namespace korventally::driver {
namespace {

/// What the user's part of the registry has under a key, or nothing.
std::wstring registered(const wchar_t* key) {
  wchar_t text[1024] = L"";
  DWORD size = sizeof text;
  RegGetValueW(HKEY_CURRENT_USER, key, nullptr, RRF_RT_REG_SZ, nullptr, text, &size);
  return text;
}

/// The program as its installer leaves it: see tests/package/check_setup.py.
TEST(Installed, OpensAControlFileByItsVerb) {
  const fs::path file = folderFrom(L"KORVENTALLY_CONTROL_FILE");
  std::wstring command =
      registered(LR"(Software\Classes\SystemFileAssociations\.inp\shell\KorvenTally\command)");
  const std::wstring exe = L"\"" + (installation() / "KorvenTallyWizard.exe").wstring() + L"\" ";
  ASSERT_TRUE(command.starts_with(exe) && command.find(L"%1") != command.npos) << fs::path(command);
  command.replace(command.find(L"%1"), 2, file.wstring());
  const Program program(installation(), command.substr(exe.size()));
  const std::wstring folder = file.parent_path().wstring() + L"\\";
  EXPECT_TRUE(waitUntil([&] { return program.wizard().text("txtWorkDir") == folder; }, 5s));
}

}  // namespace
}  // namespace korventally::driver
