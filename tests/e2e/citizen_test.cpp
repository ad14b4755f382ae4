#include <gtest/gtest.h>

#include <vector>

#include "tests/e2e/installation.h"
#include "tests/e2e/program_under_test.h"

namespace korventally::driver {
namespace {

/// A string of the version resource, as Explorer shows it among a file's details.
std::wstring versionString(const fs::path& file, const std::wstring& name) {
  std::vector<char> data(GetFileVersionInfoSizeW(file.c_str(), nullptr));
  if (!GetFileVersionInfoW(file.c_str(), 0, static_cast<DWORD>(data.size()), data.data()))
    return {};
  void* value = nullptr;
  UINT length = 0;
  const std::wstring block = L"\\StringFileInfo\\040904b0\\" + name;
  if (!VerQueryValueW(data.data(), block.c_str(), &value, &length)) return {};
  return static_cast<const wchar_t*>(value);
}

TEST(Citizen, TellsWhatItIs) {
  const fs::path exe = installation() / "KorvenTallyWizard.exe";
  EXPECT_EQ(versionString(exe, L"ProductName"), L"KorvenTally");
  EXPECT_EQ(versionString(exe, L"ProductVersion"), L"1.2");
  EXPECT_EQ(versionString(exe, L"OriginalFilename"), exe.filename().wstring());
  EXPECT_TRUE(versionString(exe, L"FileDescription").starts_with(L"KorvenTally \x2013 "));
}

TEST(Citizen, PastedPathsLoseTheirQuotes) {
  const TestFolder folder;
  const std::wstring file = folder.workDir() + L"a.con";
  writeFile(file, "any bytes");
  const Program program{installation()};
  const Form wizard = program.wizard();
  const auto expectPasted = [&](std::string_view box, const std::wstring& path) {
    wizard.enter(box, L"replaced");
    pressKey('A', VK_CONTROL);
    copyText(L"\"" + path + L"\"\r\n\"C:\\second\"\r\n");
    pressKey('V', VK_CONTROL);
    EXPECT_TRUE(waitUntil([&] { return wizard.text(box) == path; }, 3s)) << wizard.text(box);
  };
  expectPasted("txtWorkDir", folder.path().wstring());
  wizard.click("cmdNext1");
  wizard.click("cmdNext2");
  expectPasted("txtConcFile", file);
  wizard.click("cmdNextGroup");
  expectPasted("txtConcFile", file);
  wizard.click("cmdNext3");
  expectPasted("txtReceptorDATFile", file);
}

TEST(Citizen, ObjectsToTheEndOfTheSessionDuringARunAndLeavesNothing) {
  const Installation installation("never ends");
  const TestFolder study;
  const Program program(installation.path());
  EXPECT_TRUE(agreesToSessionEnd(program));
  walkShortCase(program, study);
  const Form summary = program.summary();
  summary.click("cmdRUN");
  const fs::path helper = installation.path() / "helper_lives";
  ASSERT_TRUE(waitUntil([&] { return fs::exists(helper); }));
  EXPECT_FALSE(agreesToSessionEnd(program));
  tellSessionEnd(program, false);  // the user has gone back to work
  EXPECT_TRUE(fs::exists(study.path() / "korventally.inp"));
  EXPECT_FALSE(summary.usable("cmdRUN"));

  tellSessionEnd(program, true);
  EXPECT_FALSE(fs::exists(study.path() / "korventally.inp"));
  EXPECT_FALSE(fs::exists(study.path() / "run_korventally.bat"));
  std::error_code refused;
  EXPECT_TRUE(waitUntil([&] { return fs::remove(helper, refused); }, 5s)) << "still held";
}

}  // namespace
}  // namespace korventally::driver
