#include <gtest/gtest.h>

#include "tests/e2e/program_under_test.h"

namespace korventally::driver {
namespace {

/// The whole sample study in real windows, with the real engine, interpreter and editor.
class SampleCase : public testing::Test {
 protected:
  SampleCase() {
    fs::copy(folderFrom(L"KORVENTALLY_SAMPLES"), folder.path(), fs::copy_options::recursive);
    study.workDir = folder.workDir();
  }

  /// The control file of the study with these names of its groups.
  std::string controlFile(const std::vector<std::string>& names) const {
    const std::string dir = fs::path(study.workDir).string();
    std::vector<std::string> values{dir + "korventally.lst", "SO2", "2009,01,12,00", "168",
                                    std::to_string(names.size())};
    for (std::size_t group = 0; group < names.size(); ++group) {
      values.push_back(dir + fs::path(study.concFiles[group]).string());
      values.push_back(names[group]);
    }
    values.insert(values.end(), {"1000000.0,0.0", "0", "24", "91.0", "1", dir + "receptors.dat",
                                 "1", "5.0", "2", "F", "0"});
    std::string file;
    for (const std::string& value : values) file += std::string(29, ' ') + ":" + value + "\r\n";
    return file;
  }

  bool exists(const char* name) const { return fs::exists(folder.path() / name); }

  /// Reads what the run hands to the engine, while it is there.
  void expectHandedOver(const std::vector<std::string>& names) const {
    EXPECT_TRUE(waitUntil([&] { return exists("korventally.lst"); }, 5s));
    EXPECT_EQ(readFile(folder.path() / "korventally.inp"), controlFile(names));
    EXPECT_EQ(readFile(folder.path() / "run_korventally.bat"),
              "\"" + (installation() / "korventally.exe").string() + "\" \"" +
                  fs::path(study.workDir).string() + "korventally.inp\"\r\n");
  }

  void expectCompleted(const Form& summary) const {
    ASSERT_TRUE(waitUntil([&] { return !summary.text("lblStatus").empty(); }, 30s));
    EXPECT_EQ(summary.text("lblStatus"), L"RUN COMPLETED");
    EXPECT_EQ(summary.text("lblRunning"), L"");
    EXPECT_FALSE(exists("korventally.inp"));
    EXPECT_FALSE(exists("run_korventally.bat"));
    EXPECT_TRUE(readFile(folder.path() / "korventally.lst").find("RUN COMPLETED") !=
                std::string::npos);
  }

  TestFolder folder{L"sample study"};
  Study study;
};

TEST_F(SampleCase, RunsToItsVerdictWithTheMouse) {
  // Literal paths have to reach the engine and the editor past the interpreter.
  study.workDir = LR"(\\?\)" + study.workDir;
  const Program program{installation()};
  walkWithMouse(program, study);
  const Form summary = program.summary();
  EXPECT_EQ(summary.text("lblAnalysisType"), L"Class II PSD/SIL");
  summary.click("cmdRUN");
  expectHandedOver({"ALL_SOURCES", "FACILITY", "OTHER_1", "OTHER_2", "OTHER_3"});
  EXPECT_FALSE(summary.usable("cmdRUN"));
  EXPECT_FALSE(summary.usable("cmdBack"));
  EXPECT_TRUE(waitUntil([&] { return summary.text("lblRunning") == L"Running.."; }, 5s));
  expectCompleted(summary);
  EXPECT_TRUE(waitUntil([] { return editorShowing(L"korventally.lst") != nullptr; }));
  EXPECT_TRUE(exists("open_file.bat"));
  closeEditors();  // Wine's interpreter holds the file for as long as the editor lives
  EXPECT_TRUE(waitUntil([&] { return !exists("open_file.bat"); }, 7s));
}

TEST_F(SampleCase, RunsToItsVerdictWithTheKeyboardAlone) {
  const Program program{installation()};
  walkWithKeyboard(program, study);
  const Form summary = program.summary();
  ASSERT_TRUE(waitUntil([&] { return summary.focused("cmdRUN"); }));
  pressKey(VK_RETURN);
  // Tab has led through the box of the first group's name, which then makes room for a new one.
  expectHandedOver({"ALL", "FACILITY", "OTHER_1", "OTHER_2", "OTHER_3"});
  // The check box has the focus during a run: without its tick no editor opens.
  ASSERT_TRUE(waitUntil([&] { return summary.focused("chkAutoOpen"); }));
  pressKey(VK_SPACE);
  expectCompleted(summary);
  EXPECT_EQ(editorShowing(L"korventally.lst"), nullptr);
  EXPECT_FALSE(exists("open_file.bat"));
  pressKey(VK_ESCAPE);
  EXPECT_TRUE(waitUntil([&] { return program.wizard().usable("cmdRUN"); }));
  pressKey(VK_F4, VK_MENU);
  EXPECT_TRUE(program.ended());
}

}  // namespace
}  // namespace korventally::driver
