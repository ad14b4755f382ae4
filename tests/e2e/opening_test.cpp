#include <gtest/gtest.h>

#include "tests/e2e/installation.h"
#include "tests/e2e/program_under_test.h"

namespace korventally::driver {
namespace {

/// The program started as from an icon on which a file was dropped, or with a name typed behind its
/// own.
class Opening : public testing::Test {
 protected:
  /// A control file of two groups, in Windows' code page.
  std::string controlFile() const {
    const std::string folder = study.path().string() + "\\";
    const std::string data = folder + "a.con";
    std::string bytes;
    for (const std::string& value : std::vector<std::string>{folder + "my list.lst",
                                                             "SO2",
                                                             "2009,01,12,00",
                                                             "168",
                                                             "2",
                                                             data,
                                                             "ALL_SOURCES",
                                                             data,
                                                             "M\xFCll",
                                                             "1000000.0,0.0",
                                                             "0",
                                                             "24",
                                                             "91.0",
                                                             "1",
                                                             data,
                                                             "1",
                                                             "5.0",
                                                             "2",
                                                             "F",
                                                             "0"}) {
      bytes += std::string(29, ' ') + ":" + value + "\r\n";
    }
    return bytes;
  }

  TestFolder study{L"my study"};
};

TEST_F(Opening, AControlFileFillsTheWizardThatWritesItAgain) {
  const Installation installation;
  const std::string bytes = controlFile();
  const fs::path file = study.path() / L"c\u00E4se & 1.inp";
  writeFile(file, bytes);
  writeFile(study.path() / "a.con", "any bytes");
  const Program program(installation.path(), L"\"" + file.wstring() + L"\"");
  const Form wizard = program.wizard();
  expectSoon([&] { return wizard.text("txtWorkDir") == study.workDir(); }, "the boxes are filled");
  for (const auto& [button, opened] : {std::pair{"cmdNext1", "cmdNext2"},
                                       {"cmdNext2", "cmdNextGroup"},
                                       {"cmdNextGroup", "cmdNext3"},
                                       {"cmdNext3", "cmdNext4"},
                                       {"cmdNext4", "cmdRUN"}}) {
    wizard.click(button);
    expectSoon([&] { return wizard.usable(opened); }, std::string(opened) + " opens");
  }
  wizard.click("cmdRUN");
  const Form summary = program.summary();
  EXPECT_EQ(summary.text("lblAnalysisType"), L"Class II PSD/SIL");
  summary.click("cmdRUN");
  EXPECT_TRUE(waitUntil([&] { return !summary.text("lblStatus").empty(); }, 20s));
  EXPECT_EQ(installation.seen("control_file"), bytes);
  EXPECT_EQ(readFile(file), bytes);
}

TEST_F(Opening, ANameInTheCurrentFolderIsRefusedOverTheWindow) {
  writeFile(study.path() / "a.txt", "no control file");
  const fs::path before = fs::current_path();
  fs::current_path(study.path());
  const Program program(installation(), L"a.txt");
  fs::current_path(before);
  const Message message = waitForMessage(program, L"Error");
  EXPECT_EQ(GetWindow(message.window, GW_OWNER), program.wizard().window());
  EXPECT_FALSE(IsWindowEnabled(program.wizard().window()));
  EXPECT_NE(message.text.find(study.workDir() + L"a.txt\n\nLine 1 does not begin"),
            std::wstring::npos)
      << fs::path(message.text).string();
  answer(message, IDOK);
  EXPECT_TRUE(waitUntil([&] { return program.wizard().focused("txtWorkDir"); }));
  EXPECT_EQ(program.wizard().text("txtWorkDir"), L"");
}

}  // namespace
}  // namespace korventally::driver
